#include "persistence/project_reader.h"

#include <optional>
#include <utility>

#include "model/new_form.h"
#include "persistence/form_reader.h"
#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kMainFormMark = "MF##";

void CloseAll(ProjectContext& context) {
  for (int form = 1; form <= context.Tables.FormsCount; ++form) {
    context.Observer.FormClosing(form);
  }
  context.Tables.Reset();
  context.Observer.FormListChanged();
}

/// The path of a form named in a line of the index. A line without a number is a bare name.
std::string FormPathOf(const ProjectTables& tables, std::string_view line) {
  const std::size_t mark = line.find(kStoredLineBreak);
  if (mark != std::string_view::npos) line.remove_prefix(mark + 1);
  return ResolveProjectPath(tables, line, true);
}

void ReadListedForm(ProjectContext& context, const std::string& path) {
  // What is there but cannot be read is passed over without a word.
  if (ReadFormFile(context, path) == FormReadResult::Unreadable && !context.Files.Exists(path)) {
    context.Messages.Show("Error: File ' " + path + " ' does not exist!", "Tarnwick");
  }
}

void TellRead(ProjectContext& context, int first) {
  for (int form = first; form <= context.Tables.FormsCount; ++form) {
    context.Observer.FormOpened(form);
    context.Observer.EventsBarChanged(form);
  }
  context.Observer.FormListChanged();
}

}  // namespace

FormReadResult ReadFormFile(ProjectContext& context, const std::string& path) {
  const std::optional<std::string> text = context.Files.Read(path);
  if (!text) return FormReadResult::Unreadable;
  const int first = context.Tables.FormsCount + 1;
  FormReader reader(context, path);
  const FormReadResult result = reader.Read(*text);
  TellRead(context, first);
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

  FormReader reader(context, old_record.FileName, form);
  const FormReadResult result = reader.Read(text);
  if (result != FormReadResult::Read) {
    tables.FormsUser[slot] = std::move(old_window);
    *record = std::move(old_record);
    return result;
  }
  if (current) tables.CurrentForm = tables.FormsUser[slot].get();
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
  bool main_form_named = false;
  for (const std::string_view line : Split(*text, "\r\n")) {
    if (line.empty()) continue;
    if (line.starts_with(kMainFormMark)) {
      tables.MainFormName = line.substr(kMainFormMark.size());
      main_form_named = true;
    } else {
      ReadListedForm(context, FormPathOf(tables, line));
    }
  }
  if (tables.FormsCount == 0) {
    std::string named = tables.MainFormName;
    AddForm(tables);
    if (main_form_named) tables.MainFormName = std::move(named);
    TellRead(context, 1);
  }
  // The main form is named behind the forms, which the list has shown by now.
  if (main_form_named) context.Observer.FormListChanged();
  tables.CurrentForm = tables.User(1);
  context.Container.ActivateForm(1);
  context.Container.ShowContainer();
  context.Observer.CurrentFormChanged();
  tables.LoadingProject = 0;
  return true;
}

}  // namespace tarnwick
