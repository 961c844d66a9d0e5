// What the running program printed and what was said about it.
#pragma once

#include <QWidget>

#include "shell/run_lines.h"

class QListView;

namespace tarnwick {

class RunCommand;
class RunLinesModel;

/// Hidden until the first line comes. A double click on a message, or Enter, goes to its place.
class OutputPanel final : public QWidget, public RunLinesView {
  Q_OBJECT

 public:
  OutputPanel(RunCommand& run, QWidget* parent);
  ~OutputPanel() override;

  /// Shows the lines soon: a program prints many in a moment.
  void RunLinesChanged() override;
  [[nodiscard]] QListView& List() { return *list_; }

 private:
  void Refresh();

  RunCommand& run_;
  RunLinesModel* model_;
  QListView* list_;
  bool refresh_waits_ = false;
};

}  // namespace tarnwick
