// The commands of the File menu, and the end of the program.
#pragma once

#include <optional>
#include <string>

#include "project/project_context.h"
#include "shell/form_commands.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// What the last project command was lies in `AccionProject`: "app", "new", "open" or "save".
/// Nothing tracks edits, so after a save neither New nor the closing asks.
class ProjectCommands {
 public:
  ProjectCommands(ShellState& state, project::ProjectContext& context, FormCommands& forms)
      : state_(state), context_(context), forms_(forms) {}

  /// Asks about saving, then starts a project of one empty form.
  void New();
  /// Opens a project, or with `old_version` one of the former version, converted beside it. When
  /// the dialog is cancelled, or the file cannot be read, everything stays as it is.
  void Open(bool old_version);
  /// Opens the project in a file that the desktop names, without a dialog; a ".ptn" is converted
  /// first. A file that cannot be read leaves everything as it is.
  void OpenNamed(const std::string& path);
  /// True when the project was saved whole; false when a dialog was cancelled or a file could not
  /// be written.
  bool Save();
  void SaveAs();
  /// Writes the current form, asking for a file while it has none.
  void SaveForm();
  /// Asks for a file in any case, and leaves the index in its short form.
  void SaveFormAs();
  /// Asks about saving at the end of the program. False: the program goes on.
  [[nodiscard]] bool MayClose();

 private:
  [[nodiscard]] bool WantsSave();
  bool TakeProjectPath();
  bool WriteProject();
  void WriteForm(int form);
  [[nodiscard]] bool AskFormFile(int form);
  [[nodiscard]] std::optional<std::string> ChooseProject(bool old_version);
  /// The project's path when it can be read, converted where it is an old one.
  [[nodiscard]] std::optional<std::string> ReadableProject(std::string path, bool old_version);
  void Take(std::string path);

  ShellState& state_;
  project::ProjectContext& context_;
  FormCommands& forms_;
};

}  // namespace tarnwick
