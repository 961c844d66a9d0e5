// The windows beside the main window, as the shell opens them.
#pragma once

#include <QPointer>

#include "qt/frame/objects_examiner_window.h"
#include "shell/side_windows.h"

class QWidget;

namespace tarnwick {

class MDIForm1;
class ShellView;

/// Joins the shell and the windows of the other rooms. A window that this version does not have is
/// told of in the status bar, so that no command ends in silence.
class SideWindowsView final : public SideWindows {
 public:
  explicit SideWindowsView(QWidget& parent) : parent_(parent) {}

  void Attach(MDIForm1& shell, ShellView& view) {
    shell_ = &shell;
    view_ = &view;
  }

  void LoadLanguage() override {}
  void SupportTablesLoaded() override {}
  void LoadCodeWindows() override {}
  void OpenCode() override { TellMissing("The code editor"); }
  [[nodiscard]] bool IsCodeOpen() override { return false; }
  void BringCodeToFront() override {}
  void StoreShownCode() override {}
  void CloseCode() override {}
  void OpenPublicDeclarations() override { TellMissing("The editor of public declarations"); }
  void OpenMenuEdit() override { TellMissing("The menu designer"); }
  void OpenPopUpEdit(int form, int index) override;
  void OpenItemEdit(int form) override;
  void OpenExaminer() override;
  void NameChanged(int form, std::string_view old_name, std::string_view new_name) override;

 private:
  void TellMissing(std::string_view window);

  QWidget& parent_;
  MDIForm1* shell_ = nullptr;
  ShellView* view_ = nullptr;
  QPointer<ObjectsExaminerWindow> examiner_;
};

}  // namespace tarnwick
