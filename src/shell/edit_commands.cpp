#include "shell/edit_commands.h"

#include "designer/tool_box.h"
#include "shell/titles.h"

namespace tarnwick {

bool WaitsForCodeEditor(Command command) noexcept {
  switch (command) {
    case Command::Undo:
    case Command::Redo:
    case Command::Cut:
    case Command::Paste:
    case Command::Delete:
    case Command::AddNewForm:
    case Command::Remove:
    case Command::MenuEdit:
      return true;
    default:
      return false;
  }
}

void EditCommands::Run(Command command) {
  FormUser* surface = surfaces_.Current();
  if (surface == nullptr || Refused(command, surface->Form())) return;
  switch (command) {
    // The menu's Cut is the key Ctrl+X, which deletes and copies nothing.
    case Command::Cut:
      surface->Commands().DeletObject(keys::kX, kCtrlBit);
      break;
    case Command::Copy:
      surface->Commands().CopyObject(keys::kC, kCtrlBit);
      break;
    case Command::Paste:
      surface->Commands().PasteObject(keys::kV, kCtrlBit);
      break;
    case Command::Delete:
      surface->Commands().CutObject(keys::kDelete);
      break;
    case Command::BringToFront:
      surface->Commands().BringToFront();
      break;
    case Command::StayBack:
      surface->Commands().SendToBack();
      break;
    case Command::AlignToGrid:
      surface->Commands().aligngrid();
      break;
    case Command::Lock:
      surface->Commands().ToggleLock();
      break;
    default:
      return;
  }
  state_.View->CommandsChanged();
}

bool EditCommands::Refused(Command command, const DesignForm& form) {
  if (command != Command::Delete || form.m_bDesignMode) return false;
  state_.Ports.Messages.Show("Need to Unblock controls before copy/cut/paste", kApplicationTitle);
  return true;
}

void EditCommands::ReleaseTool() {
  FormUser* surface = surfaces_.Current();
  if (surface == nullptr) return;
  DesignForm& form = surface->Form();
  if (ArmedTool(&form) != kArrowTool) {
    form.Objeto.clear();
  } else if (form.m_bDesignMode) {
    surface->SelectForm();
  }
  state_.View->CommandsChanged();
}

void EditCommands::Undo() {
  state_.View->CommitPendingEdits();
  Show(state_.Steps.Undo());
}

void EditCommands::Redo() {
  state_.View->CommitPendingEdits();
  Show(state_.Steps.Redo());
}

void EditCommands::Show(std::optional<int> form) {
  if (!form) return;
  if (FormUser* const surface = surfaces_.Of(*form)) surface->Restored();
  forms_.Show(*form);
}

void EditCommands::PressTool(int number) {
  const ToolInfo* tool = ToolOf(number);
  if (tool == nullptr) {
    // A button that no table knows arms nothing.
    if (FormUser* const surface = surfaces_.Current()) surface->Form().Objeto.clear();
    state_.View->CommandsChanged();
    return;
  }
  if (number == kFormTool) {
    // The tool lifts the block of the form it is pressed on and leaves it for the new one.
    if (FormUser* const left = surfaces_.Current()) {
      left->Form().m_bDesignMode = true;
      left->SelectForm();
    }
    forms_.AddNew();
    forms_.ShowContainer();
  } else if (!forms_.HasForm()) {
    const HistoryStep step(state_.Steps, 0, "Add Form");
    forms_.AddFirst();
    forms_.ShowContainer();
  } else if (surfaces_.Current() == nullptr) {
    // All windows are closed: the first form comes up again.
    forms_.GoTo(forms_.FirstForm());
  }
  FormUser* surface = surfaces_.Current();
  if (surface == nullptr) return;
  DesignForm& form = surface->Form();
  form.m_bDesignMode = true;
  if (number == kFormTool || number == kArrowTool || number == kMenuTool) surface->SelectForm();
  form.Objeto = tool->Objeto;
  state_.View->CommandsChanged();
  if (number == kMenuTool) state_.Menus->OpenMenuEdit();
}

}  // namespace tarnwick
