// The recording fakes of the main window and of the windows beside it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "fakes/call_log.h"
#include "fakes/fake_ports.h"
#include "model/project_observer.h"
#include "shell/shell_view.h"
#include "shell/shell_windows.h"

namespace tarnwick {

/// Log entries begin with "view ". What a real window does by hand of the user inside a call is
/// scripted by the `On...` functions.
class FakeShellView final : public ShellView {
 public:
  explicit FakeShellView(CallLog& log) : log_(&log) {}

  std::string Title;
  std::string ApplicationTitle;
  std::string Status;
  std::string SelectionText;
  std::map<Panel, bool> PanelShown;
  int SelectedLine = -1;
  int FormInFront = 0;
  int FocusedForm = 0;  ///< the form that got the focus last
  int CommandChanges = 0;
  CallLog GestureLog;  ///< gestures draw too much to be of use among the commands
  bool PicturesLoad = true;
  std::function<void()> OnFormMain;
  std::function<void()> OnRestoreDialog;
  std::function<void()> OnCloseMainWindow;
  std::function<void()> OnObjectPopUp;

  void SetApplicationTitle(std::string_view title) override {
    Say("application title", title);
    ApplicationTitle = title;
  }
  void SetTitle(std::string_view title) override {
    Say("title", title);
    Title = title;
  }
  void LayOutPanels() override { Say("lay out panels"); }
  void StartTimer() override { Say("timer on"); }
  void StopTimer() override { Say("timer off"); }
  void ShowLogo(std::string_view text) override { Say("logo", text); }
  void CloseLogo() override { Say("logo closed"); }
  void ShowContainerAt(int width, int height) override {
    Say("container at", std::to_string(width) + "x" + std::to_string(height));
  }
  void HideContainer() override { Say("container hidden"); }
  void ShowContainer() override { Say("container shown"); }
  void BringFormUp(int form) override {
    Say("form up", std::to_string(form));
    FormInFront = form;
  }
  void FocusForm(int form) override {
    Say("form focus", std::to_string(form));
    FocusedForm = form;
  }
  void HoldFocus() override { Say("hold focus"); }
  void RestoreFocus() override { Say("restore focus"); }
  void RecentProjectsChanged() override { Say("recent"); }
  void SetFormVisible(int form, bool visible) override {
    Say(visible ? "form shown" : "form hidden", std::to_string(form));
  }
  [[nodiscard]] GesturePort& Gestures(int form) override {
    return gestures_.try_emplace(form, GestureLog).first->second;
  }
  [[nodiscard]] bool PictureLoads(const std::string& /*path*/) override { return PicturesLoad; }
  void ShowPanel(Panel panel, bool shown) override {
    Say(shown ? "panel shown" : "panel hidden", std::to_string(static_cast<int>(panel)));
    PanelShown[panel] = shown;
  }
  void CommandsChanged() override { ++CommandChanges; }
  void SelectFormLine(int index) override { SelectedLine = index; }
  void SetArrowPointer(bool arrow) override { Say(arrow ? "arrow" : "own pointer"); }
  void FindingsChanged() override { Say("findings"); }
  void FocusFindings() override { Say("findings focus"); }
  void FocusGridRow() override { Say("row focus"); }
  void SetStatus(std::string_view text) override { Status = text; }
  void SetSelectionText(std::string_view text) override { SelectionText = text; }
  void ShowObjectPopUp() override {
    Say("pop-up");
    if (OnObjectPopUp) OnObjectPopUp();
  }
  void RunRestoreDialog() override {
    Say("restore dialog");
    if (OnRestoreDialog) OnRestoreDialog();
  }
  void RunFormMain() override {
    Say("FormMain");
    if (OnFormMain) OnFormMain();
  }
  void RunItemDialog(int form) override { Say("item edit", std::to_string(form)); }
  void ShowHelpPage(HelpPage page) override { Say("help", RowOf(page).File); }
  void ShowAbout(std::string_view program_folder) override { Say("about", program_folder); }
  void CommitPendingEdits() override { Say("commit"); }
  void CloseMainWindow() override {
    Say("close");
    if (OnCloseMainWindow) OnCloseMainWindow();
  }
  void UnloadWindow(SideWindow window) override {
    Say("unload", std::to_string(static_cast<int>(window)));
  }
  void UnloadContainer() override { Say("unload container"); }

  /// Gestures of a form that can be steered.
  [[nodiscard]] FakeGestures& GesturesOf(int form) {
    return gestures_.try_emplace(form, GestureLog).first->second;
  }

 private:
  void Say(std::string_view what, std::string_view detail = {}) {
    std::string entry = "view ";
    entry += what;
    if (!detail.empty()) entry.append(" ").append(detail);
    log_->Add(std::move(entry));
  }

  CallLog* log_;
  std::map<int, FakeGestures> gestures_;
};

/// Log entries begin with "windows ".
class FakeSideWindows final : public CodeWindows, public MenuWindows, public ExaminerWindow {
 public:
  explicit FakeSideWindows(CallLog& log) : log_(&log) {}

  bool CodeOpen = false;
  std::function<void()> OnStoreShownCode;
  bool Typed = false;                       ///< the shown text differs from what is stored
  std::map<std::string, std::string> Code;  ///< typed and not accepted
  std::map<std::string, std::string> Offered;

  void LoadCodeWindows() override { Say("code windows"); }
  void OpenCode() override {
    Say("open code");
    CodeOpen = true;
  }
  [[nodiscard]] bool IsCodeOpen() override { return CodeOpen; }
  void BringCodeToFront() override { Say("code to front"); }
  void StoreShownCode() override {
    Say("store code");
    if (OnStoreShownCode) OnStoreShownCode();
  }
  void CloseCode() override {
    Say("close code");
    CodeOpen = false;
  }
  void OpenPublicDeclarations() override { Say("declarations"); }
  void ShowLine(int line) override { Say("line " + std::to_string(line)); }
  void OpenMenuEdit() override { Say("menu edit"); }
  void OpenPopUpEdit(int form, int index) override {
    Say("popup edit " + std::to_string(form) + "," + std::to_string(index));
  }
  void OpenExaminer() override { Say("examiner"); }
  void NameChanged(int form, std::string_view old_name, std::string_view new_name) override {
    Say("renamed " + std::to_string(form) + " " + std::string(old_name) + " to " +
        std::string(new_name));
  }
  [[nodiscard]] bool HasTypedCode() override { return Typed; }
  [[nodiscard]] std::map<std::string, std::string> TypedCode() override { return Code; }
  void OfferCode(const std::map<std::string, std::string>& code) override { Offered = code; }

 private:
  void Say(const std::string& what) { log_->Add("windows " + what); }

  CallLog* log_;
};

/// Log entries begin with "told ". Changes of controls and selections are too many to be told.
class FakeObserver final : public ProjectObserver {
 public:
  explicit FakeObserver(CallLog& log) : log_(&log) {}
  std::function<void(int)> OnFormClosing;

  void FormOpened(int form) override { log_->Add("told opened " + std::to_string(form)); }
  void FormClosing(int form) override {
    log_->Add("told closing " + std::to_string(form));
    if (OnFormClosing) OnFormClosing(form);
  }
  void CurrentFormChanged() override { log_->Add("told current"); }
  void FormListChanged() override { log_->Add("told list"); }

 private:
  CallLog* log_;
};

}  // namespace tarnwick
