#include "shell/project_commands.h"

#include <algorithm>
#include <utility>

#include "persistence/project_index.h"
#include "project/convert_project.h"
#include "project/open_project.h"
#include "project/save_dialogs.h"
#include "project/save_project.h"
#include "shell/status_text.h"
#include "shell/titles.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick {

namespace {

/// An index is text: a byte below the blank that no line ends with says that the file is another.
bool IsText(std::string_view bytes) {
  return std::none_of(bytes.begin(), bytes.end(), [](char c) {
    return static_cast<unsigned char>(c) < 0x20 && c != '\r' && c != '\n' && c != '\t';
  });
}

}  // namespace

bool ProjectCommands::MayLeave() {
  const std::optional<bool> save =
      state_.Ports.Messages.AskOrCancel("Did you want save this project?", kSavePromptTitle);
  // What is cancelled on the way to a save must not cost the project.
  return save && (!*save || Save());
}

bool ProjectCommands::MayGiveWay() {
  if (state_.Tables.AccionProject == "save") return true;
  return (!recovery_.Changed() && !state_.Code->HasTypedCode()) || MayLeave();
}

bool ProjectCommands::LeaveProject() {
  const bool is_kept = recovery_.LeaveBehind();
  state_.Code->CloseCode();
  return is_kept;
}

void ProjectCommands::BeginChange() {
  state_.EnableCommands(false);
  state_.Tables.JumpKey.clear();
  forms_.HideContainer();
  forms_.CloseAll();
}

void ProjectCommands::EndChange() {
  if (!forms_.HasForm()) forms_.AddFirst();
  forms_.ShowContainer();
  forms_.GoTo(forms_.FirstForm());
  state_.EnableCommands(true);
}

void ProjectCommands::New() {
  ProjectTables& tables = state_.Tables;
  if (tables.AccionProject != "save" && !MayLeave()) return;
  const bool is_kept = LeaveProject();
  state_.View->SetTitle(TitleOfOpened(DefaultProjectFile(tables)));
  files_.Remove(state_.Settings.EventIndexPath());
  BeginChange();
  SetDefaultPaths(tables);
  state_.Application = {};
  EndChange();
  tables.AccionProject = "new";
  recovery_.Settle();
  state_.ProjectReplaced();
  if (is_kept) state_.Say(LeftBehindStatus());
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
  if (!files_.Exists(path)) {
    state_.Say(NotOpenedStatus(path, "there is no such file"));
    return std::nullopt;
  }
  if (old_version) {
    std::optional<std::string> converted = project::ConvertOldProject(files_, path);
    if (!converted) state_.Say(NotOpenedStatus(path, "it could not be converted"));
    return converted;
  }
  const std::optional<std::string> text = files_.Read(path);
  if (text && IsText(*text)) return path;
  state_.Say(NotOpenedStatus(path, text ? "it is no project" : "it could not be read"));
  return std::nullopt;
}

void ProjectCommands::Open(bool old_version) {
  if (!MayGiveWay()) return;
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

void ProjectCommands::OpenRecent(const std::string& path) {
  if (!files_.Exists(path)) {
    recent_.Remove(path);
    state_.View->RecentProjectsChanged();
    state_.Say(NotOpenedStatus(path, "there is no such file"));
    return;
  }
  if (MayGiveWay()) OpenNamed(path);
}

void ProjectCommands::Take(std::string path) {
  ProjectTables& tables = state_.Tables;
  const bool is_kept = LeaveProject();
  BeginChange();
  tables.AccionProject = "open";
  SetProjectFile(tables, std::move(path));
  state_.View->SetTitle(TitleOfOpened(tables.ProjectFile));
  state_.Settings.Write(kProjectFolder, FolderOf(tables.ProjectFile));
  project::LoadProject(context_, tables.ProjectFile);
  EndChange();
  state_.ShowPanel(Panel::EventsBar, true);
  recovery_.Settle();
  state_.ProjectReplaced();
  recent_.Add(tables.ProjectFile);
  state_.View->RecentProjectsChanged();
  if (recovery_.IsOpenElsewhere(tables.ProjectFile)) {
    state_.Say(OpenElsewhereStatus(tables.ProjectFile));
  } else if (is_kept) {
    state_.Say(LeftBehindStatus());
  }
}

void ProjectCommands::Restore(const project::Recovery::Offer& offer) {
  ProjectTables& tables = state_.Tables;
  if (!MayGiveWay()) return;
  tables.LoadingProject = 1;
  LeaveProject();
  BeginChange();
  tables.AccionProject = "open";
  const project::KeptProject& kept = offer.Project;
  SetProjectFile(tables, kept.ProjectFile);
  state_.View->SetTitle(TitleOfOpened(tables.ProjectFile));
  project::TypedCode typed;
  for (const project::KeptForm& form : kept.Forms) {
    const int before = tables.FormsCount;
    project::ReadFormText(context_, form.Text, form.File);
    if (tables.FormsCount == before) continue;
    // Forms that were removed left their numbers; what is read has none.
    for (const auto& [key, code] : form.Code) {
      typed.emplace("Form" + std::to_string(tables.FormsCount) + key, code);
    }
  }
  if (forms_.HasForm()) tables.MainFormName = kept.MainForm;
  state_.Observer.FormListChanged();
  EndChange();
  tables.LoadingProject = 0;
  state_.Code->OfferCode(typed);
  // It is nowhere on the disk yet but here: the offer goes when this instance keeps it.
  recovery_.Unsettle();
  if (recovery_.Keep()) recovery_.Forget(offer);
  state_.ProjectReplaced();
  state_.Say(RestoredStatus(kept.When));
}

void ProjectCommands::Forget(const project::Recovery::Offer& offer) {
  const std::string question = "Delete the unsaved work on " + offer.Project.ProjectFile + "?";
  if (state_.Ports.Messages.AskYesNo(question, kApplicationTitle, MessageIcon::Critical)) {
    recovery_.Forget(offer);
  }
}

bool ProjectCommands::TakeProjectPath() {
  std::optional<std::string> path = project::SaveProjectDialog(context_);
  if (!path) return false;
  state_.View->SetTitle(TitleOfSaved(*path));
  SetProjectFile(state_.Tables, *std::move(path));
  return true;
}

void ProjectCommands::TakePending() {
  state_.View->CommitPendingEdits();
  state_.Code->StoreShownCode();
}

bool ProjectCommands::MayReplace(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    if (path.empty() || !files_.ChangedOutside(path)) continue;
    const std::string question = "The File " + path +
                                 "\r\nwas changed by another program since it was read. "
                                 "Replace it?";
    if (!state_.Ports.Messages.AskYesNo(question, kApplicationTitle, MessageIcon::Critical)) {
      state_.Say(NotSavedStatus({path, "it was changed by another program"}));
      return false;
    }
  }
  return true;
}

bool ProjectCommands::WriteProject() {
  ProjectTables& tables = state_.Tables;
  TakePending();
  std::vector<std::string> paths{tables.ProjectFile};
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (tables.IsLive(form)) paths.push_back(tables.Form(form)->FileName);
  }
  if (!MayReplace(paths)) return false;
  const project::WriteOutcome outcome = project::SaveProject(context_, tables.ProjectFile);
  if (!outcome) {
    state_.Say(NotSavedStatus(outcome));
    return false;
  }
  recovery_.Settle();
  state_.ProjectSaved();
  recent_.Add(tables.ProjectFile);
  state_.View->RecentProjectsChanged();
  state_.SaySaved(SavedStatus(state_.Now()));
  return true;
}

bool ProjectCommands::Save() {
  if (HasDefaultProjectFile(state_.Tables) && !TakeProjectPath()) return false;
  std::string& action = state_.Tables.AccionProject;
  if (WriteProject()) {
    action = "save";
    return true;
  }
  // The save before no longer stands for the project.
  if (action == "save") action = "open";
  return false;
}

void ProjectCommands::SaveAs() {
  if (TakeProjectPath()) WriteProject();
}

bool ProjectCommands::AskFormFile(int form) {
  const bool chosen = project::SaveFormDialog(context_, form);
  forms_.ShowContainer();
  forms_.ActivateForm(form);
  return chosen;
}

void ProjectCommands::WriteForm(int form) {
  TakePending();
  const std::string path = state_.Tables.Form(form)->FileName;
  if (!MayReplace({path})) return;
  const project::WriteOutcome outcome = project::WriteFormFile(context_, form);
  project::RefreshFormListEntry(context_, form);
  state_.Observer.FormListChanged();
  if (outcome) {
    state_.SaySaved(SavedStatus(state_.Now()));
  } else {
    state_.Say(NotSavedStatus(outcome));
  }
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
  if (action != "save" && action != "new" && !MayLeave()) return false;
  recovery_.LeaveBehind();
  return true;
}

void ProjectCommands::ClearRecent() {
  recent_.Clear();
  state_.View->RecentProjectsChanged();
}

}  // namespace tarnwick
