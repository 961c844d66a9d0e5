// The buttons of the tool box; the docked box and the floating one are two of these.
#pragma once

#include <QWidget>
#include <utility>
#include <vector>

class QToolButton;

namespace tarnwick {

class CommandCenter;

/// One button for each tool, in the order of the screen. The armed tool's button stays down.
class ToolBoxPanel final : public QWidget {
  Q_OBJECT

 public:
  /// Buttons are named `name` and the tool's number.
  ToolBoxPanel(CommandCenter& commands, const QString& name, int columns, QWidget* parent);

  /// Reads the state of all tools again.
  void Refresh();

 private:
  CommandCenter& commands_;
  std::vector<std::pair<int, QToolButton*>> buttons_;
};

}  // namespace tarnwick
