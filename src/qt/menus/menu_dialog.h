// The window of both menu designers.
#pragma once

#include <QDialog>
#include <array>

#include "menus/menu_designer.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tarnwick {

class MenuPreviewView;
class RowListView;

/// `FormMenu` or `FormPopUp`, as the designer says: the row list with its text boxes and buttons,
/// and a preview of the menu beside it. All of it can be done by keys alone.
class MenuDialog final : public QDialog {
  Q_OBJECT

 public:
  MenuDialog(menus::MenuDesigner& designer, QWidget* parent);

  /// While another window works above this one nothing here can be pressed, and the dialog stays.
  void SetWaiting(bool waiting);

 public slots:
  void reject() override;

 signals:
  /// The user tried to close the dialog while it waits.
  void CloseRefused();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// `Command1` by index.
  static constexpr int kButtonCount = 11;

  void BuildFields();
  void BuildButtons();
  void BuildLayout();
  void BindKeys();
  QHBoxLayout* ButtonRow();
  void Press(std::size_t index);
  void Add();
  void Accept();
  /// Calls a method of the row list, then shows what it made.
  template <class Step>
  void Do(Step step);
  void ShowList();
  void ShowTexts();
  void ShowPreview();
  void TakeTexts();
  [[nodiscard]] bool PressInList(int key);
  [[nodiscard]] bool PressInField(int key);

  menus::MenuDesigner& designer_;
  QWidget* content_;
  std::array<QLineEdit*, 2> texto_{};
  std::array<QPushButton*, kButtonCount> buttons_{};
  QPushButton* subroutines_ = nullptr;
  RowListView* list_;
  QLabel* fault_;
  MenuPreviewView* preview_;
};

}  // namespace tarnwick
