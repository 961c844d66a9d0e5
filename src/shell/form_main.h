// `FormMain`: the dialog that chooses the main form.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/project_records.h"

namespace tarnwick {

/// Logic of the dialog. The view shows `List1` and `Text1`, forwards clicks and typing, and
/// closes on either button.
class FormMain {
 public:
  /// Takes the lines of the form list; the one that is the main form's text is selected.
  explicit FormMain(const ProjectTables& tables);

  [[nodiscard]] const std::vector<std::string>& List1() const noexcept { return list_; }
  /// Selected line from 0; -1 for none.
  [[nodiscard]] int Selected() const noexcept { return selected_; }
  [[nodiscard]] const std::string& Text1() const noexcept { return text_; }

  /// A line was clicked: its text goes to `Text1`. An index without a line does nothing.
  void List1_Click(int index);
  /// Anything may be typed, it is taken as it stands.
  void Text1_Change(std::string_view text);
  /// OK: the main form's text becomes that of `Text1`.
  void Command1_Click(ProjectTables& tables) const;

 private:
  std::vector<std::string> list_;
  std::string text_;
  int selected_ = -1;
};

/// What the form list shows at a glance beside its lines.
struct FormListMarks {
  /// The number of the form that is the main form; 0 when no form has that name.
  int MainForm = 0;
  /// The name part of `MainFormName`.
  std::string MainName;
};

/// The main form goes by the name part of its text, as the generator reads it. Among forms of the
/// same name, the one whose whole line is the text comes first.
[[nodiscard]] FormListMarks MarksOf(const ProjectTables& tables);

}  // namespace tarnwick
