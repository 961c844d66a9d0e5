#include "objects/object_world.h"

#include <algorithm>

#include "basic/semantics.h"
#include "objects/behaviour.h"

namespace tarnwick::objects {

using basic::ClassId;
using basic::MemberId;
using basic::MemberKind;
using basic::Storage;

namespace {

ObjectId IdOf(std::size_t cell, std::uint32_t generation) {
  return static_cast<ObjectId>((static_cast<std::uint64_t>(generation) << 32U) |
                               static_cast<std::uint64_t>(cell + 1));
}

/// The values of a new object of each class, made once.
const std::vector<Value>& StartValues(ClassId kind) {
  static const auto kAll = [] {
    std::vector<std::vector<Value>> all;
    for (const ClassInfo& row : ClassRows()) {
      std::vector<Value>& values = all.emplace_back(row.PropertyCount);
      for (const MemberInfo& member : row.Members) {
        if (member.Facts.Kind != MemberKind::Property) continue;
        Value& value = values[member.Slot];
        switch (basic::KindOf(member.Facts.Value)) {
          case basic::ValueKind::Text:
            value = Value::Text(std::string(member.DefaultText));
            break;
          case basic::ValueKind::Real:
            value = Value::Number(static_cast<double>(member.DefaultNumber));
            break;
          case basic::ValueKind::Whole:
            value = Value::Integer(member.DefaultNumber);
            break;
          default:
            break;
        }
      }
    }
    return all;
  }();
  return kAll[static_cast<std::size_t>(kind) - 1];
}

/// A value as a property of that type keeps it.
Value Fitted(const MemberInfo& member, const Value& in) {
  if (member.Truth) return Value::Integer(in.AsTruth() ? 1 : 0);
  switch (member.Facts.Value.Kind) {
    case Storage::Byte:
      return Value::Integer(static_cast<std::uint8_t>(in.AsInteger()));
    case Storage::Word:
      return Value::Integer(static_cast<std::uint16_t>(in.AsInteger()));
    case Storage::Integer:
      return Value::Integer(static_cast<std::int32_t>(in.AsInteger()));
    case Storage::Double:
      return Value::Number(in.AsNumber());
    case Storage::String:
      return in.Kind() == basic::SlotKind::Text ? in : Value::Text(in.AsText());
    case Storage::Object:
      return Value::Object(in.AsObject());
    default:
      return in;
  }
}

bool Same(const Value& a, const Value& b) {
  if (a.Kind() != b.Kind()) return false;
  switch (a.Kind()) {
    case basic::SlotKind::Text:
      return a.View() == b.View();
    case basic::SlotKind::Number:
      return a.AsNumber() == b.AsNumber();
    default:
      return a.Raw().I == b.Raw().I;
  }
}

}  // namespace

ObjectWorld::ObjectWorld(WidgetPort& widgets, basic::FileHost* files, ProgramFacts facts)
    : widgets_(widgets), files_(files), facts_(std::move(facts)) {
  built_in_.resize(ClassRows().size() + 1, ObjectId::None);
}

ObjectWorld::~ObjectWorld() = default;

bool ObjectWorld::Fail(std::string text) {
  reason_ = std::move(text);
  return false;
}

void ObjectWorld::Note(std::string text) {
  if (machine_ != nullptr) machine_->Note(std::move(text));
}

ObjectRecord* ObjectWorld::Find(ObjectId object) {
  const auto number = static_cast<std::uint64_t>(object);
  const std::uint64_t cell = (number & 0xFFFFFFFFU) - 1;
  if (number == 0 || cell >= cells_.size()) return nullptr;
  Cell& found = cells_[cell];
  return found.Generation == number >> 32U ? found.Record.get() : nullptr;
}

const ObjectRecord* ObjectWorld::Find(ObjectId object) const {
  return const_cast<ObjectWorld*>(this)->Find(object);
}

void ObjectWorld::ForEach(const std::function<void(const ObjectRecord& /*object*/)>& use) const {
  std::vector<const ObjectRecord*> records;
  for (const Cell& cell : cells_) {
    if (cell.Record != nullptr) records.push_back(cell.Record.get());
  }
  std::sort(records.begin(), records.end(),
            [](const ObjectRecord* a, const ObjectRecord* b) { return a->Order < b->Order; });
  for (const ObjectRecord* const record : records) use(*record);
}

ObjectId ObjectWorld::Create(ClassId kind, std::string_view name, int index) {
  std::size_t cell = cells_.size();
  if (free_cells_.empty()) {
    cells_.emplace_back();
  } else {
    cell = free_cells_.back();
    free_cells_.pop_back();
  }
  const ClassInfo& info = InfoOf(kind);
  auto record = std::make_unique<ObjectRecord>();
  record->Id = IdOf(cell, cells_[cell].Generation);
  record->Order = ++made_;
  record->Class = kind;
  record->Name = name;
  record->Index = index;
  record->Values = StartValues(kind);
  record->Hooks.resize(info.EventCount);
  record->State = StartStateOf(kind);
  cells_[cell].Record = std::move(record);
  ObjectRecord& made = *cells_[cell].Record;
  if (info.Has(ClassFlag::BuiltIn)) made.Realised = true;
  if (info.Has(ClassFlag::AtOnce)) {
    made.Realised = true;
    widgets_.Realise(made);
  }
  return made.Id;
}

ObjectId ObjectWorld::BuiltIn(ClassId kind) {
  ObjectId& known = built_in_[static_cast<std::size_t>(kind)];
  if (known == ObjectId::None) {
    known = Create(kind, InfoOf(kind).Name, -1);
    ObjectRecord& made = *Find(known);
    made.Put(Word::ExeName, Value::Text(facts_.ExeName));
    made.Put(Word::Title, Value::Text(facts_.Title));
    const std::size_t folder = facts_.ExeName.rfind('\\');
    made.Put(Word::Path, Value::Text(facts_.ExeName.substr(0, folder + 1)));
  }
  return known;
}

const MemberInfo* ObjectWorld::Use(ObjectId object, MemberId member, ObjectRecord*& record) {
  record = Find(object);
  if (record == nullptr) {
    Fail(object == ObjectId::None ? "The variable holds no object"
                                  : "The object is there no longer: it was freed");
    return nullptr;
  }
  return &record->Info().At(member);
}

bool ObjectWorld::Get(ObjectId object, MemberId member, std::span<const Value> index, Value& out) {
  ObjectRecord* record = nullptr;
  const MemberInfo* const info = Use(object, member, record);
  if (info == nullptr) return false;
  const Behaviour& behaviour = BehaviourOf(record->Class, member);
  if (behaviour.Get != nullptr) return behaviour.Get(*this, *record, *info, index, out);
  out = record->Values[info->Slot];
  return true;
}

bool ObjectWorld::Set(ObjectId object, MemberId member, std::span<const Value> index,
                      const Value& in) {
  ObjectRecord* record = nullptr;
  const MemberInfo* const info = Use(object, member, record);
  if (info == nullptr) return false;
  const Behaviour& behaviour = BehaviourOf(record->Class, member);
  if (behaviour.Set != nullptr) return behaviour.Set(*this, *record, *info, index, in);
  if (info->Facts.Kind == MemberKind::Property) Change(*record, *info, in, Origin::Code);
  return true;
}

bool ObjectWorld::Call(ObjectId object, MemberId method, std::span<Value> arguments,
                       Value& result) {
  ObjectRecord* record = nullptr;
  const MemberInfo* const info = Use(object, method, record);
  if (info == nullptr) return false;
  const Behaviour& behaviour = BehaviourOf(record->Class, method);
  return behaviour.Call != nullptr ? behaviour.Call(*this, *record, *info, arguments, result)
                                   : WidgetMethod(*this, *record, *info, arguments, result);
}

bool ObjectWorld::Hook(ObjectId object, MemberId event, const basic::EventHook& hook) {
  ObjectRecord* record = nullptr;
  const MemberInfo* const info = Use(object, event, record);
  if (info == nullptr) return false;
  record->Hooks[info->Slot] = hook;
  return true;
}

bool ObjectWorld::Assign(ObjectId to, ObjectId from) {
  ObjectRecord* const target = Find(to);
  const ObjectRecord* const source = Find(from);
  if (target == nullptr || source == nullptr) return Fail("The variable holds no object");
  if (target->Class != source->Class) {
    return Fail("A " + std::string(source->Info().Name) + " cannot be copied into a " +
                std::string(target->Info().Name));
  }
  if (target == source || target->Values.empty()) return true;
  target->Values = source->Values;
  Show(*target, Word::Name);
  return true;
}

void ObjectWorld::EndOfLocal(ObjectId object) {
  const ObjectRecord* const record = Find(object);
  if (record != nullptr && record->Parent == ObjectId::None) Free(object);
}

bool ObjectWorld::Change(ObjectRecord& object, const MemberInfo& member, const Value& value,
                         Origin origin) {
  Value fitted = Fitted(member, value);
  Value& kept = object.Values[member.Slot];
  if (Same(kept, fitted)) return false;
  kept = std::move(fitted);
  if (object.Realised && origin == Origin::Code) widgets_.Apply(object, member);
  const Behaviour& behaviour = BehaviourOf(object.Class, member.Facts.Id);
  if (behaviour.Changed != nullptr) behaviour.Changed(*this, object, member, origin);
  return true;
}

bool ObjectWorld::Change(ObjectRecord& object, Word property, const Value& value, Origin origin) {
  const MemberInfo* const member = object.Info().Find(property);
  return member != nullptr && member->Facts.Kind == MemberKind::Property &&
         Change(object, *member, value, origin);
}

void ObjectWorld::Show(const ObjectRecord& object, Word property) {
  if (object.Is(ObjectClass::QFont)) {
    const ObjectRecord* const owner = Find(object.Parent);
    if (owner != nullptr) Show(*owner, Word::Font);
    return;
  }
  const MemberInfo* const member = object.Info().Find(property);
  if (object.Realised && member != nullptr) widgets_.Apply(object, *member);
}

void ObjectWorld::ShowItems(const ObjectRecord& list, const ItemsChange& change) {
  if (list.Realised) widgets_.ItemsChanged(list, change);
}

void ObjectWorld::Realise(ObjectRecord& object) {
  // Without recursion, so that a program cannot nest panels until the stack is full.
  std::vector<ObjectId> waiting{object.Id};
  while (!waiting.empty()) {
    ObjectRecord* const next = Find(waiting.back());
    waiting.pop_back();
    if (next == nullptr || next->Realised || !next->Info().Has(ClassFlag::Widget)) continue;
    FillFileList(*this, *next);
    next->Realised = true;
    widgets_.Realise(*next);
    if (next->Is(ObjectClass::QLabel)) FitText(*this, *next);
    // The last one waits longest.
    const std::vector<ObjectId> children(next->Children.rbegin(), next->Children.rend());
    for (const ObjectId child : children) {
      const ObjectRecord* const record = Find(child);
      if (record != nullptr && !record->Info().Has(ClassFlag::Window)) waiting.push_back(child);
    }
  }
  RealiseMenu(*this, object);
}

bool ObjectWorld::SetParent(ObjectRecord& object, ObjectId parent) {
  ObjectRecord* const target = Find(parent);
  if (target != nullptr && !target->Info().Has(ClassFlag::Parent)) {
    return Fail("A " + std::string(target->Info().Name) + " cannot be a parent");
  }
  for (const ObjectRecord* up = target; up != nullptr; up = Find(up->Parent)) {
    if (up == &object) return Fail("An object cannot be its own parent");
  }
  if (object.Parent == (target == nullptr ? ObjectId::None : parent)) return true;
  if (ObjectRecord* const before = Find(object.Parent)) std::erase(before->Children, object.Id);
  object.Parent = target == nullptr ? ObjectId::None : parent;
  object.Put(Word::Parent, Value::Object(object.Parent));
  if (target != nullptr) target->Children.push_back(object.Id);
  if (object.Realised) {
    Show(object, Word::Parent);
  } else if (target != nullptr && target->Realised && !object.Info().Has(ClassFlag::Window)) {
    Realise(object);
  }
  return true;
}

ObjectRecord& ObjectWorld::OwnFont(ObjectRecord& object) {
  const ObjectId known = object.Object(Word::Font);
  if (ObjectRecord* const font = Find(known)) return *font;
  const ObjectId made =
      Create(static_cast<ClassId>(ObjectClass::QFont), object.FullName() + ".Font", -1);
  // Records stay where they are: only the list of cells may have moved.
  object.Put(Word::Font, Value::Object(made));
  ObjectRecord& font = *Find(made);
  font.Parent = object.Id;
  return font;
}

FontValues ObjectWorld::FontOf(const ObjectRecord& object) const {
  FontValues values;
  const ObjectRecord* const font =
      object.Is(ObjectClass::QFont) ? &object : Find(object.Object(Word::Font));
  if (font == nullptr) return values;
  values.Name = font->Text(Word::Name);
  values.Size = font->Number(Word::Size);
  values.Color = font->Number(Word::Color);
  values.Bold = font->Truth(Word::Bold);
  values.Italic = font->Truth(Word::Italic);
  values.Underline = font->Truth(Word::Underline);
  values.StrikeOut = font->Truth(Word::StrikeOut);
  return values;
}

void ObjectWorld::Free(ObjectId object) {
  std::vector<ObjectId> going{object};
  for (std::size_t i = 0; i < going.size(); ++i) {
    const ObjectRecord* const record = Find(going[i]);
    if (record == nullptr) continue;
    going.insert(going.end(), record->Children.begin(), record->Children.end());
    const ObjectId font = record->Object(Word::Font);
    const ObjectRecord* const own = Find(font);
    if (own != nullptr && own->Parent == record->Id) going.push_back(font);
  }
  if (const ObjectRecord* const record = Find(object)) {
    if (ObjectRecord* const parent = Find(record->Parent)) std::erase(parent->Children, object);
  }
  for (const ObjectId id : going) LeaveMenus(*this, id);
  // What stands on a widget goes before it.
  std::reverse(going.begin(), going.end());
  for (const ObjectId id : going) {
    const ObjectRecord* const record = Find(id);
    if (record == nullptr) continue;
    if (record->Info().Has(ClassFlag::Window) && record->Truth(Word::Visible)) FormVisible(false);
    if (record->Realised || record->Drawn) widgets_.Destroy(id);
    const std::uint64_t cell = (static_cast<std::uint64_t>(id) & 0xFFFFFFFFU) - 1;
    cells_[cell].Record.reset();
    ++cells_[cell].Generation;
    free_cells_.push_back(static_cast<std::uint32_t>(cell));
  }
}

std::string_view ObjectWorld::ResourceFile(std::int64_t handle) const {
  const std::int64_t index = handle - basic::kFirstResource;
  if (index < 0 || index >= static_cast<std::int64_t>(facts_.Resources.size())) return {};
  return facts_.Resources[static_cast<std::size_t>(index)];
}

const ObjectRecord* ObjectWorld::FormOf(const ObjectRecord& object) const {
  const ObjectRecord* up = &object;
  while (up != nullptr && !up->Is(ObjectClass::QForm)) up = Find(up->Parent);
  return up;
}

}  // namespace tarnwick::objects
