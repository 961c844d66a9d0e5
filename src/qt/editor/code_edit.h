// The editing widget of both code windows.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <Qsci/qsciscintilla.h>

#include "editor/edit_widget.h"
#include "editor/intellisense.h"

namespace tarnwick {

class CodeLexer;
class MemberListPopup;

/// Colours, line numbers, the line mark and the member list around the toolkit's editing widget.
/// The text is that of the code page: a character that it lacks becomes "?" as it is typed.
class CodeEdit final : public QsciScintilla, public editor::EditWidget {
  Q_OBJECT

 public:
  /// The margin between line numbers and text, for signs that stand beside a line.
  static constexpr int kSignMargin = 1;

  /// `font_name` may name no font at all: the widget falls back to its default one.
  CodeEdit(const QString& name, const std::vector<std::string>& keywords,
           const editor::MemberLookup& lookup, std::string_view font_name, QWidget* parent);
  ~CodeEdit() override;

  // EditWidget
  [[nodiscard]] std::string Text() const override;
  void SetText(std::string_view text) override;
  [[nodiscard]] int LineCount() const override { return lines(); }
  [[nodiscard]] std::string GetLine(int line) const override;
  [[nodiscard]] editor::EditRange GetSel() const override;
  void SetSel(const editor::EditRange& range) override;
  void SetSelText(std::string_view text) override;
  void SetCaretPos(int line, int column) override;
  void SetFocus() override;

  [[nodiscard]] editor::Intellisense& List() { return list_; }

  /// Puts an apostrophe in front of every line of the selection, or takes it away when all of them
  /// begin with one. One step of the undo history.
  void ToggleComment();
  /// Asks for a line number and goes there.
  void GoToLine();

 Q_SIGNALS:
  /// F1: the help of the word at the caret is wanted.
  void HelpWanted(const QString& word);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  /// What is pasted or dropped, with a "?" for each character that the code page lacks.
  [[nodiscard]] QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;

 private:
  void SetUp(std::string_view font_name);
  void SetColors();
  void FitLineNumbers();
  /// Notifies the member list of what has happened to text and caret since the last call.
  void Sync();

  CodeLexer* lexer_;
  MemberListPopup* popup_;
  editor::Intellisense list_;
  bool changed_ = false;
  editor::EditRange caret_;
};

}  // namespace tarnwick
