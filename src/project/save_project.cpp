#include "project/save_project.h"

#include "persistence/form_writer.h"
#include "persistence/project_index.h"
#include "project/save_dialogs.h"
#include "text/path_text.h"

namespace tarnwick::project {

bool WriteFormFile(ProjectContext& context, int form) {
  const FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr || record->FileName.empty()) return false;
  context.Tables.User(form);
  context.Screen.Yield();
  return context.Files.Replace(record->FileName, FormFileText(context.Tables, form));
}

bool SaveProject(ProjectContext& context, const std::string& path) {
  ProjectTables& tables = context.Tables;
  bool saved = true;
  context.Container.HideContainer();
  DesignForm* const active = tables.CurrentForm;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    context.Container.ActivateForm(form);
    if (tables.Form(form)->FileName.empty()) SaveFormDialog(context, form);
    saved = WriteFormFile(context, form) && saved;
    RefreshFormListEntry(context, form);
  }
  saved = context.Files.Replace(path, ProjectIndexText(tables, FolderOf(path))) && saved;
  context.Container.ShowContainer();
  if (active != nullptr) context.Container.ActivateForm(active->Number());
  context.Observer.FormListChanged();
  return saved;
}

}  // namespace tarnwick::project
