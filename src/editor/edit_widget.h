// What the code editor's logic asks of an editing widget.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick::editor {

/// A range of the text. Lines and columns count from 0, columns in characters.
struct EditRange {
  int StartLineNo = 0;
  int StartColNo = 0;
  int EndLineNo = 0;
  int EndColNo = 0;

  friend bool operator==(const EditRange&, const EditRange&) = default;
};

/// `Editor` of `FormCodigo` or `EditorPublic` of `FormViewCodes`. All text is Windows-1252 with CR
/// LF as line end, so a character is a byte. No method fails: what lies outside the text is moved
/// to its nearest end.
class EditWidget {
 public:
  EditWidget() = default;
  EditWidget(const EditWidget&) = delete;
  EditWidget& operator=(const EditWidget&) = delete;
  virtual ~EditWidget() = default;

  [[nodiscard]] virtual std::string Text() const = 0;
  /// Replaces the whole text; the caret goes to its start and the undo history becomes empty.
  virtual void SetText(std::string_view text) = 0;
  /// The number of lines; an empty text has one.
  [[nodiscard]] virtual int LineCount() const = 0;
  /// A line without its line end; "" for a number that no line has.
  [[nodiscard]] virtual std::string GetLine(int line) const = 0;
  /// The selection with its start before its end; without one both are the caret.
  [[nodiscard]] virtual EditRange GetSel() const = 0;
  /// Selects a range; the caret goes to its end.
  virtual void SetSel(const EditRange& range) = 0;
  /// Replaces the selection, which may be empty; the caret goes behind what was inserted.
  virtual void SetSelText(std::string_view text) = 0;
  virtual void SetCaretPos(int line, int column) = 0;
  virtual void SetFocus() = 0;
};

/// The word at the caret: the name that the caret touches, with the dot when one stands directly in
/// front of the caret; "" when the caret touches no name.
[[nodiscard]] std::string CurrentWord(const EditWidget& widget);

}  // namespace tarnwick::editor
