// Toolbar and context menu of the code windows, as one table each.
#pragma once

#include <QAction>
#include <QString>
#include <array>
#include <functional>
#include <span>
#include <vector>

class QFrame;
class QToolBar;
class QWidget;

namespace tarnwick {

class CodeEdit;

/// A button of `BtnMenu` with its row of the context menu.
struct CodeTool {
  const char* Tip;  ///< of the button
  const char* Icon;
  const char* Key;      ///< "" for none
  const char* Caption;  ///< of the row; "" when the menu has no such row
  int MenuRow;          ///< -1 without a row
};

/// The buttons of a window with the commands that they start; the actions work by their keys too.
/// `BtnMenu_N` is the name of button N.
class CodeTools {
 public:
  CodeTools(std::span<const CodeTool> tools, QToolBar& bar, QWidget& window);

  [[nodiscard]] QAction& Action(int index) { return *actions_[static_cast<std::size_t>(index)]; }
  void Run(int index, std::function<void()> command);
  /// The edit commands that both windows have, from the index of Cut on: cut, copy, paste, undo,
  /// redo. Undo and redo are on while there is something to undo or redo.
  void RunEdit(CodeEdit& code, int first);

 private:
  std::vector<QAction*> actions_;
};

/// The frame around a code window's text, with the look of a panel.
[[nodiscard]] QFrame* FrameOf(CodeEdit& code);

}  // namespace tarnwick
