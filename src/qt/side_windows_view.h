// The windows beside the main window, as the shell opens them.
#pragma once

#include <QPointer>

#include "qt/objects_examiner_window.h"
#include "shell/side_windows.h"

class QWidget;

namespace tarnwick {

class MDIForm1;

/// Joins the shell and the windows of the other rooms.
class SideWindowsView final : public SideWindows {
 public:
  explicit SideWindowsView(QWidget& parent) : parent_(parent) {}

  void Attach(MDIForm1& shell) { shell_ = &shell; }

  void LoadLanguage() override {}
  void SupportTablesLoaded() override {}
  void LoadCodeWindows() override {}
  void OpenCode() override {}
  [[nodiscard]] bool IsCodeOpen() override { return false; }
  void BringCodeToFront() override {}
  void StoreShownCode() override {}
  void CloseCode() override {}
  void OpenPublicDeclarations() override {}
  void OpenMenuEdit() override {}
  void OpenPopUpEdit(int form, int index) override;
  void OpenItemEdit(int form) override;
  void OpenExaminer() override;
  void NameChanged(int form, std::string_view old_name, std::string_view new_name) override;

 private:
  QWidget& parent_;
  MDIForm1* shell_ = nullptr;
  QPointer<ObjectsExaminerWindow> examiner_;
};

}  // namespace tarnwick
