// `WndFunc`: the function panel beside the code.
#pragma once

#include <QFrame>
#include <array>

#include "editor/function_panel.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QTabWidget;

namespace tarnwick {

/// Three tabs of functions and the help of the one that was chosen.
class FunctionPanelView final : public QFrame {
  Q_OBJECT

 public:
  FunctionPanelView(editor::FunctionPanel& panel, QWidget* parent);

  /// Reads the lists again and shows the row of `ComboSearch`.
  void Refresh(int search_row);
  /// Shows the help that the panel has now.
  void ShowHelp();
  /// Gives the focus to the field of the tab that is shown.
  void FocusSearch();

 Q_SIGNALS:
  void CloseWanted();
  void SearchRowChosen(int row);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  struct Tab {
    QListWidget* List = nullptr;
    QLineEdit* Field = nullptr;
  };
  void BuildTab(int tab);
  void RefreshList(int tab);
  void Search();

  editor::FunctionPanel& panel_;
  QTabWidget* tabs_;
  QComboBox* where_;
  QPlainTextEdit* help_;
  std::array<Tab, editor::kFunctionListCount> parts_;
};

}  // namespace tarnwick
