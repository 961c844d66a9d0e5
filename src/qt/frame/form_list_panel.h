// `ListaFrms`: the list of the project's forms.
#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QVBoxLayout;

namespace tarnwick {

class FormCommands;
class CommandActions;
class PanelFrame;

/// Shows a line for each form, marks the main form, and says so when no form has the main form's
/// name.
class FormListPanel final : public QWidget {
  Q_OBJECT

 public:
  FormListPanel(FormCommands& forms, CommandActions& commands, QWidget* parent);

  /// Reads lines and marks again.
  void Refresh();
  /// Marks a line as selected; -1 for none.
  void Select(int index);

 private:
  FormCommands& forms_;
  QListWidget* list_;
  QLabel* warning_;
};

}  // namespace tarnwick
