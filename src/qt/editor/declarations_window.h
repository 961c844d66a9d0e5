// `FormViewCodes`: the window of a form's Public Declarations.
#pragma once

#include <QWidget>
#include <memory>

#include "editor/code_marks.h"
#include "editor/form_view_codes.h"
#include "persistence/settings.h"
#include "qt/editor/code_edit.h"
#include "qt/editor/code_tools.h"

class QToolBar;

namespace tarnwick {

class CodeMarksView;
class CommandCenter;
class FindDialog;
class LostCodeBar;

/// An editor, a toolbar and an Ok; it stands beside the other windows.
class DeclarationsWindow final : public QWidget {
  Q_OBJECT

 public:
  /// Takes `code`, which `logic` works on, as the child that shows the text.
  DeclarationsWindow(editor::FormViewCodes& logic, CodeEdit& code, editor::CodeMarks& marks,
                     Settings& settings, CommandCenter& commands, QWidget* parent);
  ~DeclarationsWindow() override;

  /// Shows what the logic has opened.
  void ShowOpened();
  /// Caption and the offer of a lost text again.
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  editor::FormViewCodes& logic_;
  CodeEdit& code_;
  Settings& settings_;
  LostCodeBar* lost_;
  FindDialog* find_;
  CodeMarksView* marks_;
  QToolBar* bar_;
  std::unique_ptr<CodeTools> tools_;
};

}  // namespace tarnwick
