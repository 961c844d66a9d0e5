// Commands on the forms of the project: adding, removing, choosing.
#pragma once

#include "inspector/property_sheet.h"
#include "project/project_context.h"
#include "shell/form_main.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// The form list and the container in step: the form that is chosen in one is in front in the
/// other, and is `CurrentForm`.
class FormCommands final : public project::ContainerHost {
 public:
  FormCommands(ShellState& state, PropertySheet& sheet) : state_(state), sheet_(sheet) {}

  /// `AddForm`: the first form of a project, or one for a project that has none left.
  void AddFirst();
  /// Add New Form, always another one.
  void AddNew();
  /// Asks, then takes the current form out of the project. Its number is never used again.
  void Remove();
  /// A line of the form list was chosen, from 0: its form comes up with its events bar. While the
  /// code editor is open that comes to the front, and nothing is chosen; nor while a command runs.
  void SelectLine(int index);
  /// Enter on a line: goes to its form.
  void GoToLine(int index);
  /// A design window came to the front by the user's hand; the same rule holds.
  void Activated(int form);
  /// The lines of the form list, and which one is the main form's.
  [[nodiscard]] const std::vector<FormList::Line>& Lines() const {
    return state_.Tables.ListaFrms.Lines();
  }
  [[nodiscard]] FormListMarks Marks() const;
  /// The logic of the dialog of the main form, as it opens.
  [[nodiscard]] FormMain MainFormDialog() const { return FormMain(state_.Tables); }
  /// `FormMain`'s OK: takes the dialog's text.
  void TakeMainForm(const FormMain& dialog);
  /// Runs the dialog of the main form.
  void SelectMainForm() const;

  /// True while some form is not removed.
  [[nodiscard]] bool HasForm() const;
  /// The lowest form number in use; 0 for none.
  [[nodiscard]] int FirstForm() const;
  /// Makes a form the current one, in front, selected in the list. The keyboard focus stays.
  void BringUp(int form);
  /// The same, and the form gets the keyboard focus.
  void GoTo(int form);
  /// The user closed a form's window: it is hidden, and the next visible form of the list becomes
  /// the current one, or none.
  void WindowClosed(int form);
  /// Makes a form the current one; with 0 there is none.
  void Show(int form);
  /// Notifies the observers that every form closes, then empties the project.
  void CloseAll();

  void HideContainer() override { state_.View->HideContainer(); }
  void ShowContainer() override { state_.View->ShowContainer(); }
  /// Only the tables change: a save shows no window that the user closed, and leaves focus,
  /// selection and grid alone.
  void ActivateForm(int form) override;

 private:
  void Opened(int form);
  void Choose(int form);
  void NoCurrentForm();
  [[nodiscard]] int CurrentNumber() const;
  void MarkCurrentLine();

  ShellState& state_;
  PropertySheet& sheet_;
};

}  // namespace tarnwick
