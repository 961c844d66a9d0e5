// `FormViewCodes`: the Public Declarations of a form.
#pragma once

#include <string>
#include <string_view>

#include "editor/code_host.h"
#include "editor/edit_widget.h"
#include "model/project_records.h"

namespace tarnwick::editor {

/// The fonts that the two code windows ask their editing widgets for. The second name is no font:
/// the widget falls back to its default one.
inline constexpr std::string_view kCodeFont = "Courier New";
inline constexpr std::string_view kDeclarationsFont = "Courdir new";
inline constexpr int kCodeFontPoints = 10;

/// The window without its widgets. Only Accept writes.
class FormViewCodes {
 public:
  FormViewCodes(ProjectTables& project, EditWidget& editor, CodeHost& host)
      : project_(project), editor_(editor), host_(host) {}

  /// Shows the declarations of a form; false, and nothing changed, for a form that is not there.
  bool Open(int form);
  [[nodiscard]] bool IsOpen() const noexcept { return form_ != 0; }
  /// Number of the form that is open; 0 while the window is closed.
  [[nodiscard]] int Form() const noexcept { return form_; }
  /// "Form: Main  (Public Declarations)".
  [[nodiscard]] const std::string& Caption() const noexcept { return caption_; }
  /// `Command1`: stores the text and closes.
  void Accept();
  /// Every other way out: the declarations stay as they were.
  void Cancel();

 private:
  void Close();

  ProjectTables& project_;
  EditWidget& editor_;
  CodeHost& host_;
  int form_ = 0;
  std::string caption_;
};

}  // namespace tarnwick::editor
