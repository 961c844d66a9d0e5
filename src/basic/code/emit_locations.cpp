// Locations: variables, elements, fields; reading, writing and referring to them.
#include "basic/code/procedure_emitter.h"

namespace tarnwick::basic {
namespace {

/// True for an element of an array of bytes.
bool IsByte(const Location& location) {
  return location.Array->Kind.Kind == Storage::Byte;
}

}  // namespace

std::optional<std::uint16_t> ProcedureEmitter::DirectRegister(const Expression& location) const {
  if (const auto* const global = location.As<GlobalSlot>()) {
    if (IsMain()) return static_cast<std::uint16_t>(global->Index);
  }
  if (const auto* const local = location.As<LocalSlot>()) {
    if (!IsReference(local->Index)) return LocalRegister(local->Index);
  }
  return std::nullopt;
}

Operand ProcedureEmitter::ArrayOperand(const Expression& array) {
  if (const auto direct = DirectRegister(array)) return {*direct, Operand::Kind::Fixed};
  if (const auto* const global = array.As<GlobalSlot>()) {
    // The array of a variable of the program stays the same body once it is made: it is borrowed.
    const Operand borrowed = Temporary(false);
    code_.Add(Op::GET_GLOBAL, borrowed.Register, global->Index);
    return borrowed;
  }
  Operand operand = Temporary(true);
  Location location = Find(array, Until::Now);
  ReadLocation(location, array.Kind, operand.Register);
  Release(location);
  operand.Hold = Operand::Kind::Shared;
  return operand;
}

Operand ProcedureEmitter::RecordOperand(const Expression& record) {
  if (const auto direct = DirectRegister(record)) return {*direct, Operand::Kind::Fixed};
  if (const auto* const global = record.As<GlobalSlot>()) {
    const Operand borrowed = Temporary(false);
    code_.Add(Op::GET_GLOBAL, borrowed.Register, global->Index);
    return borrowed;
  }
  Operand operand = Temporary(true);
  operand.Hold = Operand::Kind::Shared;
  Into(record, operand.Register);
  return operand;
}

Location ProcedureEmitter::FindElement(const ArrayElement& node, Until until) {
  Location location;
  location.Array = node.Array;
  std::vector<Operand> indexes = ReadAll(node.Indexes);
  if (until == Until::Later) {
    // The indexes are kept apart from their variables.
    for (Operand& index : indexes) {
      if (index.Hold != Operand::Kind::Fixed) continue;
      const Operand copy = Temporary(false);
      code_.Add(Op::MOVE, copy.Register, index.Register);
      index = copy;
    }
  }
  if (indexes.size() <= 2) {
    location.Form = indexes.size() == 1 ? Location::Kind::Element : Location::Kind::Element2;
    location.First = indexes[0];
    if (indexes.size() == 2) location.Second = indexes[1];
    return location;
  }
  const Operand array = ArrayOperand(*node.Array);
  location.Form = Location::Kind::Address;
  location.Keeper = Temporary(true);
  code_.Add(Op::KEEP, location.Keeper.Register, array.Register);
  location.Base = Temporary(false);
  code_.Add(Op::REF_ELEMENTS, location.Base.Register, array.Register);
  CallShape shape;
  std::vector<std::uint16_t> registers;
  for (const Operand& index : indexes) {
    shape.Arguments.push_back({SlotKind::Integer, Storage::Whole, false});
    registers.push_back(index.Register);
  }
  code_.Arguments(shape, registers);
  Free(indexes);
  Free(array);
  return location;
}

Location ProcedureEmitter::Find(const Expression& expression, Until until) {
  Location location;
  if (const auto direct = DirectRegister(expression)) {
    location.Index = *direct;
    return location;
  }
  if (const auto* const global = expression.As<GlobalSlot>()) {
    location.Form = Location::Kind::Global;
    location.Index = global->Index;
  } else if (const auto* const local = expression.As<LocalSlot>()) {
    location.Form = Location::Kind::Reference;
    location.Base = {LocalRegister(local->Index), Operand::Kind::Fixed};
  } else if (const auto* const element = expression.As<ArrayElement>()) {
    return FindElement(*element, until);
  } else if (const auto* const field = expression.As<RecordField>()) {
    location.Form = Location::Kind::Field;
    location.Index = field->Field;
    location.Base = RecordOperand(*field->Record);
  }
  return location;
}

void ProcedureEmitter::Release(Location& location) {
  Free(location.Base);
  Free(location.First);
  Free(location.Second);
  if (location.Keeper.Hold == Operand::Kind::Counted) {
    code_.Add(Op::CLEAR_C, location.Keeper.Register);
  }
  Free(location.Keeper);
}

void ProcedureEmitter::ReadLocation(const Location& location, const Type& type,
                                    std::uint16_t target) {
  const bool counted = IsCounted(type);
  switch (location.Form) {
    case Location::Kind::Register:
      code_.Add(counted ? Op::MOVE_C : Op::MOVE, target, location.Index);
      break;
    case Location::Kind::Global:
      code_.Add(counted ? Op::GET_GLOBAL_C : Op::GET_GLOBAL, target, location.Index);
      break;
    case Location::Kind::Reference:
    case Location::Kind::Address:
      code_.Add(counted ? Op::GET_REF_C : Op::GET_REF, target, location.Base.Register);
      break;
    case Location::Kind::Element: {
      const Operand array = ArrayOperand(*location.Array);
      const Op op = counted ? Op::GET_ELEMENT_C : IsByte(location) ? Op::GET_BYTE : Op::GET_ELEMENT;
      code_.Add(op, target, array.Register, location.First.Register);
      Free(array);
      break;
    }
    case Location::Kind::Element2: {
      const Operand array = ArrayOperand(*location.Array);
      if (counted) {
        const Operand address = Temporary(false);
        code_.Add(Op::REF_ELEMENT2, address.Register, array.Register, location.First.Register);
        code_.Add(Op::WORD, location.Second.Register);
        code_.Add(Op::GET_REF_C, target, address.Register);
        Free(address);
      } else {
        code_.Add(Op::GET_ELEMENT2, target, array.Register, location.First.Register);
        code_.Add(Op::WORD, location.Second.Register);
      }
      Free(array);
      break;
    }
    case Location::Kind::Field:
      code_.Add(counted ? Op::GET_FIELD_C : Op::GET_FIELD, target, location.Base.Register,
                location.Index);
      break;
  }
}

void ProcedureEmitter::WriteLocation(const Location& location, const Type& type,
                                     const Operand& value) {
  const bool counted = IsCounted(type);
  const std::uint16_t from = value.Register;
  switch (location.Form) {
    case Location::Kind::Register:
      if (counted && value.Hold == Operand::Kind::Counted) {
        code_.Add(Op::TAKE_C, location.Index, from);
      } else {
        code_.Add(counted ? Op::MOVE_C : Op::MOVE, location.Index, from);
      }
      break;
    case Location::Kind::Global:
      if (counted && value.Hold == Operand::Kind::Counted) {
        code_.Add(Op::TAKE_GLOBAL_C, location.Index, from);
      } else {
        code_.Add(counted ? Op::SET_GLOBAL_C : Op::SET_GLOBAL, location.Index, from);
      }
      break;
    case Location::Kind::Reference:
    case Location::Kind::Address:
      code_.Add(counted ? Op::SET_REF_C : Op::SET_REF, location.Base.Register, from);
      break;
    case Location::Kind::Element: {
      const Operand array = ArrayOperand(*location.Array);
      const Op op = counted ? Op::SET_ELEMENT_C : IsByte(location) ? Op::SET_BYTE : Op::SET_ELEMENT;
      code_.Add(op, array.Register, location.First.Register, from);
      Free(array);
      break;
    }
    case Location::Kind::Element2: {
      const Operand array = ArrayOperand(*location.Array);
      if (counted) {
        const Operand address = Temporary(false);
        code_.Add(Op::REF_ELEMENT2, address.Register, array.Register, location.First.Register);
        code_.Add(Op::WORD, location.Second.Register);
        code_.Add(Op::SET_REF_C, address.Register, from);
        Free(address);
      } else {
        code_.Add(Op::SET_ELEMENT2, array.Register, location.First.Register,
                  location.Second.Register);
        code_.Add(Op::WORD, from);
      }
      Free(array);
      break;
    }
    case Location::Kind::Field:
      code_.Add(counted ? Op::SET_FIELD_C : Op::SET_FIELD, location.Base.Register, location.Index,
                from);
      break;
  }
  // What a temporary gave to a variable that was not taken over must not hold the text back from
  // growing in place.
  if (counted && value.Hold == Operand::Kind::Counted &&
      location.Form != Location::Kind::Register && location.Form != Location::Kind::Global) {
    code_.Add(Op::CLEAR_C, from);
  }
}

Operand ProcedureEmitter::AddressOfLocation(Location& location) {
  const Operand address = Temporary(false);
  switch (location.Form) {
    case Location::Kind::Register:
      code_.Add(Op::REF_LOCAL, address.Register, location.Index);
      break;
    case Location::Kind::Global:
      code_.Add(Op::REF_GLOBAL, address.Register, location.Index);
      break;
    case Location::Kind::Reference:
    case Location::Kind::Address:
      code_.Add(Op::MOVE, address.Register, location.Base.Register);
      break;
    case Location::Kind::Element:
    case Location::Kind::Element2: {
      const Operand array = ArrayOperand(*location.Array);
      const bool second = location.Form == Location::Kind::Element2;
      code_.Add(second ? Op::REF_ELEMENT2 : Op::REF_ELEMENT, address.Register, array.Register,
                location.First.Register);
      if (second) code_.Add(Op::WORD, location.Second.Register);
      // Behind the reference: that may have made a growing array longer.
      location.Keeper = Temporary(true);
      code_.Add(Op::KEEP, location.Keeper.Register, array.Register);
      Free(array);
      break;
    }
    case Location::Kind::Field:
      code_.Add(Op::REF_FIELD, address.Register, location.Base.Register, location.Index);
      break;
  }
  return address;
}

void ProcedureEmitter::Store(const GlobalSlot& /*node*/, const Expression& whole,
                             std::uint16_t target) {
  const Location location = Find(whole, Until::Now);
  ReadLocation(location, whole.Kind, target);
}

void ProcedureEmitter::Store(const LocalSlot& /*node*/, const Expression& whole,
                             std::uint16_t target) {
  const Location location = Find(whole, Until::Now);
  ReadLocation(location, whole.Kind, target);
}

void ProcedureEmitter::Store(const ArrayElement& /*node*/, const Expression& whole,
                             std::uint16_t target) {
  Location location = Find(whole, Until::Now);
  ReadLocation(location, whole.Kind, target);
  Release(location);
}

void ProcedureEmitter::Store(const RecordField& /*node*/, const Expression& whole,
                             std::uint16_t target) {
  Location location = Find(whole, Until::Now);
  ReadLocation(location, whole.Kind, target);
  Release(location);
}

}  // namespace tarnwick::basic
