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
        DeclareHost(shell.Bar(), shell.Steps(),
                    [this] {
                      Declare->hide();
                      Code->CheckAgain();
                    }),
        CodeText(new CodeEdit(QStringLiteral("Editor"), shell.Support().Keywords, CodeLookup,
                              editor::kCodeFont, nullptr)),
        DeclareText(new CodeEdit(QStringLiteral("EditorPublic"), shell.Support().Keywords,
                                 DeclareLookup, editor::kDeclarationsFont, nullptr)),
        Drafts(shell.Tables()),
        Codigo(shell.Tables(), shell.Support(), shell.SettingsFile(), *CodeText, CodeHost, Drafts),
        Declarations(shell.Tables(), *DeclareText, DeclareHost, Drafts),
        Marks(shell.Tables(), shell.Context().Files),
        Code(new CodeWindow(Codigo, *CodeText,
                            {shell.Context().Files, shell.Context().Dialogs, shell.SettingsFile(),
                             shell.Commands(), Marks},
                            &parent)),
        Declare(new DeclarationsWindow(Declarations, *DeclareText, Marks, shell.SettingsFile(),
                                       shell.Commands(), &parent)) {}

  editor::MemberLookup CodeLookup;
  editor::MemberLookup DeclareLookup;
  Host CodeHost;
  Host DeclareHost;
  // The windows own the widgets that their logic works on.
  CodeEdit* CodeText;
  CodeEdit* DeclareText;
  editor::CodeDrafts Drafts;
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
  if (parts_ != nullptr) return;
  parts_ = std::make_unique<Parts>(shell_, main_window_);
  shell_.AddObserver(*this);
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
  parts_->Drafts.Clear();
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
  return parts_ != nullptr &&
         (parts_->Codigo.Typed().Differs() || parts_->Declarations.Typed().Differs());
}

std::map<std::string, std::string> CodeWindowsView::TypedCode() {
  if (parts_ == nullptr) return {};
  editor::CodeDrafts::Texts texts = parts_->Drafts.All();
  parts_->Codigo.Typed().AddTo(texts);
  parts_->Declarations.Typed().AddTo(texts);
  return texts;
}

void CodeWindowsView::OfferCode(const std::map<std::string, std::string>& code) {
  LoadCodeWindows();
  parts_->Drafts.Offer(code);
}

void CodeWindowsView::ShowLine(int line) {
  if (parts_ == nullptr) return;
  CodeEdit* const text = code_was_last_ ? parts_->CodeText : parts_->DeclareText;
  if (text->isVisible()) text->SetCaretPos(line - 1, 0);
}

void CodeWindowsView::NameChanged(int form, std::string_view old_name, std::string_view new_name) {
  if (parts_ == nullptr) return;
  parts_->Declare->Refresh();
  if (!IsCodeOpen()) return;
  parts_->Codigo.NameChanged(form, old_name, new_name);
  parts_->Code->Refresh();
}

void CodeWindowsView::FormChanged(int form) {
  if (form != parts_->Declarations.Form()) return;
  parts_->Declarations.Refresh();
  parts_->Declare->Refresh();
}

void CodeWindowsView::FormClosing(int form) {
  // What was typed on it is offered when the form comes back. No form goes while its code is open.
  if (form == parts_->Declarations.Form()) parts_->Declarations.Cancel();
}

}  // namespace tarnwick
