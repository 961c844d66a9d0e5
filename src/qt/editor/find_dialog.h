// Find and replace in the text of a code window.
#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tarnwick {

class CodeEdit;

/// Stays open beside its window and works on its text. Nothing found, and how many were replaced,
/// is said in a line of its own, never in a box.
class FindDialog final : public QDialog {
  Q_OBJECT

 public:
  FindDialog(CodeEdit& code, QWidget* parent);

  /// Shows the dialog; what is selected within one line becomes the text to find.
  void Open();
  /// Goes to the next or the one before, from the selection on; false when there is none.
  bool Find(bool forward);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void Build();
  void MoveAside();
  void Replace();
  void ReplaceAll();
  [[nodiscard]] bool SelectionMatches() const;
  /// Flags of the editing widget's own search.
  [[nodiscard]] int SearchFlags() const;

  CodeEdit& code_;
  QLineEdit* find_;
  QLineEdit* replace_;
  QCheckBox* match_case_;
  QCheckBox* whole_words_;
  QCheckBox* wrap_;
  QLabel* said_;
};

}  // namespace tarnwick
