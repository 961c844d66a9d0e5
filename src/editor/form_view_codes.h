// `FormViewCodes`: the Public Declarations of a form.
#pragma once

#include <string>
#include <string_view>

#include "editor/code_host.h"
#include "editor/edit_widget.h"
#include "editor/typed_text.h"
#include "model/project_records.h"

namespace tarnwick::editor {

/// The fonts that the two code windows ask their editing widgets for. The second name is no font:
/// the widget falls back to its default one.
inline constexpr std::string_view kCodeFont = "Courier New";
inline constexpr std::string_view kDeclarationsFont = "Courdir new";
inline constexpr int kCodeFontPoints = 10;

/// The window without its widgets. Only Store and Accept write; every other way out keeps what was
/// typed as a draft, which the next opening on the form offers.
class FormViewCodes {
 public:
  FormViewCodes(ProjectTables& project, EditWidget& editor, CodeHost& host, CodeDrafts& drafts)
      : project_(project), host_(host), typed_(editor, drafts) {}

  /// Shows the declarations of a form; false, and nothing changed, for a form that is not there.
  /// What is typed stays when the form is open already.
  bool Open(int form);
  [[nodiscard]] bool IsOpen() const noexcept { return form_ != 0; }
  /// Number of the form that is open; 0 while the window is closed.
  [[nodiscard]] int Form() const noexcept { return form_; }
  /// "Form: Main  (Public Declarations)".
  [[nodiscard]] std::string Caption() const;
  /// Stores the text, as one step; nothing for the text that is stored, and for a form that has
  /// gone.
  void Store();
  /// `Command1`: stores the text and closes. The text of a form that has gone is a draft.
  void Accept();
  /// Every other way out: the declarations stay as they were.
  void Cancel();
  /// The form's record has changed, by an undo: the text follows while nothing was typed.
  void Refresh();

  /// The shown text with its key, and what was lost there.
  [[nodiscard]] TypedText& Typed() noexcept { return typed_; }
  [[nodiscard]] const TypedText& Typed() const noexcept { return typed_; }

 private:
  [[nodiscard]] FormRec* Record() const;
  void Close();

  ProjectTables& project_;
  CodeHost& host_;
  TypedText typed_;
  int form_ = 0;
};

}  // namespace tarnwick::editor
