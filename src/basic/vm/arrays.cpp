// Arrays: elements by index, DIM and REDIM, sorting.
#include <algorithm>
#include <cmath>
#include <limits>

#include "basic/vm/machine_state.h"
#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

std::string NameOf(const ArrayBody& array) {
  return array.Layout->Name.empty() ? "the array" : array.Layout->Name;
}

/// Brings the copies for quick access in step with bounds and elements.
void SetQuickAccess(ArrayBody& array) {
  const bool empty = array.Elements == nullptr || array.Bounds.empty();
  const bool bytes = !empty && !array.Elements->Bytes.empty();
  array.First = empty || bytes ? nullptr : array.Elements->Slots.data();
  array.Rank = array.First == nullptr ? 0 : array.Bounds.size();
  array.FirstByte = bytes ? array.Elements->Bytes.data() : nullptr;
  array.Low = empty ? 0 : array.Bounds[0].Low;
  array.Length = empty ? 0 : static_cast<std::uint64_t>(array.Bounds[0].Length());
  const bool second = !empty && array.Bounds.size() > 1;
  array.Low2 = second ? array.Bounds[1].Low : 0;
  array.Length2 = second ? static_cast<std::uint64_t>(array.Bounds[1].Length()) : 1;
}

/// Number of elements; nothing when there are more than fit into an address.
std::optional<std::size_t> CountOf(const std::vector<Bound>& bounds) {
  std::size_t count = 1;
  for (const Bound& bound : bounds) {
    if (bound.High < bound.Low) return 0;
    const auto length =
        static_cast<std::uint64_t>(bound.High) - static_cast<std::uint64_t>(bound.Low) + 1;
    if (length == 0 || length > kMostArraySlots || count > kMostArraySlots / length) {
      return std::nullopt;
    }
    count *= static_cast<std::size_t>(length);
  }
  return count;
}

/// Moves the elements whose indexes are in both arrays from the old to the new ones.
void MoveOverlap(const std::vector<Bound>& old_bounds, ElementsBody& from,
                 const std::vector<Bound>& new_bounds, ElementsBody& to) {
  if (old_bounds.size() != new_bounds.size() || from.Slots.empty() || to.Slots.empty()) return;
  const std::size_t dimensions = old_bounds.size();
  std::vector<std::int64_t> index(dimensions);
  for (std::size_t d = 0; d < dimensions; ++d) {
    index[d] = std::max(old_bounds[d].Low, new_bounds[d].Low);
    if (index[d] > std::min(old_bounds[d].High, new_bounds[d].High)) return;
  }
  for (;;) {
    std::size_t source = 0;
    std::size_t target = 0;
    for (std::size_t d = 0; d < dimensions; ++d) {
      source = source * static_cast<std::size_t>(old_bounds[d].Length()) +
               static_cast<std::size_t>(index[d] - old_bounds[d].Low);
      target = target * static_cast<std::size_t>(new_bounds[d].Length()) +
               static_cast<std::size_t>(index[d] - new_bounds[d].Low);
    }
    to.Slots[target] = from.Slots[source];
    if (IsCounted(from.Element)) Retain(to.Slots[target].B);
    std::size_t d = dimensions;
    while (d > 0 && index[d - 1] == std::min(old_bounds[d - 1].High, new_bounds[d - 1].High)) {
      --d;
      index[d] = std::max(old_bounds[d].Low, new_bounds[d].Low);
    }
    if (d == 0) return;
    ++index[d - 1];
  }
}

bool LessSlot(SlotKind kind, Slot a, Slot b) {
  if (kind == SlotKind::Number) {
    // What is no number comes last, so that the order is a strict one.
    return std::isnan(b.D) ? !std::isnan(a.D) : a.D < b.D;
  }
  if (kind == SlotKind::Text) {
    return Value::OfSlot(kind, a).View() < Value::OfSlot(kind, b).View();
  }
  return a.I < b.I;
}

}  // namespace

Slot* MachineState::Element(ArrayBody* array, std::int64_t index) {
  if (array == nullptr) {
    Fail("An array has no elements yet: DIM it first");
    return nullptr;
  }
  if (array->Bounds.size() > 1) {
    Fail(NameOf(*array) + " has " + std::to_string(array->Bounds.size()) + " dimensions");
    return nullptr;
  }
  const std::uint64_t at =
      static_cast<std::uint64_t>(index) - static_cast<std::uint64_t>(array->Low);
  if (at < array->Length) {
    NeedSlots(*array);
    return array->First + at;
  }
  if (array->Grows && index >= 0) {
    if (index >= static_cast<std::int64_t>(Options.ArrayLimit)) {
      Fail("The arrays have more than " +
           IntegerText(static_cast<std::int64_t>(Options.ArrayLimit)) + " elements");
      return nullptr;
    }
    if (!GrowArray(*array, static_cast<std::size_t>(index) + 1)) return nullptr;
    return array->First + index;
  }
  if (array->Length == 0) {
    Fail(NameOf(*array) + " has no elements yet: DIM or REDIM it first");
  } else {
    Fail("Index " + IntegerText(index) + " of " + NameOf(*array) + " is outside " +
         IntegerText(array->Bounds[0].Low) + " TO " + IntegerText(array->Bounds[0].High));
  }
  return nullptr;
}

Slot* MachineState::Element2(ArrayBody* array, std::int64_t first, std::int64_t second) {
  if (array == nullptr || array->Bounds.size() != 2) {
    Fail(array == nullptr ? "An array has no elements yet: DIM it first"
                          : NameOf(*array) + " has no two dimensions yet: DIM or REDIM it first");
    return nullptr;
  }
  const std::uint64_t row =
      static_cast<std::uint64_t>(first) - static_cast<std::uint64_t>(array->Low);
  const std::uint64_t column =
      static_cast<std::uint64_t>(second) - static_cast<std::uint64_t>(array->Low2);
  if (row < array->Length && column < array->Length2) {
    return array->First + row * array->Length2 + column;
  }
  const bool in_first = row >= array->Length;
  const Bound bound = array->Bounds[in_first ? 0 : 1];
  Fail("Index " + IntegerText(in_first ? first : second) + " of " + NameOf(*array) +
       " is outside " + IntegerText(bound.Low) + " TO " + IntegerText(bound.High));
  return nullptr;
}

Slot* MachineState::Elements(const Instruction* words, ArrayBody* array) {
  const std::size_t count = words->B;
  if (array == nullptr || array->Bounds.size() != count) {
    Fail(array == nullptr ? "An array has no elements yet: DIM it first"
                          : NameOf(*array) + " has no " + std::to_string(count) +
                                " dimensions yet: DIM or REDIM it first");
    return nullptr;
  }
  std::size_t at = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::int64_t index = Base()[ArgumentRegister(words + 1, i)].I;
    const Bound bound = array->Bounds[i];
    if (index < bound.Low || index > bound.High) {
      Fail("Index " + IntegerText(index) + " of " + NameOf(*array) + " is outside " +
           IntegerText(bound.Low) + " TO " + IntegerText(bound.High));
      return nullptr;
    }
    at =
        at * static_cast<std::size_t>(bound.Length()) + static_cast<std::size_t>(index - bound.Low);
  }
  return array->First + at;
}

Slot* MachineState::Flat(ArrayBody* array, std::int64_t index) {
  if (array == nullptr || array->Elements == nullptr || array->Grows) return Element(array, index);
  NeedSlots(*array);
  if (index >= 0 && index < static_cast<std::int64_t>(array->Elements->Slots.size())) {
    return array->First + index;
  }
  Fail(NameOf(*array) + " has only " + std::to_string(array->Elements->Slots.size()) + " elements");
  return nullptr;
}

bool MachineState::TakeSlots(std::size_t count) {
  if (count <= Options.ArrayLimit && ArraySlots <= Options.ArrayLimit - count) return true;
  return Fail("The arrays have more than " +
              IntegerText(static_cast<std::int64_t>(Options.ArrayLimit)) + " elements");
}

bool MachineState::StartElements(ElementsBody& elements, const ArrayBody& array, std::size_t from,
                                 bool local) {
  const FieldLayout& layout = *array.Layout;
  if (layout.Element != SlotKind::Record &&
      (layout.Element != SlotKind::Object || layout.AnyClass)) {
    return true;
  }
  const std::int64_t low = array.Bounds.empty() ? 0 : array.Bounds[0].Low;
  // A constructor may give the array other elements meanwhile; these stay until all are made.
  Retain(&elements);
  bool made = true;
  for (std::size_t i = from; i < elements.Slots.size() && made; ++i) {
    if (elements.Slots[i].I != 0) continue;
    const int index = static_cast<int>(low + static_cast<std::int64_t>(i));
    made = MakeStart(elements.Slots[i], layout, layout.Element, index, local, 0);
  }
  Release(&elements);
  return made;
}

bool MachineState::GrowArray(ArrayBody& array, std::size_t count) {
  NeedSlots(array);
  const std::size_t old = array.Elements == nullptr ? 0 : array.Elements->Slots.size();
  if (!TakeSlots(count - old)) return false;
  if (array.Elements == nullptr || array.Elements->Count > 1) {
    // Someone refers to the old elements: they stay as they are.
    auto* const fresh = new ElementsBody(array.Layout->Element);
    if (array.Elements != nullptr) fresh->Slots = array.Elements->Slots;
    if (IsCounted(fresh->Element)) {
      for (const Slot slot : fresh->Slots) Retain(slot.B);
    }
    fresh->InUse = &ArraySlots;
    ArraySlots += fresh->Slots.size();
    Release(array.Elements);
    array.Elements = fresh;
  }
  array.Elements->Slots.resize(count, Slot{0});
  ArraySlots += count - old;
  array.Bounds = {{0, static_cast<std::int64_t>(count) - 1}};
  SetQuickAccess(array);
  return StartElements(*array.Elements, array, old, false);
}

bool MachineState::FillArray(ArrayBody& array, std::vector<Bound> bounds, bool keep, bool local) {
  const std::optional<std::size_t> count = CountOf(bounds);
  if (!count) return TakeSlots(std::numeric_limits<std::size_t>::max());
  if (*count == 0 && !bounds.empty()) {
    for (const Bound& bound : bounds) {
      if (bound.High < bound.Low - 1) {
        return Fail("The highest index " + IntegerText(bound.High) + " of " + NameOf(array) +
                    " is below the lowest, " + IntegerText(bound.Low));
      }
    }
  }
  if (!TakeSlots(*count)) return false;
  auto* const fresh = new ElementsBody(array.Layout->Element);
  fresh->InUse = &ArraySlots;
  const bool moves = keep && array.Elements != nullptr;
  if (moves) NeedSlots(array);
  if (array.Layout->Stored == Storage::Byte && bounds.size() == 1 && !moves) {
    fresh->Bytes.resize(*count);
  } else {
    fresh->Slots.resize(*count, Slot{0});
  }
  ArraySlots += *count;
  if (moves) MoveOverlap(array.Bounds, *array.Elements, bounds, *fresh);
  Release(array.Elements);
  array.Elements = fresh;
  array.Bounds = std::move(bounds);
  array.Grows = false;
  SetQuickAccess(array);
  return StartElements(*fresh, array, 0, local);
}

bool MachineState::MakeArray(const Instruction* make) {
  Slot& variable = *Base()[make->A].R;
  const FieldLayout& layout = *Program.Variables[make->B];
  auto* array = static_cast<ArrayBody*>(variable.B);
  if ((make->C & kOnlyOnce) != 0 && array != nullptr) return true;
  if (array == nullptr) {
    array = new ArrayBody(layout);
    variable.B = array;
  }
  if ((make->C & kArrayGrows) != 0) {
    if (array->Elements == nullptr) array->Grows = true;
    return true;
  }
  std::vector<Bound> bounds;
  for (std::size_t i = 0; i + 1 < make[1].B; i += 2) {
    bounds.push_back(
        {Base()[ArgumentRegister(make + 2, i)].I, Base()[ArgumentRegister(make + 2, i + 1)].I});
  }
  return FillArray(*array, std::move(bounds), (make->C & kArrayKeeps) != 0,
                   (make->C & kLocalVariable) != 0);
}

bool MachineState::NeedArray(const Instruction* need) {
  Slot& variable = *Base()[need->B].R;
  if (variable.B == nullptr) {
    auto* const array = new ArrayBody(*Program.Variables[need->C]);
    array->Grows = true;
    variable.B = array;
  }
  Slot& target = Base()[need->A];
  Retain(variable.B);
  Release(target.B);
  target = variable;
  return true;
}

bool MachineState::GetBound(const Instruction* bound) {
  const auto* const array = static_cast<const ArrayBody*>(Base()[bound->B].B);
  const std::int64_t dimension = Base()[bound->C].I;
  const bool upper = bound[1].A != 0;
  std::int64_t result = 0;
  if (array != nullptr && !array->Bounds.empty()) {
    if (dimension < 1 || dimension > static_cast<std::int64_t>(array->Bounds.size())) {
      return Fail(NameOf(*array) + " has no dimension " + IntegerText(dimension));
    }
    const Bound row = array->Bounds[static_cast<std::size_t>(dimension) - 1];
    result = upper ? row.High : row.Low;
  }
  Base()[bound->A].I = result;
  return true;
}

bool MachineState::ClearArray(ArrayBody* array) {
  if (array == nullptr) return Fail("An array has no elements yet: DIM it first");
  if (array->Elements == nullptr) return true;
  NeedSlots(*array);
  for (Slot& slot : array->Elements->Slots) {
    if (IsCounted(array->Elements->Element)) Release(slot.B);
    slot = Slot{0};
  }
  return StartElements(*array->Elements, *array, 0, false);
}

bool MachineState::Sort(const Instruction* sort) {
  const auto* const array = static_cast<const ArrayBody*>(Base()[sort->A].B);
  Slot* first = Base()[sort->B].R;
  Slot* last = Base()[sort->C].R;
  if (array == nullptr || array->Elements == nullptr) return true;
  Slot* const begin = array->Elements->Slots.data();
  Slot* const end = begin + array->Elements->Slots.size();
  if (first < begin || first >= end || last < begin || last >= end) {
    return Fail("QUICKSORT: both elements must be of one array");
  }
  if (first > last) std::swap(first, last);
  const SlotKind kind = array->Layout->Element;
  const bool descending = sort[1].A != 0;
  std::stable_sort(first, last + 1, [&](Slot a, Slot b) {
    return descending ? LessSlot(kind, b, a) : LessSlot(kind, a, b);
  });
  return true;
}

}  // namespace tarnwick::basic
