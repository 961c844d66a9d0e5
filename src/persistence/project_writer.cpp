#include "persistence/project_writer.h"

#include "persistence/form_files.h"
#include "persistence/form_writer.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// A form's file as the index names it: bare when it lies in the project's own folder.
std::string_view FileReference(std::string_view file_name, std::string_view project_folder) {
  const bool beside = EqualsFolded(FolderOf(file_name), project_folder);
  return beside ? BareName(file_name) : file_name;
}

std::string IndexText(const ProjectTables& tables, std::string_view project_folder) {
  std::string text;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    AppendNumber(text, std::int64_t{form});
    text += kStoredLineBreak;
    text += FileReference(tables.Form(form)->FileName, project_folder);
    text += kLineEnd;
  }
  text.append("MF##").append(tables.MainFormName).append(kLineEnd);
  return text;
}

/// Writes a form's file; `text` is where it is put together.
bool WriteForm(ProjectContext& context, int form, std::string& text) {
  const FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr || record->FileName.empty()) return false;
  context.Tables.User(form);
  context.Screen.Yield();
  text.clear();
  AppendFormText(text, context.Tables, form);
  return context.Files.Replace(record->FileName, text);
}

}  // namespace

std::string FormFileText(const ProjectTables& tables, int form) {
  std::string text;
  AppendFormText(text, tables, form);
  return text;
}

std::string ProjectFileText(const ProjectTables& tables) {
  return IndexText(tables, FolderOf(tables.ProjectFile));
}

std::string ShortProjectFileText(const ProjectTables& tables) {
  std::string text;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    text.append(tables.Form(form)->FileName).append(kLineEnd);
  }
  return text;
}

bool WriteFormFile(ProjectContext& context, int form) {
  std::string text;
  return WriteForm(context, form, text);
}

bool SaveProject(ProjectContext& context, const std::string& path) {
  ProjectTables& tables = context.Tables;
  bool saved = true;
  context.Container.HideContainer();
  DesignForm* const active = tables.CurrentForm;
  std::string text;  // one for all forms: the memory for it is asked for once
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    context.Container.ActivateForm(form);
    if (tables.Form(form)->FileName.empty()) SaveFormDialog(context, form);
    saved = WriteForm(context, form, text) && saved;
    RefreshFormListEntry(context, form);
  }
  saved = context.Files.Replace(path, IndexText(tables, FolderOf(path))) && saved;
  context.Container.ShowContainer();
  if (active != nullptr) context.Container.ActivateForm(active->Number());
  context.Observer.FormListChanged();
  return saved;
}

}  // namespace tarnwick
