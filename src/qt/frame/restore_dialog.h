// The list of unsaved work.
#pragma once

class QWidget;

namespace tarnwick {

class ProjectCommands;

/// Shows what recovery holds: project, date and forms of each. Restore opens the chosen one,
/// Delete deletes it after a question, and Not Now or Esc closes. With nothing to show it says so.
void RunRestoreDialog(ProjectCommands& projects, QWidget* parent);

}  // namespace tarnwick
