// `ObjectBar`: the floating tool box.
#pragma once

#include <QWidget>

namespace tarnwick {

class CommandCenter;
class ToolBoxPanel;

/// The tool box as a floating window. Closing it by its own button switches its panel off.
class ObjectBar final : public QWidget {
  Q_OBJECT

 public:
  ObjectBar(CommandCenter& commands, QWidget* parent);
  /// Reads the state of all tools again.
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  CommandCenter& commands_;
  ToolBoxPanel* tools_;
};

}  // namespace tarnwick
