// Code editor and menu designers of a version that does not have them.
#pragma once

#include "shell/shell_view.h"
#include "shell/shell_windows.h"

namespace tarnwick {

/// Says in the status bar that the code editor is missing, so that no command ends in silence.
class MissingCodeWindows final : public CodeWindows {
 public:
  explicit MissingCodeWindows(ShellView& view) : view_(view) {}

  void LoadCodeWindows() override {}
  void OpenCode() override { view_.SetStatus("The code editor is not part of this version."); }
  [[nodiscard]] bool IsCodeOpen() override { return false; }
  void BringCodeToFront() override {}
  void StoreShownCode() override {}
  void CloseCode() override {}
  void OpenPublicDeclarations() override {
    view_.SetStatus("The editor of public declarations is not part of this version.");
  }
  void NameChanged(int /*form*/, std::string_view /*old_name*/,
                   std::string_view /*new_name*/) override {}

 private:
  ShellView& view_;
};

/// The same for the menu designers.
class MissingMenuWindows final : public MenuWindows {
 public:
  explicit MissingMenuWindows(ShellView& view) : view_(view) {}

  void OpenMenuEdit() override {
    view_.SetStatus("The menu designer is not part of this version.");
  }
  void OpenPopUpEdit(int /*form*/, int /*index*/) override {
    view_.SetStatus("The designer of popup menus is not part of this version.");
  }

 private:
  ShellView& view_;
};

}  // namespace tarnwick
