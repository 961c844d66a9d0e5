// Shows the mistakes of a code window's text beside the text.
#pragma once

#include <QObject>
#include <QThreadPool>
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
/// The check runs on a thread of its own, so that typing in a very long text stays fluent; what it
/// finds counts only when nothing was typed meanwhile.
class CodeMarksView final : public QObject {
  Q_OBJECT

 public:
  /// Makes the check of what is shown.
  using Prepare = std::function<editor::CodeCheck()>;

  CodeMarksView(CodeEdit& code, QLabel& words, editor::CodeMarks& checks, Prepare prepare);

  [[nodiscard]] const std::vector<editor::CodeMark>& Marks() const noexcept { return marks_; }
  /// True while a check runs.
  [[nodiscard]] bool Checking() const noexcept { return checking_; }
  /// Another text is shown: its check comes after a pause, and the old marks go at once.
  void Restart();
  /// What the text depends on has changed: it is checked again, with the files as they are now.
  void CheckAgain();
  /// Shows another text in the line of words, until text or caret change.
  void Tell(const QString& text);
  /// Moves the caret to the first mark behind it, or to the first of all; nothing without marks.
  void GoToNext();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void SetUp();
  void CheckNow();
  void Finish(editor::CodeCheck::Found found, unsigned version);
  void Clear();
  void ShowMark(const editor::CodeMark& mark);
  void ShowWords();
  /// The texts of the marks on a line, one a row; "" for a line without marks.
  [[nodiscard]] QString TextOf(int line) const;
  void ShowTip(const QHelpEvent& event);

  CodeEdit& code_;
  QLabel& words_;
  editor::CodeMarks& checks_;
  Prepare prepare_;
  QTimer pause_;
  std::vector<editor::CodeMark> marks_;
  unsigned version_ = 0;   ///< of the text: each change makes another
  bool checking_ = false;  ///< of this object's thread alone
  QThreadPool thread_;     ///< its end waits for the check that runs
};

}  // namespace tarnwick
