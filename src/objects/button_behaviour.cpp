// Buttons, boxes and groups of radio buttons.
#include <algorithm>

#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

/// What the kinds of buttons bring along.
struct KindRow {
  const char* Caption;
  std::int64_t ModalResult;
  Word Key;  ///< Default, Cancel, or Kind for none
};
/// By the number of the kind; 0 is a button without any of this.
constexpr KindRow kKinds[] = {
    {"", 0, Word::Kind},        {"OK", 1, Word::Default},   {"Cancel", 2, Word::Cancel},
    {"&Help", 0, Word::Kind},   {"&Yes", 6, Word::Default}, {"&No", 7, Word::Cancel},
    {"&Close", 0, Word::Kind},  {"Abort", 3, Word::Cancel}, {"&Retry", 4, Word::Default},
    {"&Ignore", 5, Word::Kind}, {"&All", 8, Word::Default}};

void KindChanged(ObjectWorld& world, ObjectRecord& button, const MemberInfo& /*member*/,
                 Origin /*origin*/) {
  const std::int64_t kind = button.Number(Word::Kind);
  if (kind <= 0 || kind >= static_cast<std::int64_t>(std::size(kKinds))) return;
  const KindRow& row = kKinds[kind];
  world.Change(button, Word::Caption, Value::Text(row.Caption), Origin::Code);
  world.Change(button, Word::ModalResult, Value::Integer(row.ModalResult), Origin::Code);
  if (row.Key != Word::Kind) world.Change(button, row.Key, Value::Integer(1), Origin::Code);
}

void BoxChanged(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                Origin /*origin*/) {
  world.Raise(box.Id, Word::OnClick);
}

/// One radio button of a parent is on. Those that go off raise nothing.
void RadioChanged(ObjectWorld& world, ObjectRecord& radio, const MemberInfo& member,
                  Origin /*origin*/) {
  if (!radio.Truth(Word::Checked)) return;
  const ObjectId id = radio.Id;
  if (const ObjectRecord* const parent = world.Find(radio.Parent)) {
    for (const ObjectId other : parent->Children) {
      ObjectRecord* const sibling = world.Find(other);
      if (other != id && sibling != nullptr && sibling->Is(ObjectClass::QRadioButton)) {
        world.Change(*sibling, member, Value::Integer(0), Origin::Code);
      }
    }
  }
  world.Raise(id, Word::OnClick);
}

/// Flat buttons of one group: one is down.
void DownChanged(ObjectWorld& world, ObjectRecord& button, const MemberInfo& member,
                 Origin /*origin*/) {
  const std::int64_t group = button.Number(Word::GroupIndex);
  const ObjectRecord* const parent = world.Find(button.Parent);
  if (group == 0 || parent == nullptr || !button.Truth(Word::Down)) return;
  for (const ObjectId other : parent->Children) {
    ObjectRecord* const sibling = world.Find(other);
    if (other != button.Id && sibling != nullptr && sibling->Is(ObjectClass::QCoolBtn) &&
        sibling->Number(Word::GroupIndex) == group) {
      world.Change(*sibling, member, Value::Integer(0), Origin::Code);
    }
  }
}

/// Positions of bars stay within their bounds.
bool SetPosition(ObjectWorld& world, ObjectRecord& bar, const MemberInfo& member,
                 std::span<const Value> /*index*/, const Value& in) {
  const std::int64_t low = bar.Number(Word::Min);
  const std::int64_t high = std::max(bar.Number(Word::Max), low);
  world.Change(bar, member, Value::Integer(std::min(std::max(in.AsInteger(), low), high)),
               Origin::Code);
  return true;
}

void PositionChanged(ObjectWorld& world, ObjectRecord& bar, const MemberInfo& /*member*/,
                     Origin origin) {
  const ObjectId id = bar.Id;
  world.Raise(id, Word::OnChange);
  if (origin == Origin::User) world.Raise(id, Word::OnScroll);
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QButton, Word::Kind, {.Changed = KindChanged}},
    {QCheckBox, Word::Checked, {.Changed = BoxChanged}},
    {QRadioButton, Word::Checked, {.Changed = RadioChanged}},
    {QCoolBtn, Word::Down, {.Changed = DownChanged}},
    {QGauge, Word::Position, {.Set = SetPosition}},
    {QTrackBar, Word::Position, {.Set = SetPosition, .Changed = PositionChanged}},
    {QScrollBar, Word::Position, {.Set = SetPosition, .Changed = PositionChanged}},
};

}  // namespace

BehaviourRows ButtonBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
