#include "project/open_project.h"

#include <optional>
#include <utility>

#include "model/new_form.h"
#include "persistence/project_index.h"
#include "text/path_text.h"

namespace tarnwick::project {

namespace {

void CloseAll(ProjectContext& context) {
  for (int form = 1; form <= context.Tables.FormsCount; ++form) {
    context.Observer.FormClosing(form);
  }
  context.Tables.Reset();
  context.Observer.FormListChanged();
}

void ReadListedForm(ProjectContext& context, const std::string& path) {
  // What is there but cannot be read is passed over without a word.
  if (ReadFormFile(context, path) == FormReadResult::Unreadable && !context.Files.Exists(path)) {
    context.Messages.Show("Error: File ' " + path + " ' does not exist!", "Tarnwick");
  }
}

void NotifyRead(ProjectContext& context, int first) {
  for (int form = first; form <= context.Tables.FormsCount; ++form) {
    context.Observer.FormOpened(form);
    context.Observer.EventsBarChanged(form);
  }
  context.Observer.FormListChanged();
}

}  // namespace

FormReadResult ReadFormFile(ProjectContext& context, const std::string& path) {
  const std::optional<std::string> text = context.Files.Read(path);
  return text ? ReadFormText(context, *text, path) : FormReadResult::Unreadable;
}

FormReadResult ReadFormText(ProjectContext& context, std::string_view text,
                            const std::string& path) {
  const int first = context.Tables.FormsCount + 1;
  FormReader reader(context.Tables, path);
  const FormReadResult result = reader.Read(text);
  if (result == FormReadResult::Refused) {
    context.Messages.Show(reader.RefusedName() + " already exist!", "Tarnwick");
  }
  NotifyRead(context, first);
  return result;
}

FormReadResult ReadFormTextInto(ProjectContext& context, std::string_view text, int form) {
  ProjectTables& tables = context.Tables;
  FormRec* record = tables.Form(form);
  if (form < 1 || record == nullptr) return FormReadResult::Unreadable;
  const auto slot = static_cast<std::size_t>(form);
  tables.User(form);
  std::unique_ptr<DesignForm> old_window = std::move(tables.FormsUser[slot]);
  FormRec old_record = std::move(*record);
  *record = FormRec{};
  const bool current = tables.CurrentForm == old_window.get();
  LoadFormWindow(tables, form);
  record->FileName = old_record.FileName;
  record->Removed = old_record.Removed;

  FormReader reader(tables, old_record.FileName, form);
  const FormReadResult result = reader.Read(text);
  if (result != FormReadResult::Read) {
    tables.FormsUser[slot] = std::move(old_window);
    *record = std::move(old_record);
    return result;
  }
  if (current) tables.CurrentForm = tables.FormsUser[slot].get();
  // The old window is still there for those who close what they built over it.
  context.Observer.FormClosing(form);
  context.Observer.FormOpened(form);
  context.Observer.EventsBarChanged(form);
  return result;
}

bool LoadProject(ProjectContext& context, const std::string& path) {
  ProjectTables& tables = context.Tables;
  const std::optional<std::string> text = context.Files.Read(path);
  if (!text) return false;

  context.Container.HideContainer();
  tables.LoadingProject = 1;
  CloseAll(context);
  const ProjectIndex index = ReadProjectIndex(*text);
  for (const std::string_view file : index.FormFiles) {
    ReadListedForm(context, ResolveProjectPath(tables, file, true));
  }
  if (index.MainForm) tables.MainFormName = *index.MainForm;
  if (tables.FormsCount == 0) {
    std::string named = tables.MainFormName;
    AddForm(tables);
    if (index.MainForm) tables.MainFormName = std::move(named);
    NotifyRead(context, 1);
  }
  // The index names the main form after the forms, which the list shows already.
  if (index.MainForm) context.Observer.FormListChanged();
  tables.CurrentForm = tables.User(1);
  context.Container.ActivateForm(1);
  context.Container.ShowContainer();
  context.Observer.CurrentFormChanged();
  tables.LoadingProject = 0;
  return true;
}

}  // namespace tarnwick::project
