#include "shell/form_commands.h"

#include <algorithm>

#include "model/new_form.h"
#include "shell/titles.h"

namespace tarnwick {

bool FormCommands::HasForm() const {
  return FirstForm() != 0;
}

int FormCommands::FirstForm() const {
  // Each form in use has a line, in the order of the numbers.
  const auto& lines = state_.Tables.ListaFrms.Lines();
  return lines.empty() ? 0 : lines.front().FormNumber;
}

int FormCommands::CurrentNumber() const {
  const DesignForm* form = state_.Tables.CurrentForm;
  return form == nullptr ? 0 : form->Number();
}

void FormCommands::MarkCurrentLine() {
  state_.View->SelectFormLine(state_.Tables.ListaFrms.PositionOf(CurrentNumber()));
}

void FormCommands::Opened(int form) {
  if (form == 0) return;
  state_.Observer.FormOpened(form);
  state_.Observer.FormListChanged();
  GoTo(form);
}

void FormCommands::AddFirst() {
  Opened(AddForm(state_.Tables));
}

void FormCommands::AddNew() {
  const HistoryStep step(state_.Steps, 0, "Add Form");
  Opened(NewForm(state_.Tables));
}

void FormCommands::Remove() {
  ProjectTables& tables = state_.Tables;
  const int form = CurrentNumber();
  const int index = tables.ListaFrms.PositionOf(form);
  if (index < 0) return;
  FormRec* record = tables.Form(form);
  if (!state_.Ports.Messages.AskYesNo("Delete " + record->Name + "?", kApplicationTitle,
                                      MessageIcon::Critical)) {
    return;
  }
  const HistoryStep step(state_.Steps, form, "Remove " + record->Name);
  record->Removed = 1;
  sheet_.ClearPanelAndCombo();
  state_.Observer.FormClosing(form);
  tables.CurrentForm = nullptr;
  const auto slot = static_cast<std::size_t>(form);
  tables.FormsUser[slot].reset();
  tables.FormsBar[slot].reset();
  tables.ListaFrms.Remove(form);
  state_.Observer.FormListChanged();

  const auto& lines = tables.ListaFrms.Lines();
  if (lines.empty()) {
    NoCurrentForm();
    return;
  }
  const std::size_t next = std::min(static_cast<std::size_t>(index), lines.size() - 1);
  Choose(lines[next].FormNumber);
}

void FormCommands::Show(int form) {
  if (state_.Tables.IsLive(form)) {
    BringUp(form);
  } else {
    NoCurrentForm();
  }
}

void FormCommands::Choose(int form) {
  BringUp(form);
  state_.ShowPanel(Panel::EventsBar, true);
}

void FormCommands::SelectLine(int index) {
  if (state_.Busy) return;
  if (state_.RaiseOpenCode()) {
    MarkCurrentLine();
    return;
  }
  const auto& lines = state_.Tables.ListaFrms.Lines();
  if (index < 0 || static_cast<std::size_t>(index) >= lines.size()) return;
  Choose(lines[static_cast<std::size_t>(index)].FormNumber);
}

void FormCommands::GoToLine(int index) {
  SelectLine(index);
  const DesignForm* form = state_.Tables.CurrentForm;
  if (form != nullptr && state_.Tables.ListaFrms.PositionOf(form->Number()) == index) {
    state_.View->FocusForm(form->Number());
  }
}

void FormCommands::GoTo(int form) {
  BringUp(form);
  state_.View->FocusForm(form);
}

void FormCommands::ActivateForm(int form) {
  ProjectTables& tables = state_.Tables;
  tables.CurrentForm = tables.IsLive(form) ? tables.User(form) : nullptr;
}

void FormCommands::WindowClosed(int form) {
  ProjectTables& tables = state_.Tables;
  if (state_.Busy || !tables.IsLive(form)) return;
  if (state_.RaiseOpenCode()) {
    // Its code is being edited: the window stays.
    state_.View->SetFormVisible(form, true);
    return;
  }
  tables.User(form)->Visible = false;
  state_.View->SetFormVisible(form, false);
  if (form != CurrentNumber()) return;
  const auto& lines = tables.ListaFrms.Lines();
  const auto shown = [&](const FormList::Line& line) {
    return tables.IsLive(line.FormNumber) && tables.User(line.FormNumber)->Visible;
  };
  const auto from = lines.begin() + std::max(0, tables.ListaFrms.PositionOf(form));
  auto next = std::find_if(from, lines.end(), shown);
  if (next == lines.end()) next = std::find_if(lines.begin(), from, shown);
  if (next != lines.end() && shown(*next)) {
    GoTo(next->FormNumber);
  } else {
    NoCurrentForm();
  }
}

/// Nothing is current: list, grid and commands show it.
void FormCommands::NoCurrentForm() {
  sheet_.ClearPanelAndCombo();
  state_.Tables.CurrentForm = nullptr;
  state_.View->SelectFormLine(-1);
  state_.View->SetSelectionText("");
  state_.Observer.CurrentFormChanged();
  state_.View->CommandsChanged();
}

void FormCommands::Activated(int form) {
  if (state_.Busy || form == CurrentNumber() || !state_.Tables.IsLive(form)) return;
  if (!state_.RaiseOpenCode()) BringUp(form);
}

void FormCommands::BringUp(int form) {
  ProjectTables& tables = state_.Tables;
  if (!tables.IsLive(form)) return;
  tables.CurrentForm = tables.User(form);
  tables.CurrentForm->Visible = true;
  state_.View->BringFormUp(form);
  state_.Observer.CurrentFormChanged();
  MarkCurrentLine();
  sheet_.FillCombo();
  sheet_.ShowSelection();
  state_.View->CommandsChanged();
}

void FormCommands::SelectMainForm() const {
  state_.View->RunFormMain();
}

FormListMarks FormCommands::Marks() const {
  return MarksOf(state_.Tables);
}

void FormCommands::TakeMainForm(const FormMain& dialog) {
  const HistoryStep step(state_.Steps, 0, "Main Form");
  dialog.Command1_Click(state_.Tables);
  state_.Observer.FormListChanged();
}

void FormCommands::CloseAll() {
  sheet_.ClearPanelAndCombo();
  for (int form = 1; form <= state_.Tables.FormsCount; ++form) {
    if (state_.Tables.IsLive(form)) state_.Observer.FormClosing(form);
  }
  state_.Tables.Reset();
  state_.Steps.Clear();
  state_.Observer.FormListChanged();
}

}  // namespace tarnwick
