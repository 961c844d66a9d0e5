// `FormViewObjects` on the screen.
#pragma once

#include <QWidget>

#include "inspector/objects_examiner.h"
#include "shell/shell_windows.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

namespace tarnwick {

/// The Objects Examiner. It is not modal, so that it can stand beside the code; opened again it
/// comes to the front. By the keyboard alone:
///
///   letters          find a kind; Up, Down, Page Up, Page Down move in it from the field
///   Enter, Right     on to the members; Left goes back to the kinds
///   Esc              closes
class ObjectsExaminerWindow final : public QWidget, public ExaminerWindow {
  Q_OBJECT

 public:
  ObjectsExaminerWindow(FormViewObjects& logic, QWidget* parent);

  /// Fills the lists, shows the window and gives the focus to the search.
  void OpenExaminer() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build();
  void ShowKind();
  void ShowText();
  bool PressInSearch(QKeyEvent& event);

  FormViewObjects& logic_;
  QWidget* home_;  ///< the parent, but for the time of a modal dialog
  QLineEdit* find_;
  QListWidget* kinds_;
  QListWidget* members_;
  QLabel* members_label_;
  QPlainTextEdit* text_;
};

}  // namespace tarnwick
