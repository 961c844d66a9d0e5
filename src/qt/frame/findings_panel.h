// The panel with the findings of the project's check.
#pragma once

#include <QWidget>

class QTreeWidget;

namespace tarnwick {

class FindingsList;

/// The list at the foot of the main window. Enter or a double click goes to what a line is about;
/// Esc and the close button ask for the panel to be hidden.
class FindingsPanel final : public QWidget {
  Q_OBJECT

 public:
  FindingsPanel(FindingsList& findings, QWidget* parent);

  /// Reads the lines again; the selection stays at its line.
  void Refresh();
  /// Gives the focus to the list, on its first line unless one is selected.
  void FocusList();

 Q_SIGNALS:
  void HideWanted();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  FindingsList& findings_;
  QTreeWidget* list_;
};

}  // namespace tarnwick
