// Shows the mistakes of a code window's text beside the text.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "editor/code_marks.h"

class QHelpEvent;
class QLabel;

namespace tarnwick {

class CodeEdit;

/// Checks the text after a pause in typing and shows each mistake as a sign in the margin and a
/// wavy line under its place, both with a tip, and in words in a line of the window. It never opens
/// a box and never takes the focus.
///
/// The pause grows with the time that a check takes, so that typing in a very long text stays
/// fluent.
class CodeMarksView final : public QObject {
  Q_OBJECT

 public:
  using Check = std::function<std::vector<editor::CodeMark>(const std::string& text)>;

  CodeMarksView(CodeEdit& code, QLabel& words, Check check);

  [[nodiscard]] const std::vector<editor::CodeMark>& Marks() const noexcept { return marks_; }
  /// Another text is shown: its check comes after a pause, and the old marks go at once.
  void Restart();
  /// Moves the caret to the first mark behind it, or to the first of all; nothing without marks.
  void GoToNext();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void SetUp();
  void CheckNow();
  void Clear();
  void ShowMark(const editor::CodeMark& mark);
  void ShowWords();
  /// The texts of the marks on a line, one a row; "" for a line without marks.
  [[nodiscard]] QString TextOf(int line) const;
  void ShowTip(const QHelpEvent& event);

  CodeEdit& code_;
  QLabel& words_;
  Check check_;
  QTimer pause_;
  std::vector<editor::CodeMark> marks_;
};

}  // namespace tarnwick
