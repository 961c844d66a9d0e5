// The windows that the commands of the main window open, as narrow ports.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tarnwick {

class ShellView;

/// `FormCodigo` and `FormViewCodes`, the editors of event code and public declarations.
class CodeWindows {
 public:
  CodeWindows() = default;
  CodeWindows(const CodeWindows&) = delete;
  CodeWindows& operator=(const CodeWindows&) = delete;
  virtual ~CodeWindows() = default;

  /// Builds both windows, hidden. The support tables are filled by then.
  virtual void LoadCodeWindows() = 0;
  /// Opens `FormCodigo` on the selection of the current form, or where `JumpKey` says.
  virtual void OpenCode() = 0;
  [[nodiscard]] virtual bool IsCodeOpen() = 0;
  virtual void BringCodeToFront() = 0;
  /// Stores the text that `FormCodigo` shows, as a change of event does; nothing while it is
  /// closed. A text of `FormViewCodes` stays there until its Ok.
  virtual void StoreShownCode() = 0;
  /// Closes `FormCodigo` and `FormViewCodes`; what was not accepted goes.
  virtual void CloseCode() = 0;
  /// Opens `FormViewCodes` on the current form.
  virtual void OpenPublicDeclarations() = 0;
  /// Puts the caret of the editor that was opened last at a line, from 1; nothing while none is
  /// open.
  virtual void ShowLine(int line) = 0;
  /// Object or form was renamed: the names that the editors show follow.
  virtual void NameChanged(int form, std::string_view old_name, std::string_view new_name) = 0;
  /// True while `FormCodigo` or `FormViewCodes` shows a text that differs from what is stored.
  [[nodiscard]] virtual bool HasTypedCode() = 0;
  /// The code and the declarations that were typed and not accepted, by their keys.
  [[nodiscard]] virtual std::map<std::string, std::string> TypedCode() = 0;
  /// Offers such code at the next opening on its key.
  virtual void OfferCode(const std::map<std::string, std::string>& code) = 0;
};

/// `FormMenu` and `FormPopUp`, the designers of menus.
class MenuWindows {
 public:
  MenuWindows() = default;
  MenuWindows(const MenuWindows&) = delete;
  MenuWindows& operator=(const MenuWindows&) = delete;
  virtual ~MenuWindows() = default;

  /// Opens `FormMenu` on the current form.
  virtual void OpenMenuEdit() = 0;
  /// Opens `FormPopUp` on a popup menu of the form and returns when it is closed.
  virtual void OpenPopUpEdit(int form, int index) = 0;
};

/// `FormViewObjects`, the Objects Examiner.
class ExaminerWindow {
 public:
  ExaminerWindow() = default;
  ExaminerWindow(const ExaminerWindow&) = delete;
  ExaminerWindow& operator=(const ExaminerWindow&) = delete;
  virtual ~ExaminerWindow() = default;

  virtual void OpenExaminer() = 0;
};

/// All windows of the program, as the start hands them to the commands. They outlive every
/// command.
struct ShellWindows {
  ShellView& Main;
  CodeWindows& Code;
  MenuWindows& Menus;
  ExaminerWindow& Examiner;
};

}  // namespace tarnwick
