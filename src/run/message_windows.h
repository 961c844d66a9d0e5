// Windows in which the runner itself speaks: the run-time error, and the errors of a source.
#pragma once

#include <QString>
#include <QStringList>

namespace tarnwick::run {

struct FaultText {
  QString Title;
  QString What;       ///< what is wrong
  QString Place;      ///< "notes.com, line 12"; may be empty
  QString Line;       ///< the text of the line; may be empty
  QStringList Chain;  ///< the running calls, innermost first; may be empty
};

/// Shows an error and waits until the box is closed. With `can_show` it has a button that shows the
/// place in the program that started the runner: true when that was pressed.
bool ShowFault(const FaultText& fault, bool can_show);

/// Shows the errors of a source that cannot be run, and waits until the window is closed.
void ShowErrors(const QString& title, const QStringList& errors);

/// Closes the menus, messages and dialogs that are open, as Esc would, the innermost first: a
/// program that is to end does not wait for the user.
void CloseMessages();
/// The same as soon as the toolkit's thread takes its events; may be called from any thread.
void CloseMessagesSoon();

}  // namespace tarnwick::run
