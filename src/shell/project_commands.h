// The commands of the File menu, and the end of the program.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "project/project_context.h"
#include "project/recovery.h"
#include "project/watched_files.h"
#include "project/write_outcome.h"
#include "shell/form_commands.h"
#include "shell/recent_projects.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// What the last project command was lies in `AccionProject`: "app", "new", "open" or "save". Edits
/// change nothing in it, so after a save neither New nor the closing asks; what was changed since
/// is kept by recovery.
class ProjectCommands {
 public:
  ProjectCommands(ShellState& state, project::ProjectContext& context, project::WatchedFiles& files,
                  project::Recovery& recovery, FormCommands& forms)
      : state_(state),
        context_(context),
        files_(files),
        recovery_(recovery),
        forms_(forms),
        recent_(state.Settings) {}

  /// Asks about saving, then starts a project of one empty form.
  void New();
  /// Asks about saving what is changed, then opens a project, or with `old_version` one of the
  /// former version, converted beside it. When the question or the dialog is cancelled, or the file
  /// cannot be read, everything stays as it is.
  void Open(bool old_version);
  /// Opens the project in a file that the desktop names, without a question or dialog; a ".ptn" is
  /// converted first. A file that cannot be read leaves everything as it is, and the status bar
  /// says so.
  void OpenNamed(const std::string& path);
  /// Asks about saving, then opens one of the recent projects. One that has gone leaves the list.
  void OpenRecent(const std::string& path);
  /// True when the project was saved whole; false when a dialog or a question was cancelled or a
  /// file could not be written, which the status bar names.
  bool Save();
  void SaveAs();
  /// Writes the current form, asking for a file while it has none.
  void SaveForm();
  /// Asks for a file in any case, and leaves the index in its short form.
  void SaveFormAs();
  /// Stores what is typed but not taken yet: it belongs to the project.
  void TakePending();
  /// Asks about saving at the end of the program. False: the program goes on.
  [[nodiscard]] bool MayClose();

  /// The projects opened or saved last, the newest first.
  [[nodiscard]] std::vector<std::string> Recent() const { return recent_.List(); }
  void ClearRecent();

  /// What recovery holds.
  [[nodiscard]] std::vector<project::Recovery::Offer> UnsavedWork() { return recovery_.Offers(); }
  /// Asks about saving, then opens kept work as a project with its old paths, unsaved.
  void Restore(const project::Recovery::Offer& offer);
  /// Asks, then deletes kept work.
  void Forget(const project::Recovery::Offer& offer);

 private:
  /// Asks about saving; false: the command stops.
  [[nodiscard]] bool MayLeave();
  /// The same ahead of another project; an unchanged project needs no question.
  [[nodiscard]] bool MayGiveWay();
  bool TakeProjectPath();
  bool WriteProject();
  [[nodiscard]] bool MayReplace(const std::vector<std::string>& paths);
  void WriteForm(int form);
  [[nodiscard]] bool AskFormFile(int form);
  [[nodiscard]] std::optional<std::string> ChooseProject(bool old_version);
  /// The project's path when it can be read, converted where it is an old one; otherwise the
  /// status bar says why not.
  [[nodiscard]] std::optional<std::string> ReadableProject(std::string path, bool old_version);
  /// True when unsaved changes stay on offer.
  bool LeaveProject();
  void BeginChange();
  void EndChange();
  void Take(std::string path);

  ShellState& state_;
  project::ProjectContext& context_;
  project::WatchedFiles& files_;
  project::Recovery& recovery_;
  FormCommands& forms_;
  RecentProjects recent_;
};

}  // namespace tarnwick
