// Forms: showing, waiting, closing; and what holds for everything that stands on a form.
#include <algorithm>

#include "objects/behaviour.h"
#include "objects/frame_metrics.h"
#include "objects/frame_size.h"

namespace tarnwick::objects {
namespace {

bool SetParentOf(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, const Value& in) {
  return world.SetParent(object, in.AsObject());
}

bool FreeObject(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                std::span<Value> /*arguments*/, Value& /*result*/) {
  if (object.Info().Has(ClassFlag::BuiltIn)) return world.Fail("This object cannot be freed");
  world.Free(object.Id);
  return true;
}

bool HandleOf(ObjectWorld& /*world*/, ObjectRecord& object, const MemberInfo& /*member*/,
              std::span<const Value> /*index*/, Value& out) {
  // A number of its own for each object; nothing outside the program knows it.
  out = Value::Integer(static_cast<std::int64_t>(object.Id) & 0x7FFFFFFF);
  return true;
}

// --- Showing

void PutInTheMiddle(ObjectWorld& world, ObjectRecord& form) {
  const auto screen_id = static_cast<basic::ClassId>(ObjectClass::Screen);
  const ObjectId screen = world.BuiltIn(screen_id);
  const auto middle = [&](Word whole, Word part) {
    Value size;
    world.Get(screen, InfoOf(screen_id).Find(whole)->Facts.Id, {}, size);
    return Value::Integer((size.AsInteger() - form.Number(part)) / 2);
  };
  const Value left = middle(Word::Width, Word::Width);
  const Value top = middle(Word::Height, Word::Height);
  world.Change(form, Word::Left, left, Origin::Code);
  world.Change(form, Word::Top, top, Origin::Code);
}

void VisibleChanged(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
                    Origin /*origin*/) {
  const ObjectId id = form.Id;
  const bool visible = form.Truth(Word::Visible);
  world.FormVisible(visible);
  if (!visible) return;
  FormState& state = *form.As<FormState>();
  const bool first = !state.Shown;
  state.Shown = true;
  if (state.Centered) PutInTheMiddle(world, form);
  if (!form.Realised) {
    world.Realise(form);
    world.Show(form, Word::Visible);
  }
  if (world.Raise(id, Word::OnShow) && first) world.Raise(id, Word::OnResize);
}

bool Show(ObjectWorld& world, ObjectRecord& form, const MemberInfo& method,
          std::span<Value> /*arguments*/, Value& /*result*/) {
  if (form.Truth(Word::Visible)) {
    Value nothing;
    return WidgetMethod(world, form, method, {}, nothing);  // comes to the front
  }
  ShowForm(world, form.Id);
  return true;
}

bool Hide(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
          std::span<Value> /*arguments*/, Value& /*result*/) {
  world.Change(form, Word::Visible, Value::Integer(0), Origin::Code);
  return true;
}

bool Close(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  world.CloseForm(form.Id);
  return true;
}

/// Waits until the form is hidden, freed or has a result.
bool ShowModal(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
               std::span<Value> /*arguments*/, Value& result) {
  constexpr std::int64_t kCancelled = 2;
  const ObjectId id = form.Id;
  if (form.As<FormState>()->Modal) {
    return world.Fail(form.FullName() + " waits already: ShowModal cannot be called twice");
  }
  if (world.ModalLoops() >= kMostModalLoops) {
    return world.Fail("More than " + std::to_string(kMostModalLoops) +
                      " windows wait inside each other");
  }
  form.Put(Word::ModalResult, Value::Integer(0));
  form.As<FormState>()->Modal = true;
  ShowForm(world, id);
  ++world.ModalLoops();
  const auto waits = [&] {
    const ObjectRecord* const record = world.Find(id);
    return record != nullptr && record->Truth(Word::Visible);
  };
  while (waits() && world.WaitForUser()) {
  }
  --world.ModalLoops();
  ObjectRecord* const after = world.Find(id);
  result = Value::Integer(kCancelled);
  if (after == nullptr) return true;
  after->As<FormState>()->Modal = false;
  const std::int64_t chosen = after->Number(Word::ModalResult);
  if (chosen != 0) result = Value::Integer(chosen);
  return true;
}

void ModalResultChanged(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
                        Origin /*origin*/) {
  if (form.As<FormState>()->Modal && form.Number(Word::ModalResult) != 0) world.CloseForm(form.Id);
}

bool Center(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
            std::span<Value> /*arguments*/, Value& /*result*/) {
  form.As<FormState>()->Centered = true;
  if (form.Truth(Word::Visible)) PutInTheMiddle(world, form);
  return true;
}

bool ChangeIcons(ObjectWorld& world, ObjectRecord& form, const MemberInfo& method,
                 std::span<Value> arguments, Value& /*result*/) {
  FormState& state = *form.As<FormState>();
  for (const Value& argument : arguments) {
    const std::int64_t icon = argument.AsInteger();
    if (icon < 0 || icon > 3) continue;
    const std::int64_t bit = std::int64_t{1} << icon;
    state.Icons = method.Name == Word::AddBorderIcons ? state.Icons | bit : state.Icons & ~bit;
  }
  world.Show(form, Word::BorderStyle);
  return true;
}

// --- Sizes

void SizeChanged(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                 Origin /*origin*/) {
  const bool shown = object.Is(ObjectClass::QForm) ? object.Truth(Word::Visible) : object.Realised;
  if (shown) world.Raise(object.Id, Word::OnResize);
}

bool GetClientWidth(ObjectWorld& /*world*/, ObjectRecord& form, const MemberInfo& /*member*/,
                    std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(std::max<std::int64_t>(form.Number(Word::Width) - FrameOf(form).Width, 0));
  return true;
}

bool GetClientHeight(ObjectWorld& /*world*/, ObjectRecord& form, const MemberInfo& /*member*/,
                     std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(std::max<std::int64_t>(form.Number(Word::Height) - FrameOf(form).Height, 0));
  return true;
}

bool SetClientWidth(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
                    std::span<const Value> /*index*/, const Value& in) {
  world.Change(form, Word::Width, Value::Integer(in.AsInteger() + FrameOf(form).Width),
               Origin::Code);
  return true;
}

bool SetClientHeight(ObjectWorld& world, ObjectRecord& form, const MemberInfo& /*member*/,
                     std::span<const Value> /*index*/, const Value& in) {
  world.Change(form, Word::Height, Value::Integer(in.AsInteger() + FrameOf(form).Height),
               Origin::Code);
  return true;
}

bool ControlCount(ObjectWorld& /*world*/, ObjectRecord& form, const MemberInfo& /*member*/,
                  std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(static_cast<std::int64_t>(form.Children.size()));
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {None, Word::Parent, {.Set = SetParentOf}},
    {None, Word::Free, {.Call = FreeObject}},
    {None, Word::Handle, {.Get = HandleOf}},
    {None, Word::Pointer, {.Get = HandleOf}},
    {QForm, Word::Visible, {.Changed = VisibleChanged}},
    {QForm, Word::Show, {.Call = Show}},
    {QForm, Word::Hide, {.Call = Hide}},
    {QForm, Word::Close, {.Call = Close}},
    {QForm, Word::ShowModal, {.Call = ShowModal}},
    {QForm, Word::ModalResult, {.Changed = ModalResultChanged}},
    {QForm, Word::Center, {.Call = Center}},
    {QForm, Word::AddBorderIcons, {.Call = ChangeIcons}},
    {QForm, Word::DelBorderIcons, {.Call = ChangeIcons}},
    {QForm, Word::Width, {.Changed = SizeChanged}},
    {QForm, Word::Height, {.Changed = SizeChanged}},
    {QPanel, Word::Width, {.Changed = SizeChanged}},
    {QPanel, Word::Height, {.Changed = SizeChanged}},
    {None, Word::ClientWidth, {.Get = GetClientWidth, .Set = SetClientWidth}},
    {None, Word::ClientHeight, {.Get = GetClientHeight, .Set = SetClientHeight}},
    {QForm, Word::ControlCount, {.Get = ControlCount}},
};

}  // namespace

FrameSize FrameOf(const ObjectRecord& form) {
  constexpr std::int64_t kNone = 0;
  constexpr std::int64_t kSizeable = 2;
  constexpr std::int64_t kToolWindow = 4;
  constexpr std::int64_t kSizeToolWindow = 5;
  const auto* const state = form.As<FormState>();
  // A panel has no frame of its own: its bevel lies inside.
  if (state == nullptr) return {};
  const std::int64_t style = form.Number(Word::BorderStyle);
  FrameMetrics frame;
  frame.Sizable = style == kSizeable || style == kSizeToolWindow;
  frame.Tool = style == kToolWindow || style == kSizeToolWindow;
  frame.Menu = state->Menu != ObjectId::None;
  if (style == kNone) return {0, frame.Menu ? kMenuStripHeight : 0};
  return {2 * frame.Border(), frame.Above() + frame.Border()};
}

void ShowForm(ObjectWorld& world, ObjectId form) {
  ObjectRecord* const record = world.Find(form);
  if (record != nullptr) world.Change(*record, Word::Visible, Value::Integer(1), Origin::Code);
}

BehaviourRows FormBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
