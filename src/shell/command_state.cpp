#include "shell/command_state.h"

#include "designer/tool_box.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// What a command needs beside commands being enabled at all.
enum class Need : std::uint8_t { Nothing, Form, Object, NoFrame, Events };

Need NeedOf(Command command) {
  switch (command) {
    case Command::SaveForm:
    case Command::SaveFormAs:
    case Command::Cut:
    case Command::Delete:
    case Command::AlignToGrid:
    case Command::Lock:
    case Command::PublicDeclarations:
    case Command::EventsBar:
    case Command::Remove:
    case Command::SelectMainForm:
    case Command::MenuEdit:
    case Command::Compile:
      return Need::Form;
    case Command::Copy:
    case Command::Paste:
      return Need::NoFrame;
    case Command::BringToFront:
    case Command::StayBack:
      return Need::Object;
    case Command::Code:
      return Need::Events;
    default:
      return Need::Nothing;
  }
}

bool Meets(Need need, const DesignForm* form) {
  if (need == Need::Nothing) return true;
  if (form == nullptr) return false;
  switch (need) {
    case Need::Object:
      return form->ControlSel != nullptr;
    case Need::NoFrame:
      return form->NameObjet != "TransparentFrame";
    case Need::Events:
      return SelectionHasEvents(*form);
    default:
      return true;
  }
}

bool IsChecked(Command command, const DesignForm* form, const ShellFlags& flags) {
  const auto shown = [&](Panel panel) { return flags.PanelShown[static_cast<std::size_t>(panel)]; };
  switch (command) {
    case Command::Lock:
      return form != nullptr && !form->m_bDesignMode;
    case Command::Properties:
      return shown(Panel::Properties);
    case Command::Forms:
      return shown(Panel::Forms);
    case Command::EventsBar:
      return form != nullptr && shown(Panel::EventsBar);
    case Command::ObjectBar:
      return shown(Panel::ObjectBar);
    case Command::Output:
      return shown(Panel::Output);
    default:
      return false;
  }
}

}  // namespace

bool SelectionHasEvents(const DesignForm& form) {
  const auto kind = KindOfTag(Lower(WithoutDigits(form.NameObjet)));
  // An unknown word is the name of a menu item, which has its one event.
  return !kind.has_value() || InfoOf(*kind).Events != EventListId::None;
}

CommandState StateOf(Command command, const ProjectTables& tables, const ShellFlags& flags) {
  const DesignForm* form = tables.CurrentForm;
  return {flags.CommandsEnabled && Meets(NeedOf(command), form), IsChecked(command, form, flags)};
}

CommandState StateOfTool(int number, const ProjectTables& tables, const ShellFlags& flags) {
  const DesignForm* form = tables.CurrentForm;
  return {flags.CommandsEnabled && ToolFits(number, form), ArmedTool(form) == number};
}

std::string CaptionOf(Command command, const ProjectTables& tables) {
  const FormRec* record =
      tables.CurrentForm == nullptr ? nullptr : tables.RecordOf(*tables.CurrentForm);
  if (command == Command::Remove && record != nullptr) {
    return "Remove " + record->Name + " from project";
  }
  const MenuRow* row = MenuRowOf(command);
  return row == nullptr ? std::string() : std::string(row->Caption);
}

}  // namespace tarnwick
