// What the running program printed and what was said about it.
#pragma once

#include <QWidget>

#include "shell/run_lines.h"

class QListView;
class QToolButton;

namespace tarnwick {

class CommandActions;
class PanelFrame;
class RunCommand;
class RunLinesModel;

/// The lines as a list. A double click on a message, or Enter, goes to its place.
class OutputPanel final : public QWidget, public RunLinesView {
  Q_OBJECT

 public:
  OutputPanel(RunCommand& run, CommandActions& commands, QWidget* parent);
  ~OutputPanel() override;

  /// Shows the lines soon: a program prints many in a moment.
  void RunLinesChanged() override;
  [[nodiscard]] QListView& List() { return *list_; }

 signals:
  /// The close button was pressed.
  void HideWanted();

 private:
  QToolButton* AddButton(const QString& name, const QString& text, const QString& icon);
  void Refresh();

  RunCommand& run_;
  PanelFrame* frame_;
  RunLinesModel* model_;
  QListView* list_;
  bool refresh_waits_ = false;
};

}  // namespace tarnwick
