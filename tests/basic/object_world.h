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
#include "basic/vm/machine.h"
#include "fakes/program_hosts.h"
#include "fakes/source_text.h"

namespace tarnwick::basic::test {

/// QBOX: property Size, array property Item(i), methods Fill(@n) and Fire(times), events OnFire
/// (n AS INTEGER), built-in object Screen of the same class.
class BoxCatalog : public ClassCatalog {
 public:
  enum Member : std::uint16_t { Size, Item, Fill, Fire, OnFire, Twice };

  BoxCatalog();
  ~BoxCatalog() override;
  [[nodiscard]] std::optional<ClassId> FindClass(std::string_view name) const override;
  [[nodiscard]] std::string_view ClassName(ClassId) const override { return "QBOX"; }
  [[nodiscard]] const MemberFacts* FindMember(ClassId, std::string_view name) const override;
  [[nodiscard]] std::optional<ClassId> FindBuiltInObject(std::string_view name) const override;
  [[nodiscard]] bool CopiesValues(ClassId) const override { return true; }
  [[nodiscard]] bool IsParent(ClassId) const override { return false; }
  [[nodiscard]] std::vector<std::string_view> ClassNames() const override { return {"QBOX"}; }
  [[nodiscard]] std::vector<std::string_view> MemberNames(ClassId) const override { return {}; }

 private:
  void Add(Member id, std::string_view name, MemberKind kind, Type value,
           std::vector<MemberParameter> parameters);

  std::array<std::vector<MemberParameter>, 6> parameters_;
  std::vector<MemberFacts> members_;
};

/// Logs what the machine asks for.
class BoxHost : public ObjectHost {
 public:
  BoxHost();
  ~BoxHost() override;

  struct Box {
    std::string Name;
    std::int64_t Size = 0;
    std::map<std::int64_t, std::string> Items;
    EventHook Hook;
  };

  ObjectId Create(ClassId, std::string_view name, int index) override;
  bool Get(ObjectId object, MemberId member, std::span<const Value> index, Value& out) override;
  bool Set(ObjectId object, MemberId member, std::span<const Value> index,
           const Value& in) override;
  bool Call(ObjectId object, MemberId method, std::span<Value> arguments, Value& result) override;
  bool Hook(ObjectId object, MemberId, const EventHook& hook) override;
  bool Assign(ObjectId to, ObjectId from) override;
  void EndOfLocal(ObjectId object) override;
  ObjectId BuiltIn(ClassId) override;
  bool PumpEvents(int) override { return false; }
  [[nodiscard]] std::string_view Reason() const override { return "There is no such box"; }

  EventSink* Sink = nullptr;
  std::string Log;
  std::map<std::uint64_t, Box> Boxes;

 private:
  Box* Find(ObjectId object);

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
BoxRun RunBoxes(const std::string& text, Dispatch how = Dispatch::Threaded);

}  // namespace tarnwick::basic::test
