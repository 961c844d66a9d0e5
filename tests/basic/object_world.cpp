#include "basic/object_world.h"

namespace tarnwick::basic::test {

BoxHost::BoxHost() = default;

BoxHost::~BoxHost() = default;

BoxCatalog::BoxCatalog() {
  Add(Size, "Size", MemberKind::Property, kWholeType, {});
  Add(Item, "Item", MemberKind::ArrayProperty, kTextType, {{kWholeType, false}});
  Add(Fill, "Fill", MemberKind::Method, kNoType, {{kWholeType, true}});
  Add(Fire, "Fire", MemberKind::Method, kNoType, {{kWholeType, false}});
  Add(OnFire, "OnFire", MemberKind::Event, kNoType, {{kWholeType, false}});
  Add(Twice, "Twice", MemberKind::Method, kWholeType, {{kWholeType, false}});
}

BoxCatalog::~BoxCatalog() = default;

std::optional<ClassId> BoxCatalog::FindClass(std::string_view name) const {
  if (!EqualsFolded(name, "QBOX")) return std::nullopt;
  return ClassId{};
}

const MemberFacts* BoxCatalog::FindMember(ClassId, std::string_view name) const {
  for (const MemberFacts& facts : members_) {
    if (EqualsFolded(facts.Name, name)) return &facts;
  }
  return nullptr;
}

std::optional<ClassId> BoxCatalog::FindBuiltInObject(std::string_view name) const {
  if (!EqualsFolded(name, "Screen")) return std::nullopt;
  return ClassId{};
}

void BoxCatalog::Add(Member id, std::string_view name, MemberKind kind, Type value,
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

ObjectId BoxHost::Create(ClassId, std::string_view name, int index) {
  Boxes[++last_] = {};
  Boxes[last_].Name = std::string(name) + (index < 0 ? "" : std::to_string(index));
  Log += "make " + Boxes[last_].Name + "\n";
  return static_cast<ObjectId>(last_);
}

bool BoxHost::Get(ObjectId object, MemberId member, std::span<const Value> index, Value& out) {
  Box* const box = Find(object);
  if (box == nullptr) return false;
  out = member == static_cast<MemberId>(BoxCatalog::Size)
            ? Value::Integer(box->Size)
            : Value::Text(box->Items[index[0].AsInteger()]);
  return true;
}

bool BoxHost::Set(ObjectId object, MemberId member, std::span<const Value> index, const Value& in) {
  Box* const box = Find(object);
  if (box == nullptr) return false;
  if (member == static_cast<MemberId>(BoxCatalog::Size)) {
    box->Size = in.AsInteger();
  } else {
    box->Items[index[0].AsInteger()] = in.AsText();
  }
  return true;
}

bool BoxHost::Call(ObjectId object, MemberId method, std::span<Value> arguments, Value& result) {
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

bool BoxHost::Hook(ObjectId object, MemberId, const EventHook& hook) {
  Box* const box = Find(object);
  if (box == nullptr) return false;
  box->Hook = hook;
  return true;
}

bool BoxHost::Assign(ObjectId to, ObjectId from) {
  Box* const target = Find(to);
  Box* const source = Find(from);
  if (target == nullptr || source == nullptr) return false;
  target->Size = source->Size;
  return true;
}

void BoxHost::EndOfLocal(ObjectId object) {
  Box* const box = Find(object);
  if (box != nullptr) Log += "free " + box->Name + "\n";
  Boxes.erase(static_cast<std::uint64_t>(object));
}

ObjectId BoxHost::BuiltIn(ClassId) {
  if (screen_ == ObjectId::None) screen_ = Create({}, "Screen", -1);
  return screen_;
}

BoxHost::Box* BoxHost::Find(ObjectId object) {
  const auto found = Boxes.find(static_cast<std::uint64_t>(object));
  return found == Boxes.end() ? nullptr : &found->second;
}

BoxRun RunBoxes(const std::string& text, Dispatch how) {
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
