#include "shell/project_commands.h"

#include <utility>

#include "persistence/project_index.h"
#include "project/convert_project.h"
#include "project/open_project.h"
#include "project/save_dialogs.h"
#include "project/save_project.h"
#include "shell/titles.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick {

bool ProjectCommands::WantsSave() {
  return state_.Ports.Messages.AskYesNo("Did you want save this project?", kSavePromptTitle,
                                        MessageIcon::Question);
}

void ProjectCommands::New() {
  ProjectTables& tables = state_.Tables;
  // What is cancelled on the way to a save must not cost the project.
  if (tables.AccionProject != "save" && WantsSave() && !Save()) return;
  state_.Code->CloseCode();
  state_.View->SetTitle(TitleOfOpened(DefaultProjectFile(tables)));
  state_.Ports.Files.Remove(state_.Settings.EventIndexPath());
  state_.EnableCommands(false);
  SetDefaultPaths(tables);
  state_.Application = {};
  tables.JumpKey.clear();
  forms_.HideContainer();
  forms_.CloseAll();
  forms_.AddFirst();
  forms_.ShowContainer();
  tables.AccionProject = "new";
  state_.EnableCommands(true);
}

std::optional<std::string> ProjectCommands::ChooseProject(bool old_version) {
  FileDialogRequest request{"Open Project", "Tarnwick Project (New Version)|*.tnp",
                            state_.Settings.Read(kProjectFolder), ""};
  if (old_version) {
    request.Title = "Open Old Version";
    request.Filter = "Tarnwick Project (Old Version)|*.ptn|All Files|*.*";
  }
  std::optional<std::string> chosen = state_.Ports.Dialogs.OpenFile(request);
  if (!chosen || chosen->empty()) return std::nullopt;
  return ReadableProject(*std::move(chosen), old_version);
}

std::optional<std::string> ProjectCommands::ReadableProject(std::string path, bool old_version) {
  // The open project goes only when another one is there to take its place.
  if (old_version) return project::ConvertOldProject(state_.Ports.Files, path);
  if (!state_.Ports.Files.Read(path)) return std::nullopt;
  return path;
}

void ProjectCommands::Open(bool old_version) {
  state_.Tables.LoadingProject = 1;
  if (std::optional<std::string> path = ChooseProject(old_version)) Take(*std::move(path));
  state_.Tables.LoadingProject = 0;
}

void ProjectCommands::OpenNamed(const std::string& path) {
  state_.Tables.LoadingProject = 1;
  const bool old_version = Lower(path).ends_with(".ptn");
  if (std::optional<std::string> found = ReadableProject(path, old_version)) {
    Take(*std::move(found));
  }
  state_.Tables.LoadingProject = 0;
}

void ProjectCommands::Take(std::string path) {
  ProjectTables& tables = state_.Tables;
  state_.Code->CloseCode();
  tables.AccionProject = "open";
  state_.EnableCommands(false);
  tables.JumpKey.clear();
  forms_.HideContainer();
  forms_.CloseAll();
  SetProjectFile(tables, std::move(path));
  state_.View->SetTitle(TitleOfOpened(tables.ProjectFile));
  state_.Settings.Write(kProjectFolder, FolderOf(tables.ProjectFile));
  project::LoadProject(context_, tables.ProjectFile);
  if (!forms_.HasForm()) forms_.AddFirst();
  forms_.ShowContainer();
  forms_.BringUp(forms_.FirstForm());
  state_.ShowPanel(Panel::EventsBar, true);
  state_.EnableCommands(true);
}

bool ProjectCommands::TakeProjectPath() {
  constexpr std::string_view kExtension = ".tnp";
  std::optional<std::string> path = project::SaveProjectDialog(context_);
  if (!path) return false;
  if (!Lower(*path).ends_with(kExtension)) *path += kExtension;
  state_.View->SetTitle(TitleOfSaved(*path));
  SetProjectFile(state_.Tables, *std::move(path));
  return true;
}

bool ProjectCommands::WriteProject() {
  // What is typed but not taken yet belongs to the project.
  state_.View->CommitPendingEdits();
  state_.Code->StoreShownCode();
  return project::SaveProject(context_, state_.Tables.ProjectFile);
}

bool ProjectCommands::Save() {
  if (HasDefaultProjectFile(state_.Tables) && !TakeProjectPath()) return false;
  if (!WriteProject()) return false;
  state_.Tables.AccionProject = "save";
  return true;
}

void ProjectCommands::SaveAs() {
  if (TakeProjectPath()) WriteProject();
}

bool ProjectCommands::AskFormFile(int form) {
  const bool chosen = project::SaveFormDialog(context_, form);
  forms_.ShowContainer();
  forms_.BringUp(form);
  return chosen;
}

void ProjectCommands::WriteForm(int form) {
  state_.View->CommitPendingEdits();
  state_.Code->StoreShownCode();
  project::WriteFormFile(context_, form);
  project::RefreshFormListEntry(context_, form);
  state_.Observer.FormListChanged();
}

void ProjectCommands::SaveForm() {
  const DesignForm* window = state_.Tables.CurrentForm;
  const FormRec* record = window == nullptr ? nullptr : state_.Tables.RecordOf(*window);
  if (record == nullptr) return;
  const int form = window->Number();
  if (!record->FileName.empty() || AskFormFile(form)) WriteForm(form);
}

void ProjectCommands::SaveFormAs() {
  const DesignForm* window = state_.Tables.CurrentForm;
  if (window == nullptr) return;
  const int form = window->Number();
  if (!AskFormFile(form)) return;
  WriteForm(form);
  state_.Ports.Files.Replace(state_.Tables.ProjectFile, ShortProjectIndexText(state_.Tables));
}

bool ProjectCommands::MayClose() {
  const std::string& action = state_.Tables.AccionProject;
  if (action == "save" || action == "new" || !WantsSave()) return true;
  return HasDefaultProjectFile(state_.Tables) ? Save() : WriteProject();
}

}  // namespace tarnwick
