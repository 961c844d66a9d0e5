#include "project/save_project.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <unordered_set>

#include "persistence/form_writer.h"
#include "persistence/project_index.h"
#include "project/save_dialogs.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::project {

namespace {

/// Replaces a file; the first failure stays in the outcome. False when this one failed.
bool Write(ProjectContext& context, const std::string& path, std::string_view bytes,
           WriteOutcome& outcome) {
  if (context.Files.Replace(path, bytes)) return true;
  if (outcome.Failed.empty()) {
    outcome.Failed = path;
    outcome.Reason = context.Files.WhyNotReplaced();
  }
  return false;
}

/// Writes a form's file.
void WriteForm(ProjectContext& context, int form, WriteOutcome& outcome) {
  const FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr || record->FileName.empty()) {
    outcome.Cancelled = true;
    return;
  }
  context.Tables.User(form);
  context.Screen.Yield();
  Write(context, record->FileName, FormFileText(context.Tables, form), outcome);
}

/// True when the index on the disk names a form that this project does not know, removed forms
/// included.
bool NamesOtherForms(const ProjectTables& tables, std::string_view index_text) {
  std::unordered_set<std::string> known;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (const FormRec* record = tables.Form(form)) known.insert(Lower(record->FileName));
  }
  const ProjectIndex index = ReadProjectIndex(index_text);
  return std::any_of(index.FormFiles.begin(), index.FormFiles.end(), [&](std::string_view file) {
    return !known.contains(Lower(ResolveProjectPath(tables, file, true)));
  });
}

void WriteIndex(ProjectContext& context, const std::string& path, WriteOutcome& outcome) {
  if (context.Files.Exists(path)) {
    const std::optional<std::string> former = context.Files.Read(path);
    // Without the copy, the names in it would be lost.
    if (former && NamesOtherForms(context.Tables, *former) &&
        !Write(context, path + ".bak", *former, outcome)) {
      return;
    }
  }
  Write(context, path, ProjectIndexText(context.Tables, FolderOf(path)), outcome);
}

}  // namespace

WriteOutcome WriteFormFile(ProjectContext& context, int form) {
  WriteOutcome outcome;
  WriteForm(context, form, outcome);
  return outcome;
}

WriteOutcome SaveProject(ProjectContext& context, const std::string& path) {
  ProjectTables& tables = context.Tables;
  WriteOutcome outcome;
  context.Container.HideContainer();
  DesignForm* const active = tables.CurrentForm;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    context.Container.ActivateForm(form);
    if (tables.Form(form)->FileName.empty()) SaveFormDialog(context, form);
    WriteForm(context, form, outcome);
    RefreshFormListEntry(context, form);
  }
  WriteIndex(context, path, outcome);
  context.Container.ShowContainer();
  // No form is current while the user has closed all their windows.
  context.Container.ActivateForm(active != nullptr ? active->Number() : 0);
  context.Observer.FormListChanged();
  return outcome;
}

}  // namespace tarnwick::project
