#include "objects/object_record.h"

namespace tarnwick::objects {
namespace {

const Value kNothing;

}  // namespace

const Value& ObjectRecord::At(Word property) const {
  const MemberInfo* const member = Info().Find(property);
  if (member == nullptr || member->Facts.Kind != basic::MemberKind::Property) return kNothing;
  return Values[member->Slot];
}

bool ObjectRecord::IsHooked(Word event) const {
  const MemberInfo* const member = Info().Find(event);
  return member != nullptr && member->Facts.Kind == basic::MemberKind::Event &&
         Hooks[member->Slot].Procedure != basic::ProcedureId{};
}

std::string ObjectRecord::FullName() const {
  return Index < 0 ? Name : Name + "(" + std::to_string(Index) + ")";
}

void ObjectRecord::Put(Word property, Value value) {
  const MemberInfo* const member = Info().Find(property);
  if (member == nullptr || member->Facts.Kind != basic::MemberKind::Property) return;
  Values[member->Slot] = std::move(value);
}

}  // namespace tarnwick::objects
