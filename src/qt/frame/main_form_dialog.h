// `FormMain` on the screen: chooses the main form.
#pragma once

class QWidget;

namespace tarnwick {

class FormCommands;

/// Opens the dialog and takes its choice.
void RunMainFormDialog(FormCommands& forms, QWidget* parent);

}  // namespace tarnwick
