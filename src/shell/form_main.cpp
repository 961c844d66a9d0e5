#include "shell/form_main.h"

#include "text/code_page.h"

namespace tarnwick {

FormMain::FormMain(const ProjectTables& tables) : text_(tables.MainFormName) {
  const auto& lines = tables.ListaFrms.Lines();
  list_.reserve(lines.size());
  for (const FormList::Line& line : lines) {
    if (selected_ < 0 && line.Text == text_) selected_ = static_cast<int>(list_.size());
    list_.push_back(line.Text);
  }
}

void FormMain::List1_Click(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= list_.size()) return;
  selected_ = index;
  text_ = list_[static_cast<std::size_t>(index)];
}

void FormMain::Text1_Change(std::string_view text) {
  text_ = text;
}

void FormMain::Command1_Click(ProjectTables& tables) const {
  tables.MainFormName = text_;
}

FormListMarks MarksOf(const ProjectTables& tables) {
  FormListMarks marks;
  marks.MainName = FormListName(tables.MainFormName);
  for (const FormList::Line& line : tables.ListaFrms.Lines()) {
    const FormRec* record = tables.Form(line.FormNumber);
    if (record == nullptr || !EqualsFolded(record->Name, marks.MainName)) continue;
    if (line.Text == tables.MainFormName) {
      marks.MainForm = line.FormNumber;
      return marks;
    }
    if (marks.MainForm == 0) marks.MainForm = line.FormNumber;
  }
  return marks;
}

}  // namespace tarnwick
