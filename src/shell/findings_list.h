// The findings of the project's check as a list, and the way from a finding to what it is about.
#pragma once

#include <string>
#include <vector>

#include "project/finding.h"
#include "shell/form_commands.h"
#include "shell/shell_state.h"

namespace tarnwick {

class DesignSurfaces;

/// A line of the list. All texts are in Windows-1252.
struct FindingLine {
  project::Severity How = project::Severity::Note;
  std::string Form;    ///< the form's name; "" for the project as a whole
  std::string Object;  ///< the object's name; "" for the form itself
  std::string Row;     ///< the row of the property grid, or the event of code; "" for none
  std::string Text;    ///< what is wrong and what to do
  friend bool operator==(const FindingLine&, const FindingLine&) = default;
};

/// What the check found last. The gravest findings come first, those of one gravity by their forms.
/// The view reads lines and word again at each `ShellView::FindingsChanged`.
class FindingsList {
 public:
  FindingsList(ShellState& state, DesignSurfaces& surfaces, FormCommands& forms,
               PropertySheet& sheet)
      : state_(state), surfaces_(surfaces), forms_(forms), sheet_(sheet) {}

  /// Checks the project as it stands, and its files as they lie on disk. The code line by line as
  /// well while the list is shown or names a fault of it: that reads the whole program.
  void Check() { Check(FollowsCode()); }
  /// The same with the code in any case.
  void CheckAll() { Check(true); }
  /// Checks the project again while the list or the word is shown; its files have not changed.
  void Refresh();
  /// The files have changed: checks both again while the list or the word is shown.
  void ProjectSaved();
  /// The project is another one: checks it while the list is shown, and otherwise forgets what was
  /// found.
  void ProjectReplaced();

  [[nodiscard]] const std::vector<FindingLine>& Lines() const noexcept { return lines_; }
  /// "3 findings", for the status bar; "" when there is none.
  [[nodiscard]] std::string Word() const;
  /// Goes to what a line is about: to form, object and row of the grid, or to the code. What is
  /// gone by now is passed over, and nothing happens for a line that is not there or while a
  /// command runs. While the code editor is open, a line that is not about code brings it to the
  /// front.
  void GoTo(int line);

 private:
  [[nodiscard]] bool IsShown() const;
  [[nodiscard]] bool FollowsCode() const;
  void Check(bool with_code);
  void Find(bool with_code);
  void Take(std::vector<project::Finding> findings);
  [[nodiscard]] FindingLine LineOf(const project::Finding& finding) const;
  void NameCode(const std::string& key, const project::Finding& finding, FindingLine& line) const;
  [[nodiscard]] ControlRef ObjectOf(const project::Finding& finding) const;
  [[nodiscard]] bool IsSelected(int form, const ControlRef& object) const;
  void GoToFault(const project::Finding& finding);
  void GoToCode(const project::Finding& finding, const std::string& key);
  void GoToDeclarations(const project::ProgramPlace& place);
  void GoToRow(std::string_view name);

  ShellState& state_;
  DesignSurfaces& surfaces_;
  FormCommands& forms_;
  PropertySheet& sheet_;
  std::vector<project::Finding> on_files_;
  std::vector<project::Finding> findings_;
  std::vector<FindingLine> lines_;
};

}  // namespace tarnwick
