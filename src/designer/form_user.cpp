#include "designer/form_user.h"

#include <array>
#include <string>
#include <utility>

#include "designer/grid.h"
#include "designer/object_kinds.h"
#include "designer/selection.h"
#include "designer/tool_box.h"
#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

constexpr std::string_view kMessageTitle = "Tarnwick";
constexpr int kHandlePixels = 7;
/// The rows that follow a control's place, in the order in which they are synced.
constexpr std::array<std::string_view, 4> kPlaceRows{"height", "left", "top", "width"};

}  // namespace

FormUser::FormUser(DesignForm& form, ProjectTables& tables, DesignerPorts ports)
    : form_(form), tables_(tables), ports_(ports), drag_(form, ports.Gesture) {}

void FormUser::Form_Load() {
  PintaPuntitos();
  style_.hwnd = Number();
  style_.Redraw = [this] { ports_.Observer.FormChanged(Number()); };
  if (const FormRec* record = tables_.RecordOf(form_)) {
    ApplyBorderStyle(style_, record->BorderStyle);
  }
}

void FormUser::PintaPuntitos() {
  ForEachGridPoint([this](int /*x*/, int /*y*/) { ports_.Screen.Yield(); });
  for (int i = 0; i < kHandleCount; ++i) {
    const ControlRef handle = form_.Element(Kind::Handle, i);
    if (!handle) continue;
    handle->Width = kHandlePixels * kTwipsPerPixel;
    handle->Height = kHandlePixels * kTwipsPerPixel;
  }
  ports_.Observer.ControlsChanged(Number());
}

void FormUser::Form_Resize(float width, float height, WindowState state) {
  if (state == WindowState::Minimised) return;
  if (width != form_.Width || height != form_.Height) {
    ports_.Steps.Stay(Number(), "window", StepName("Size"));
  }
  form_.Width = width;
  form_.Height = height;
  const bool was_maximised = std::exchange(maximised_, state == WindowState::Maximised);
  if (maximised_ && was_maximised) return;
  // The old size is renewed first: a container that grows can resize the form again.
  const float wider = width - static_cast<float>(form_.oldWidth);
  const float higher = height - static_cast<float>(form_.oldHeight);
  form_.oldWidth = WholeUnits(width);
  form_.oldHeight = WholeUnits(height);
  if ((wider != 0 || higher != 0) && !ports_.Host.ContainerMinimised()) {
    ports_.Host.GrowContainer(wider, higher);
  }
  if (FormRec* record = tables_.RecordOf(form_)) {
    record->Width = ToInt16(width / kTwipsPerPixel).value_or(record->Width);
    record->Height = ToInt16(height / kTwipsPerPixel).value_or(record->Height);
  }
  // Left and Top of a form are the generated program's, never the window's place here.
  ports_.Host.SyncRow(InfoOf(Kind::Form).NameWord, "height");
  ports_.Host.SyncRow(InfoOf(Kind::Form).NameWord, "width");
}

void FormUser::ResizeEnded() {
  ports_.Steps.Leave();
}

void FormUser::borderstylea(int style) {
  ApplyBorderStyle(style_, style);
  if (FormRec* record = tables_.RecordOf(form_)) {
    record->BorderStyle = ToInt16(style).value_or(record->BorderStyle);
  }
  ports_.Observer.FormChanged(Number());
}

void FormUser::ShowMessage(std::string_view text) {
  ports_.Messages.Show(text, kMessageTitle);
}

void FormUser::ForgetReferences() {
  drag_.DragEnd();
  clipboard_.ForgetSource();
}

void FormUser::ControlsMoved() {
  if (drag_.Mode() != DragMode::None || !drag_.HandlesShown()) return;
  drag_.ShowHandles(IsLive(drag_.DragControl));
}

void FormUser::Restored() {
  drag_.DragEnd();
  if (const FormRec* record = tables_.RecordOf(form_)) {
    ApplyBorderStyle(style_, record->BorderStyle);
  }
  if (form_.m_bDesignMode) drag_.DragControl = form_.ControlSel;
  drag_.ShowHandles(drag_.DragControl != nullptr);
  ports_.Host.EnableTool(kTransparentFrameTool, !HasTransparentFrame(form_));
  ports_.Host.EnableCopyPasteButtons(form_.NameObjet != InfoOf(Kind::TransparentFrame).NameWord);
  SelectionRefresh();
}

void FormUser::NumberMoved(const ObjectPlace& object, bool back) {
  clipboard_.NumberMoved(object.Id, object.Number, back);
  ports_.Host.NumberMoved(object, back);
}

bool FormUser::Ready() {
  return tables_.LoadingProject != 1 && !ports_.Host.RaiseOpenCodeEditor();
}

bool FormUser::IsLive(const ControlRef& control) const noexcept {
  return control && control->Index > 0 && form_.Element(control->Id, control->Index) == control;
}

void FormUser::SelectObject(const ControlRef& control) {
  if (!IsLive(control) || !IsObject(*control)) return;
  EndGesture();
  ports_.Host.EnableCopyPasteButtons(control->Id != Kind::TransparentFrame);
  Select(form_, control);
  drag_.DragEnd();
  if (form_.m_bDesignMode) drag_.DragControl = control;
  drag_.ShowHandles(form_.m_bDesignMode);
  SelectionRefresh();
}

void FormUser::SelectForm() {
  SelectNothing();
  ports_.Host.EnableCopyPasteButtons(true);
  SelectionRefresh();
}

void FormUser::SelectMenuItem(const ControlRef& item) {
  if (!IsLive(item) || item->Class() != ControlClass::Menu) return;
  EndGesture();
  SelectNothing();
  Select(form_, item);
  ports_.Observer.SelectionChanged(Number());
}

void FormUser::SelectNothing() {
  drag_.DragEnd();
  drag_.ShowHandles(false);
  Select(form_, nullptr);
}

void FormUser::SelectionRefresh() {
  ports_.Observer.SelectionChanged(Number());
  ShowPropertiesIfVisible();
}

void FormUser::ShowPropertiesIfVisible() {
  if (!ports_.Host.PropertyPanelVisible()) return;
  if (form_.ControlSel) {
    ports_.Host.ShowProperties(form_.NameObjet, form_.ControlSel->Tag);
    return;
  }
  const FormRec* record = tables_.RecordOf(form_);
  ports_.Host.ShowProperties(InfoOf(Kind::Form).NameWord,
                             record != nullptr ? std::string_view(record->Name) : "");
}

void FormUser::SyncPlaceRows() {
  if (!form_.ControlSel) return;
  for (const std::string_view row : kPlaceRows) ports_.Host.SyncRow(form_.NameObjet, row);
}

bool FormUser::ToolArmed() const {
  return !form_.Objeto.empty() && form_.Objeto != InfoOf(Kind::Form).Name;
}

std::string FormUser::StepName(std::string_view deed) const {
  const FormRec* const record = tables_.RecordOf(form_);
  std::string name(deed);
  name += ' ';
  if (form_.ControlSel) {
    name += form_.ControlSel->Tag;
  } else if (record != nullptr) {
    name += record->Name;
  }
  return name;
}

void FormUser::Disarm() {
  const bool armed = ToolArmed();
  form_.Objeto.clear();
  if (armed) ports_.Host.ArmedToolChanged();
}

ObjectPopUp FormUser::PopUpEntries() const {
  ObjectPopUp entries;
  const Kind kind = form_.ControlSel ? form_.ControlSel->Id : Kind::Form;
  entries.Code = InfoOf(kind).Events != EventListId::None;
  entries.Copy = kind != Kind::TransparentFrame;
  entries.Paste = kind != Kind::TransparentFrame;
  entries.Front = form_.ControlSel != nullptr;
  entries.Back = form_.ControlSel != nullptr;
  entries.Locked = !form_.m_bDesignMode;
  entries.PropertiesChecked = ports_.Host.PropertyPanelVisible();
  return entries;
}

}  // namespace tarnwick
