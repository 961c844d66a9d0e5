// Which commands and tools can be used and which are marked, worked out in one place.
#pragma once

#include <array>
#include <string>

#include "model/project_records.h"
#include "shell/command_table.h"
#include "shell/panels.h"

namespace tarnwick {

struct CommandState {
  bool Enabled = false;
  bool Checked = false;
  friend bool operator==(const CommandState&, const CommandState&) = default;
};

/// What the commands follow beside the project.
struct ShellFlags {
  bool CommandsEnabled = false;  ///< off while a project is being changed
  std::array<bool, kPanelCount> PanelShown{};
};

[[nodiscard]] CommandState StateOf(Command command, const ProjectTables& tables,
                                   const ShellFlags& flags);
/// Checked: the tool is down in both boxes and its row of the menu is marked.
[[nodiscard]] CommandState StateOfTool(int number, const ProjectTables& tables,
                                       const ShellFlags& flags);
/// Caption of the command's row in the menu bar. That of Remove names the current form.
[[nodiscard]] std::string CaptionOf(Command command, const ProjectTables& tables);
/// False for what is selected when its kind has no events, so that there is no code to open.
[[nodiscard]] bool SelectionHasEvents(const DesignForm& form);

}  // namespace tarnwick
