#include "fakes/fake_shell.h"

namespace tarnwick {

FakeShellView::FakeShellView(CallLog& log) : log_(&log) {}

FakeShellView::~FakeShellView() = default;

void FakeShellView::SetApplicationTitle(std::string_view title) {
  Say("application title", title);
  ApplicationTitle = title;
}

void FakeShellView::SetTitle(std::string_view title) {
  Say("title", title);
  Title = title;
}

void FakeShellView::LayOutPanels() {
  Say("lay out panels");
}

void FakeShellView::StartTimer() {
  Say("timer on");
}

void FakeShellView::StopTimer() {
  Say("timer off");
}

void FakeShellView::ShowLogo(std::string_view text) {
  Say("logo", text);
}

void FakeShellView::CloseLogo() {
  Say("logo closed");
}

void FakeShellView::ShowContainerAt(int width, int height) {
  Say("container at", std::to_string(width) + "x" + std::to_string(height));
}

void FakeShellView::HideContainer() {
  Say("container hidden");
}

void FakeShellView::ShowContainer() {
  Say("container shown");
}

void FakeShellView::BringFormUp(int form) {
  Say("form up", std::to_string(form));
  FormInFront = form;
}

void FakeShellView::FocusForm(int form) {
  Say("form focus", std::to_string(form));
  FocusedForm = form;
}

void FakeShellView::HoldFocus() {
  Say("hold focus");
}

void FakeShellView::RestoreFocus() {
  Say("restore focus");
}

void FakeShellView::RecentProjectsChanged() {
  Say("recent");
}

void FakeShellView::SetFormVisible(int form, bool visible) {
  Say(visible ? "form shown" : "form hidden", std::to_string(form));
}

GesturePort& FakeShellView::Gestures(int form) {
  return gestures_.try_emplace(form, GestureLog).first->second;
}

void FakeShellView::ShowPanel(Panel panel, bool shown) {
  Say(shown ? "panel shown" : "panel hidden", std::to_string(static_cast<int>(panel)));
  PanelShown[panel] = shown;
}

void FakeShellView::CommandsChanged() {
  ++CommandChanges;
}

void FakeShellView::SetArrowPointer(bool arrow) {
  Say(arrow ? "arrow" : "own pointer");
}

void FakeShellView::FindingsChanged() {
  Say("findings");
}

void FakeShellView::FocusFindings() {
  Say("findings focus");
}

void FakeShellView::FocusGridRow() {
  Say("row focus");
}

void FakeShellView::ShowObjectPopUp() {
  Say("pop-up");
  if (OnObjectPopUp) OnObjectPopUp();
}

void FakeShellView::RunRestoreDialog() {
  Say("restore dialog");
  if (OnRestoreDialog) OnRestoreDialog();
}

void FakeShellView::RunFormMain() {
  Say("FormMain");
  if (OnFormMain) OnFormMain();
}

void FakeShellView::RunItemDialog(int form) {
  Say("item edit", std::to_string(form));
}

void FakeShellView::ShowHelpPage(HelpPage page) {
  Say("help", RowOf(page).File);
}

void FakeShellView::ShowAbout(std::string_view program_folder) {
  Say("about", program_folder);
}

void FakeShellView::CommitPendingEdits() {
  Say("commit");
}

void FakeShellView::CloseMainWindow() {
  Say("close");
  if (OnCloseMainWindow) OnCloseMainWindow();
}

void FakeShellView::UnloadWindow(SideWindow window) {
  Say("unload", std::to_string(static_cast<int>(window)));
}

void FakeShellView::UnloadContainer() {
  Say("unload container");
}

FakeGestures& FakeShellView::GesturesOf(int form) {
  return gestures_.try_emplace(form, GestureLog).first->second;
}

void FakeShellView::Say(std::string_view what, std::string_view detail) {
  std::string entry = "view ";
  entry += what;
  if (!detail.empty()) entry.append(" ").append(detail);
  log_->Add(std::move(entry));
}

FakeSideWindows::FakeSideWindows(CallLog& log) : log_(&log) {}

FakeSideWindows::~FakeSideWindows() = default;

void FakeSideWindows::LoadCodeWindows() {
  Say("code windows");
}

void FakeSideWindows::OpenCode() {
  Say("open code");
  CodeOpen = true;
}

void FakeSideWindows::BringCodeToFront() {
  Say("code to front");
}

void FakeSideWindows::StoreShownCode() {
  Say("store code");
  if (OnStoreShownCode) OnStoreShownCode();
}

void FakeSideWindows::CloseCode() {
  Say("close code");
  CodeOpen = false;
}

void FakeSideWindows::OpenPublicDeclarations() {
  Say("declarations");
}

void FakeSideWindows::ShowLine(int line) {
  Say("line " + std::to_string(line));
}

void FakeSideWindows::OpenMenuEdit() {
  Say("menu edit");
}

void FakeSideWindows::OpenPopUpEdit(int form, int index) {
  Say("popup edit " + std::to_string(form) + "," + std::to_string(index));
}

void FakeSideWindows::OpenExaminer() {
  Say("examiner");
}

void FakeSideWindows::NameChanged(int form, std::string_view old_name, std::string_view new_name) {
  Say("renamed " + std::to_string(form) + " " + std::string(old_name) + " to " +
      std::string(new_name));
}

void FakeSideWindows::Say(const std::string& what) {
  log_->Add("windows " + what);
}

FakeObserver::FakeObserver(CallLog& log) : log_(&log) {}

void FakeObserver::FormOpened(int form) {
  log_->Add("told opened " + std::to_string(form));
}

void FakeObserver::FormClosing(int form) {
  log_->Add("told closing " + std::to_string(form));
  if (OnFormClosing) OnFormClosing(form);
}

void FakeObserver::CurrentFormChanged() {
  log_->Add("told current");
}

void FakeObserver::FormListChanged() {
  log_->Add("told list");
}

}  // namespace tarnwick
