#include "designer/form_selection.h"

#include <array>
#include <string_view>

#include "designer/selection.h"

namespace tarnwick {

namespace {

/// The rows that follow position and size of a control, in the order in which they are written.
constexpr std::array<std::string_view, 4> kPlaceRows{"height", "left", "top", "width"};

}  // namespace

void FormSelection::SelectObject(const ControlRef& control) {
  if (!context_.IsLive(control) || !IsObject(*control)) return;
  Select(context_.Form, control);
  drag_.DragEnd();
  if (context_.Form.m_bDesignMode) drag_.DragControl = control;
  drag_.ShowHandles(context_.Form.m_bDesignMode);
  context_.Ports.Host.CommandsChanged();
  Refresh();
}

void FormSelection::SelectForm() {
  Clear();
  context_.Ports.Host.CommandsChanged();
  Refresh();
}

void FormSelection::SelectMenuItem(const ControlRef& item) {
  if (!context_.IsLive(item) || item->Class() != ControlClass::Menu) return;
  Clear();
  Select(context_.Form, item);
  // The grid has no rows for it and shows its form.
  Refresh();
}

void FormSelection::Clear() {
  drag_.DragEnd();
  drag_.ShowHandles(false);
  Select(context_.Form, nullptr);
}

void FormSelection::ShowHandles(bool bShowHandles) {
  drag_.ShowHandles(bShowHandles);
  context_.Ports.Observer.SelectionChanged(context_.Number());
}

void FormSelection::ControlsMoved() {
  if (drag_.Mode() != DragMode::None || !drag_.HandlesShown()) return;
  drag_.ShowHandles(context_.IsLive(drag_.DragControl));
}

void FormSelection::Refresh() {
  context_.Ports.Observer.SelectionChanged(context_.Number());
  ShowProperties();
}

void FormSelection::ShowProperties() {
  if (!context_.Ports.Host.PropertyPanelVisible()) return;
  const DesignForm& form = context_.Form;
  if (form.ControlSel) {
    context_.Ports.Host.ShowProperties(form.NameObjet, form.ControlSel->Tag);
    return;
  }
  const FormRec* record = context_.Record();
  context_.Ports.Host.ShowProperties(InfoOf(Kind::Form).NameWord,
                                     record != nullptr ? std::string_view(record->Name) : "");
}

void FormSelection::SyncPlaceRows() {
  if (!context_.Form.ControlSel) return;
  for (const std::string_view row : kPlaceRows) {
    context_.Ports.Host.SyncRow(context_.Form.NameObjet, row);
  }
}

void FormSelection::ObjectsMoved() {
  if (drag_.DragControl) drag_.ShowHandles(true);
  context_.Ports.Observer.ControlsChanged(context_.Number());
  SyncPlaceRows();
  Refresh();
}

}  // namespace tarnwick
