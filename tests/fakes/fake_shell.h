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
  explicit FakeShellView(CallLog& log);
  ~FakeShellView() override;

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

  void SetApplicationTitle(std::string_view title) override;
  void SetTitle(std::string_view title) override;
  void LayOutPanels() override;
  void StartTimer() override;
  void StopTimer() override;
  void ShowLogo(std::string_view text) override;
  void CloseLogo() override;
  void ShowContainerAt(int width, int height) override;
  void HideContainer() override;
  void ShowContainer() override;
  void BringFormUp(int form) override;
  void FocusForm(int form) override;
  void HoldFocus() override;
  void RestoreFocus() override;
  void RecentProjectsChanged() override;
  void SetFormVisible(int form, bool visible) override;
  [[nodiscard]] GesturePort& Gestures(int form) override;
  [[nodiscard]] bool PictureLoads(const std::string& /*path*/) override { return PicturesLoad; }
  void ShowPanel(Panel panel, bool shown) override;
  void CommandsChanged() override;
  void SelectFormLine(int index) override { SelectedLine = index; }
  void SetArrowPointer(bool arrow) override;
  void FindingsChanged() override;
  void FocusFindings() override;
  void FocusGridRow() override;
  void SetStatus(std::string_view text) override { Status = text; }
  void SetSelectionText(std::string_view text) override { SelectionText = text; }
  void ShowObjectPopUp() override;
  void RunRestoreDialog() override;
  void RunFormMain() override;
  void RunItemDialog(int form) override;
  void ShowHelpPage(HelpPage page) override;
  void ShowAbout(std::string_view program_folder) override;
  void CommitPendingEdits() override;
  void CloseMainWindow() override;
  void UnloadWindow(SideWindow window) override;
  void UnloadContainer() override;

  /// Gestures of a form that can be steered.
  [[nodiscard]] FakeGestures& GesturesOf(int form);

 private:
  void Say(std::string_view what, std::string_view detail = {});

  CallLog* log_;
  std::map<int, FakeGestures> gestures_;
};

/// Log entries begin with "windows ".
class FakeSideWindows final : public CodeWindows, public MenuWindows, public ExaminerWindow {
 public:
  explicit FakeSideWindows(CallLog& log);
  ~FakeSideWindows() override;

  bool CodeOpen = false;
  std::function<void()> OnStoreShownCode;
  bool Typed = false;                       ///< the shown text differs from what is stored
  std::map<std::string, std::string> Code;  ///< typed and not accepted
  std::map<std::string, std::string> Offered;

  void LoadCodeWindows() override;
  void OpenCode() override;
  [[nodiscard]] bool IsCodeOpen() override { return CodeOpen; }
  void BringCodeToFront() override;
  void StoreShownCode() override;
  void CloseCode() override;
  void OpenPublicDeclarations() override;
  void ShowLine(int line) override;
  void OpenMenuEdit() override;
  void OpenPopUpEdit(int form, int index) override;
  void OpenExaminer() override;
  void NameChanged(int form, std::string_view old_name, std::string_view new_name) override;
  [[nodiscard]] bool HasTypedCode() override { return Typed; }
  [[nodiscard]] std::map<std::string, std::string> TypedCode() override { return Code; }
  void OfferCode(const std::map<std::string, std::string>& code) override { Offered = code; }

 private:
  void Say(const std::string& what);

  CallLog* log_;
};

/// Log entries begin with "told ". Changes of controls and selections are too many to be told.
class FakeObserver final : public ProjectObserver {
 public:
  explicit FakeObserver(CallLog& log);
  std::function<void(int)> OnFormClosing;

  void FormOpened(int form) override;
  void FormClosing(int form) override;
  void CurrentFormChanged() override;
  void FormListChanged() override;

 private:
  CallLog* log_;
};

}  // namespace tarnwick
