// Records and objects of variables.
#include "basic/vm/machine_state.h"
#include "basic/vm/variants.h"

namespace tarnwick::basic {
namespace {

/// TYPEs inside each other at most.
constexpr int kDeepestRecord = 50;

}  // namespace

bool MachineState::MakeObject(Slot& variable, const FieldLayout& layout, int index, bool local) {
  if (variable.I != 0 || layout.AnyClass) return true;
  if (!NeedObjects()) return false;
  const ObjectId object = Host.Objects->Create(layout.Class, layout.Name, index);
  if (Ending) return false;
  if (object == ObjectId::None) return Fail(std::string(Host.Objects->Reason()));
  variable = ObjectSlot(object);
  if (local) LocalObjects.push_back(object);
  return true;
}

bool MachineState::MakeStart(Slot& variable, const FieldLayout& layout, SlotKind kind, int index,
                             bool local, int depth) {
  switch (kind) {
    case SlotKind::Object:
      return MakeObject(variable, layout, index, local);
    case SlotKind::Record: {
      RecordBody* const record = MakeRecord(*layout.Record, layout.Name, index, local, depth + 1);
      variable.B = record;
      return record != nullptr;
    }
    case SlotKind::Array: {
      auto* const array = new ArrayBody(layout);
      variable.B = array;
      array->Grows = layout.Bounds.empty();
      return array->Grows || FillArray(*array, layout.Bounds, false, local);
    }
    default:
      return true;
  }
}

RecordBody* MachineState::MakeRecord(const RecordLayout& layout, std::string_view name, int index,
                                     bool local, int depth) {
  if (depth > kDeepestRecord) {
    Fail("The TYPE " + layout.Name + " contains itself");
    return nullptr;
  }
  auto* const record = new RecordBody(layout);
  for (std::size_t i = 0; i < layout.Fields.size(); ++i) {
    FieldLayout named;
    const FieldLayout* field = &layout.Fields[i];
    if (i == 0 && layout.HasObject) {
      // The object of the TYPE goes by the name of the variable.
      named = *field;
      named.Name = name;
      field = &named;
    }
    if (!MakeStart(record->Fields[i], *field, field->Kind, i == 0 ? index : -1, local, depth)) {
      Release(record);
      return nullptr;
    }
  }
  if (layout.HasObject) {
    const auto object = static_cast<ObjectId>(record->Fields[0].I);
    if (RecordOfObject.try_emplace(object, record).second) Retain(record);
  }
  if (layout.Constructor != ProcedureId{}) {
    std::vector<Value> arguments{Value::OfSlot(SlotKind::Record, Slot{.B = record})};
    if (!Invoke(layout.Constructor, arguments)) {
      arguments.clear();
      Release(record);
      return nullptr;
    }
  }
  return record;
}

bool MachineState::MakeRecordAt(Slot& variable, const FieldLayout& layout, bool local) {
  if (variable.B != nullptr) return true;
  // The constructor may already name the variable: it gets its record in the end, so what runs
  // meanwhile works on the record it is handed.
  RecordBody* const record = MakeRecord(*layout.Record, layout.Name, -1, local, 0);
  if (record == nullptr) return false;
  Release(variable.B);
  variable.B = record;
  return true;
}

bool MachineState::OperateVariants(const Instruction* operation) {
  std::string error;
  const Value value =
      VariantOperation(static_cast<BinaryOperator>(operation[1].A), Content(Base()[operation->B].B),
                       Content(Base()[operation->C].B), error);
  if (!error.empty()) return Fail(std::move(error));
  if (value.View().size() > Options.TextLimit) return Fail("The text is longer than the limit");
  const Slot box = Boxed(value).Give();
  Slot& target = Base()[operation->A];
  Release(target.B);
  target = box;
  return true;
}

bool MachineState::CopyRecord(Body* to, Body* from) {
  if (to == nullptr || from == nullptr) return Fail("A record is used before its DIM");
  if (to == from) return true;
  auto& target = *static_cast<RecordBody*>(to);
  const auto& source = *static_cast<RecordBody*>(from);
  if (target.Layout != source.Layout) return Fail("The records are of different TYPEs");
  for (std::size_t i = 0; i < target.Fields.size(); ++i) {
    const SlotKind kind = target.Layout->Fields[i].Kind;
    // Each object stays its own record's.
    if (i == 0 && target.Layout->HasObject) continue;
    if (kind == SlotKind::Record) {
      if (!CopyRecord(target.Fields[i].B, source.Fields[i].B)) return false;
      continue;
    }
    if (kind == SlotKind::Variant) {
      const Slot copy = Boxed(Content(source.Fields[i].B)).Give();
      Release(target.Fields[i].B);
      target.Fields[i] = copy;
      continue;
    }
    if (IsCounted(kind)) {
      Retain(source.Fields[i].B);
      Release(target.Fields[i].B);
    }
    target.Fields[i] = source.Fields[i];
  }
  return true;
}

}  // namespace tarnwick::basic
