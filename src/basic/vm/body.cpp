#include "basic/vm/body.h"

namespace tarnwick::basic {
namespace {

void DestroyElements(ElementsBody* elements) {
  if (IsCounted(elements->Element)) {
    for (const Slot slot : elements->Slots) Release(slot.B);
  }
  if (elements->InUse != nullptr) *elements->InUse -= elements->Size();
  delete elements;
}

void DestroyRecord(RecordBody* record) {
  for (std::size_t i = 0; i < record->Fields.size(); ++i) {
    if (IsCounted(record->Layout->Fields[i].Kind)) Release(record->Fields[i].B);
  }
  delete record;
}

}  // namespace

void NeedSlots(ArrayBody& array) {
  if (array.FirstByte == nullptr) return;
  ElementsBody& elements = *array.Elements;
  elements.Slots.reserve(elements.Bytes.size());
  for (const std::uint8_t byte : elements.Bytes) elements.Slots.push_back(IntegerSlot(byte));
  elements.Bytes = {};
  array.First = elements.Slots.data();
  array.FirstByte = nullptr;
  array.Rank = 1;
}

void Destroy(Body* body) {
  switch (body->Kind) {
    case SlotKind::Text:
      delete static_cast<TextBody*>(body);
      break;
    case SlotKind::Array:
      Release(static_cast<ArrayBody*>(body)->Elements);
      delete static_cast<ArrayBody*>(body);
      break;
    case SlotKind::Elements:
      DestroyElements(static_cast<ElementsBody*>(body));
      break;
    case SlotKind::Record:
      DestroyRecord(static_cast<RecordBody*>(body));
      break;
    case SlotKind::Variant: {
      auto* const variant = static_cast<VariantBody*>(body);
      if (IsCounted(variant->Held)) Release(variant->Content.B);
      delete variant;
      break;
    }
    case SlotKind::Empty:
    case SlotKind::Integer:
    case SlotKind::Number:
    case SlotKind::Object:
      break;  // no bodies
  }
}

}  // namespace tarnwick::basic
