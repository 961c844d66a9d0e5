// What the widgets report, and waiting for it.
#include "objects/behaviour.h"
#include "objects/object_world.h"

namespace tarnwick::objects {
namespace {

/// What a click sets before OnClick is raised, by class.
struct ClickRow {
  ObjectClass Class;
  void (*Before)(ObjectWorld&, ObjectRecord&);
};

void Toggle(ObjectWorld& world, ObjectRecord& object) {
  world.Change(object, Word::Checked, Value::Integer(object.Truth(Word::Checked) ? 0 : 1),
               Origin::User);
}

void SwitchOn(ObjectWorld& world, ObjectRecord& object) {
  world.Change(object, Word::Checked, Value::Integer(1), Origin::User);
}

/// A flat button of a group stays down; when all may be up a second click lets it go.
void Press(ObjectWorld& world, ObjectRecord& button) {
  const ObjectId id = button.Id;
  if (button.Number(Word::GroupIndex) != 0) {
    const bool up = button.Truth(Word::Down) && button.Truth(Word::AllowAllUp);
    if (world.Change(button, Word::Down, Value::Integer(up ? 0 : 1), Origin::User)) {
      world.Show(*world.Find(id), Word::Down);
    }
  }
  world.Raise(id, Word::OnClick);
}

/// Boxes whose OnClick follows from the change of Checked, and buttons that stay down.
constexpr ClickRow kClickRows[] = {{ObjectClass::QCheckBox, Toggle},
                                   {ObjectClass::QRadioButton, SwitchOn},
                                   {ObjectClass::QCoolBtn, Press}};

}  // namespace

bool ObjectWorld::Raise(ObjectId object, Word event, std::span<Value> arguments) {
  ObjectRecord* record = Find(object);
  if (machine_ == nullptr || machine_->Ending()) return false;
  const MemberInfo* const info = record == nullptr ? nullptr : record->Info().Find(event);
  if (info == nullptr || info->Facts.Kind != basic::MemberKind::Event) return true;
  const basic::EventHook hook = record->Hooks[info->Slot];
  if (hook.Procedure == basic::ProcedureId{}) return true;
  idle_pumps_ = 0;
  ++record->Handlers;
  const bool runs = machine_->Raise(object, hook, arguments);
  record = Find(object);
  if (record != nullptr) --record->Handlers;
  return runs;
}

bool ObjectWorld::RaiseKey(ObjectId object, Word event, std::span<Value> arguments) {
  const ObjectRecord* const record = Find(object);
  const ObjectRecord* const form = record == nullptr ? nullptr : FormOf(*record);
  if (form != nullptr && form != record && form->Truth(Word::KeyPreview)) {
    if (!Raise(form->Id, event, arguments)) return false;
    if (!arguments.empty() && arguments[0].AsInteger() == 0) return true;
  }
  return Raise(object, event, arguments);
}

void ObjectWorld::UserSet(ObjectId object, Word property, const Value& value) {
  ObjectRecord* const record = Find(object);
  if (record != nullptr) Change(*record, property, value, Origin::User);
}

void ObjectWorld::UserSelect(ObjectId list, std::size_t index, bool selected) {
  ObjectRecord* const record = Find(list);
  ListItems* const items = record == nullptr ? nullptr : record->As<ListItems>();
  if (items != nullptr && index < items->Items.size()) items->Items[index].Selected = selected;
}

void ObjectWorld::Click(ObjectId object) {
  ObjectRecord* const record = Find(object);
  if (record == nullptr) return;
  for (const ClickRow& row : kClickRows) {
    if (record->Is(row.Class)) return row.Before(*this, *record);
  }
  Raise(object, Word::OnClick);
  const ObjectRecord* const after = Find(object);
  const std::int64_t result = after == nullptr ? 0 : after->Number(Word::ModalResult);
  if (result == 0 || after->Is(ObjectClass::QForm)) return;
  const ObjectRecord* const form = FormOf(*after);
  if (form != nullptr) UserSet(form->Id, Word::ModalResult, Value::Integer(result));
}

void ObjectWorld::PopupShows(ObjectId menu) {
  ObjectRecord* const record = Find(menu);
  if (record != nullptr) record->Realised = true;
  Raise(menu, Word::OnPopup);
}

void ObjectWorld::CloseForm(ObjectId form) {
  constexpr std::int64_t kKeep = 0;
  constexpr std::int64_t kHide = 1;
  constexpr std::int64_t kFree = 2;
  constexpr std::int64_t kMinimized = 1;
  if (Find(form) == nullptr) return;
  Value action = Value::Integer(kHide);
  Raise(form, Word::OnClose, {&action, 1});
  ObjectRecord* const record = Find(form);
  if (record == nullptr || Ending()) return;
  const std::int64_t what = action.AsInteger();
  if (what == kKeep) {
    record->Put(Word::ModalResult, Value::Integer(0));
  } else if (what == kFree) {
    Free(form);
  } else if (what == kHide) {
    Change(*record, Word::Visible, Value::Integer(0), Origin::Code);
  } else {
    Change(*record, Word::WindowState, Value::Integer(kMinimized), Origin::Code);
  }
}

void ObjectWorld::Tick(ObjectId timer) {
  const ObjectRecord* const record = Find(timer);
  if (record == nullptr || !AnyFormVisible() || record->Handlers > 0) return;
  if (!record->Truth(Word::Enabled) || record->Number(Word::Interval) <= 0) return;
  Raise(timer, Word::OnTimer);
}

bool ObjectWorld::WaitForUser() {
  return !Ending() && widgets_.PumpEvents(-1);
}

bool ObjectWorld::PumpEvents(int wait_ms) {
  if (widgets_.PumpEvents(wait_ms)) {
    idle_pumps_ = 0;
    return true;
  }
  if (AnyFormVisible() && ++idle_pumps_ >= kMostIdlePumps) Terminate();
  return false;
}

}  // namespace tarnwick::objects
