// `FormCodigo`: the window of the code editor.
#pragma once

#include <QWidget>
#include <memory>

#include "editor/code_marks.h"
#include "editor/form_codigo.h"
#include "qt/editor/code_edit.h"
#include "qt/editor/code_tools.h"

class QComboBox;
class QLabel;
class QToolBar;

namespace tarnwick {

class CodeMarksView;
class CommandCenter;
class FindDialog;
class FunctionPanelView;
class GripSplitter;
class LostCodeBar;

/// What the window asks of the program around it, besides its own logic.
struct CodeWindowPorts {
  FilePort& Files;
  DialogPort& Dialogs;
  Settings& SettingsFile;
  CommandCenter& Commands;
  editor::CodeMarks& Marks;
};

/// Shows one event's code with its list of events, the function panel, and the commands of a text.
/// It stands beside the design forms and is never modal.
class CodeWindow final : public QWidget {
  Q_OBJECT

 public:
  /// Takes `code`, which `logic` works on, as the child that shows the text.
  CodeWindow(editor::FormCodigo& logic, CodeEdit& code, const CodeWindowPorts& ports,
             QWidget* parent);
  ~CodeWindow() override;

  /// Shows what the logic has opened.
  void ShowOpened();
  /// Caption, events and the offer of lost code again.
  void Refresh();
  /// The Public Declarations have changed: the text is checked with them.
  void CheckAgain();
  void BringToFront();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void BuildTools();
  void BuildLayout();
  void OpenFile();
  void SaveFile();
  void ShowFunctions(bool shown);
  void ShowHelpOf(const QString& word);
  void ShowMenu(const QPoint& place);

  editor::FormCodigo& logic_;
  CodeEdit& code_;
  CodeWindowPorts ports_;
  QComboBox* events_;
  LostCodeBar* lost_;
  GripSplitter* parts_;
  FunctionPanelView* functions_;
  FindDialog* find_;
  QLabel* mark_text_;
  CodeMarksView* marks_;
  QToolBar* bar_;
  std::unique_ptr<CodeTools> tools_;
  bool events_by_key_ = false;  ///< the last choice among the events began with a key
};

}  // namespace tarnwick
