#include "qt/editor/code_windows_view.h"

#include <QWidget>

#include "designer/history/history.h"
#include "editor/code_marks.h"
#include "qt/editor/code_edit.h"
#include "qt/editor/code_window.h"
#include "qt/editor/declarations_window.h"
#include "qt/kit/above_modal.h"
#include "shell/events_bar.h"
#include "shell/mdi_form.h"

namespace tarnwick {

void CodeWindowsView::Host::PopBoockMarck(int form, std::string_view name) {
  bar_.PopBoockMarck(form, name);
}

void CodeWindowsView::Host::DelBoockMarck(int form, std::string_view name) {
  bar_.DelBoockMarck(form, name);
}

void CodeWindowsView::Host::AcceptBegins(int form, std::string_view step) {
  steps_.Begin(form, step);
}

void CodeWindowsView::Host::CodeAccepted(int /*form*/) {
  steps_.End();
}

/// Each window: its look-up, its widget, its logic, and the window around them.
struct CodeWindowsView::Parts {
  Parts(MDIForm1& shell, QWidget& parent)
      : CodeLookup(shell.Tables(), shell.Support(), editor::kFixedWordsOfCode),
        DeclareLookup(shell.Tables(), shell.Support(), editor::kFixedWordsOfDeclarations),
        CodeHost(shell.Bar(), shell.Steps(), [this] { Code->hide(); }),
        DeclareHost(shell.Bar(), shell.Steps(), [this] { Declare->hide(); }),
        CodeText(new CodeEdit(QStringLiteral("Editor"), shell.Support().Keywords, CodeLookup,
                              editor::kCodeFont, nullptr)),
        DeclareText(new CodeEdit(QStringLiteral("EditorPublic"), shell.Support().Keywords,
                                 DeclareLookup, editor::kDeclarationsFont, nullptr)),
        Codigo(shell.Tables(), shell.Support(), shell.SettingsFile(), *CodeText, CodeHost),
        Declarations(shell.Tables(), *DeclareText, DeclareHost),
        Marks(shell.Tables(), shell.Context().Files),
        Code(new CodeWindow(Codigo, *CodeText,
                            {shell.Context().Files, shell.Context().Dialogs, shell.SettingsFile(),
                             shell.Commands(), Marks},
                            &parent)),
        Declare(
            new DeclarationsWindow(Declarations, *DeclareText, Marks, shell.Commands(), &parent)) {}

  editor::MemberLookup CodeLookup;
  editor::MemberLookup DeclareLookup;
  Host CodeHost;
  Host DeclareHost;
  // The windows own the widgets that their logic works on.
  CodeEdit* CodeText;
  CodeEdit* DeclareText;
  editor::FormCodigo Codigo;
  editor::FormViewCodes Declarations;
  editor::CodeMarks Marks;
  CodeWindow* Code;
  DeclarationsWindow* Declare;
};

CodeWindowsView::CodeWindowsView(MDIForm1& shell, QWidget& main_window)
    : shell_(shell), main_window_(main_window) {}

CodeWindowsView::~CodeWindowsView() {
  if (parts_ == nullptr) return;
  // Before their logic, which the windows call until their end.
  delete parts_->Code;
  delete parts_->Declare;
}

void CodeWindowsView::LoadCodeWindows() {
  if (parts_ == nullptr) parts_ = std::make_unique<Parts>(shell_, main_window_);
}

void CodeWindowsView::OpenCode() {
  LoadCodeWindows();
  const ProjectTables& project = shell_.Tables();
  if (project.CurrentForm == nullptr) return;
  code_was_last_ = true;
  editor::FormCodigo& codigo = parts_->Codigo;
  const bool jumps = !project.JumpKey.empty();
  if (codigo.IsOpen()) {
    if (!jumps && codigo.Target() == editor::TargetOfSelection(*project.CurrentForm)) {
      parts_->Code->BringToFront();
      return;
    }
    codigo.StoreShown();
  }
  codigo.Open();
  parts_->Code->ShowOpened();
}

bool CodeWindowsView::IsCodeOpen() {
  return parts_ != nullptr && parts_->Codigo.IsOpen();
}

void CodeWindowsView::BringCodeToFront() {
  if (IsCodeOpen()) parts_->Code->BringToFront();
}

void CodeWindowsView::StoreShownCode() {
  if (parts_ != nullptr) parts_->Codigo.StoreShown();
}

void CodeWindowsView::CloseCode() {
  if (parts_ == nullptr) return;
  parts_->Codigo.Cancel();
  parts_->Declarations.Cancel();
  // What was lost belongs to the project that goes.
  parts_->Codigo.Drafts().Clear();
}

void CodeWindowsView::OpenPublicDeclarations() {
  LoadCodeWindows();
  const DesignForm* current = shell_.Tables().CurrentForm;
  if (current != nullptr && parts_->Declarations.Open(current->Number())) {
    LetWorkAboveModal(*parts_->Declare, main_window_);
    parts_->Declare->ShowOpened();
    code_was_last_ = false;
  }
}

bool CodeWindowsView::HasTypedCode() {
  return parts_ != nullptr && parts_->Codigo.HasTyped();
}

std::map<std::string, std::string> CodeWindowsView::TypedCode() {
  if (parts_ == nullptr) return {};
  return parts_->Codigo.NotAccepted();
}

void CodeWindowsView::OfferCode(const std::map<std::string, std::string>& code) {
  LoadCodeWindows();
  parts_->Codigo.KeepDrafts(code);
}

void CodeWindowsView::ShowLine(int line) {
  if (parts_ == nullptr) return;
  CodeEdit* const text = code_was_last_ ? parts_->CodeText : parts_->DeclareText;
  if (text->isVisible()) text->SetCaretPos(line - 1, 0);
}

void CodeWindowsView::NameChanged(int form, std::string_view old_name, std::string_view new_name) {
  if (!IsCodeOpen()) return;
  parts_->Codigo.NameChanged(form, old_name, new_name);
  parts_->Code->Refresh();
}

}  // namespace tarnwick
