// One class of objects, QBOX, with everything the machine does to objects; and programs that use
// it.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "basic/check/front_end.h"
#include "basic/code/emitter.h"
#include "basic/hosts/object_host.h"
#include "basic/source_text.h"
#include "basic/vm/machine.h"
#include "fakes/program_hosts.h"

namespace tarnwick::basic::test {

/// QBOX: property Size, array property Item(i), methods Fill(@n) and Fire(times), events OnFire
/// (n AS INTEGER), built-in object Screen of the same class.
class BoxCatalog : public ClassCatalog {
 public:
  enum Member : std::uint16_t { Size, Item, Fill, Fire, OnFire, Twice };

  BoxCatalog() {
    Add(Size, "Size", MemberKind::Property, kWholeType, {});
    Add(Item, "Item", MemberKind::ArrayProperty, kTextType, {{kWholeType, false}});
    Add(Fill, "Fill", MemberKind::Method, kNoType, {{kWholeType, true}});
    Add(Fire, "Fire", MemberKind::Method, kNoType, {{kWholeType, false}});
    Add(OnFire, "OnFire", MemberKind::Event, kNoType, {{kWholeType, false}});
    Add(Twice, "Twice", MemberKind::Method, kWholeType, {{kWholeType, false}});
  }
  [[nodiscard]] std::optional<ClassId> FindClass(std::string_view name) const override {
    if (!EqualsFolded(name, "QBOX")) return std::nullopt;
    return ClassId{};
  }
  [[nodiscard]] std::string_view ClassName(ClassId) const override { return "QBOX"; }
  [[nodiscard]] const MemberFacts* FindMember(ClassId, std::string_view name) const override {
    for (const MemberFacts& facts : members_) {
      if (EqualsFolded(facts.Name, name)) return &facts;
    }
    return nullptr;
  }
  [[nodiscard]] std::optional<ClassId> FindBuiltInObject(std::string_view name) const override {
    if (!EqualsFolded(name, "Screen")) return std::nullopt;
    return ClassId{};
  }
  [[nodiscard]] bool CopiesValues(ClassId) const override { return true; }
  [[nodiscard]] bool IsParent(ClassId) const override { return false; }
  [[nodiscard]] std::vector<std::string_view> ClassNames() const override { return {"QBOX"}; }
  [[nodiscard]] std::vector<std::string_view> MemberNames(ClassId) const override { return {}; }

 private:
  void Add(Member id, std::string_view name, MemberKind kind, Type value,
           std::vector<MemberParameter> parameters) {
    parameters_[id] = std::move(parameters);
    MemberFacts& facts = members_.emplace_back();
    facts.Id = static_cast<MemberId>(id);
    facts.Name = name;
    facts.Kind = kind;
    facts.Value = value;
    facts.Parameters = parameters_[id];
    facts.Required = static_cast<int>(parameters_[id].size());
  }

  std::array<std::vector<MemberParameter>, 6> parameters_;
  std::vector<MemberFacts> members_;
};

/// Logs what the machine asks for.
class BoxHost : public ObjectHost {
 public:
  struct Box {
    std::string Name;
    std::int64_t Size = 0;
    std::map<std::int64_t, std::string> Items;
    EventHook Hook;
  };

  ObjectId Create(ClassId, std::string_view name, int index) override {
    Boxes[++last_] = {};
    Boxes[last_].Name = std::string(name) + (index < 0 ? "" : std::to_string(index));
    Log += "make " + Boxes[last_].Name + "\n";
    return static_cast<ObjectId>(last_);
  }
  bool Get(ObjectId object, MemberId member, std::span<const Value> index, Value& out) override {
    Box* const box = Find(object);
    if (box == nullptr) return false;
    out = member == static_cast<MemberId>(BoxCatalog::Size)
              ? Value::Integer(box->Size)
              : Value::Text(box->Items[index[0].AsInteger()]);
    return true;
  }
  bool Set(ObjectId object, MemberId member, std::span<const Value> index,
           const Value& in) override {
    Box* const box = Find(object);
    if (box == nullptr) return false;
    if (member == static_cast<MemberId>(BoxCatalog::Size)) {
      box->Size = in.AsInteger();
    } else {
      box->Items[index[0].AsInteger()] = in.AsText();
    }
    return true;
  }
  bool Call(ObjectId object, MemberId method, std::span<Value> arguments, Value& result) override {
    Box* const box = Find(object);
    if (box == nullptr) return false;
    if (method == static_cast<MemberId>(BoxCatalog::Fill)) {
      arguments[0] = Value::Integer(box->Size);
    } else if (method == static_cast<MemberId>(BoxCatalog::Twice)) {
      result = Value::Integer(2 * arguments[0].AsInteger());
    } else {
      std::vector<Value> event{arguments[0]};
      const EventHook hook = box->Hook;
      if (!Sink->Raise(object, hook, event)) return true;
      Log += "fired " + event[0].AsText() + "\n";
    }
    return true;
  }
  bool Hook(ObjectId object, MemberId, const EventHook& hook) override {
    Box* const box = Find(object);
    if (box == nullptr) return false;
    box->Hook = hook;
    return true;
  }
  bool Assign(ObjectId to, ObjectId from) override {
    Box* const target = Find(to);
    Box* const source = Find(from);
    if (target == nullptr || source == nullptr) return false;
    target->Size = source->Size;
    return true;
  }
  void EndOfLocal(ObjectId object) override {
    Box* const box = Find(object);
    if (box != nullptr) Log += "free " + box->Name + "\n";
    Boxes.erase(static_cast<std::uint64_t>(object));
  }
  ObjectId BuiltIn(ClassId) override {
    if (screen_ == ObjectId::None) screen_ = Create({}, "Screen", -1);
    return screen_;
  }
  bool PumpEvents(int) override { return false; }
  [[nodiscard]] std::string_view Reason() const override { return "There is no such box"; }

  EventSink* Sink = nullptr;
  std::string Log;
  std::map<std::uint64_t, Box> Boxes;

 private:
  Box* Find(ObjectId object) {
    const auto found = Boxes.find(static_cast<std::uint64_t>(object));
    return found == Boxes.end() ? nullptr : &found->second;
  }

  std::uint64_t last_ = 0;
  ObjectId screen_ = ObjectId::None;
};

struct BoxRun {
  std::string Printed;
  std::string Log;  ///< of the objects
  std::string Faults;
  RunResult Result;
};

/// Checks and runs a program that may use boxes.
inline BoxRun RunBoxes(const std::string& text, Dispatch how = Dispatch::Threaded) {
  BoxRun run;
  MemorySources sources;
  sources.Files["C:\\main.bas"] = text;
  const BoxCatalog classes;
  const FrontEndResult checked = CheckProgram("C:\\main.bas", sources, classes, {});
  for (const Message& message : checked.Found.All()) {
    if (message.Level == Severity::Error) run.Faults += message.Text + "\n";
  }
  if (!checked.Checked) return run;
  const EmitResult emitted = Emit(*checked.Checked);
  run.Faults += emitted.Error;
  tarnwick::test::LogConsole console(run.Printed);
  BoxHost boxes;
  Hosts hosts;
  hosts.Console = &console;
  hosts.Objects = &boxes;
  RunOptions options;
  options.How = how;
  options.MaxSteps = 1'000'000;
  Machine machine(emitted.Made, hosts, options);
  boxes.Sink = &machine;
  run.Result = machine.Run();
  run.Log = boxes.Log;
  return run;
}

}  // namespace tarnwick::basic::test
