// `FormViewObjects` on the screen.
#pragma once

#include <QWidget>

#include "inspector/objects_examiner.h"

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
class ObjectsExaminerWindow final : public QWidget {
  Q_OBJECT

 public:
  ObjectsExaminerWindow(const language::SupportTables& tables, QWidget* parent);

  /// Fills the lists, shows the window and gives the focus to the search.
  void Open();
  /// The logic behind, for whoever wants a row selected at the next opening.
  [[nodiscard]] FormViewObjects& Logic() { return logic_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build();
  void ShowKind();
  void ShowText();
  bool PressInSearch(QKeyEvent& event);

  FormViewObjects logic_;
  QLineEdit* find_;
  QListWidget* kinds_;
  QListWidget* members_;
  QLabel* members_label_;
  QPlainTextEdit* text_;
};

}  // namespace tarnwick
