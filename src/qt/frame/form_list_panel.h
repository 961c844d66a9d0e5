// `ListaFrms`: the list of the project's forms.
#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QVBoxLayout;

namespace tarnwick {

class MDIForm1;
class CommandActions;
class PanelFrame;

/// Shows a line for each form, marks the main form, and says so when no form has the main form's
/// name.
class FormListPanel final : public QWidget {
  Q_OBJECT

 public:
  FormListPanel(CommandActions& commands, QWidget* parent);

  void Attach(MDIForm1& shell) { shell_ = &shell; }
  /// Reads lines and marks anew.
  void Refresh();
  /// Marks a line as selected; -1 for none.
  void Select(int place);

 private:
  MDIForm1* shell_ = nullptr;
  QListWidget* list_;
  QLabel* warning_;
};

}  // namespace tarnwick
