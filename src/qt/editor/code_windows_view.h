// The two code windows with their logic, as the commands of the main window open them.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "editor/code_host.h"
#include "editor/form_codigo.h"
#include "editor/form_view_codes.h"
#include "editor/member_lookup.h"
#include "model/project_observer.h"
#include "shell/shell_windows.h"

class QWidget;

namespace tarnwick {

class CodeEdit;
class CodeWindow;
class DeclarationsWindow;
class EventsBar;
class History;
class MDIForm1;

/// Builds `FormCodigo` and `FormViewCodes` once and joins them with events bar and project.
class CodeWindowsView final : public CodeWindows, public ProjectObserver {
 public:
  CodeWindowsView(MDIForm1& shell, QWidget& main_window);
  ~CodeWindowsView() override;

  void LoadCodeWindows() override;
  void OpenCode() override;
  [[nodiscard]] bool IsCodeOpen() override;
  void BringCodeToFront() override;
  void StoreShownCode() override;
  void CloseCode() override;
  void OpenPublicDeclarations() override;
  void ShowLine(int line) override;
  void NameChanged(int form, std::string_view old_name, std::string_view new_name) override;
  [[nodiscard]] bool HasTypedCode() override;
  [[nodiscard]] std::map<std::string, std::string> TypedCode() override;
  void OfferCode(const std::map<std::string, std::string>& code) override;

  // ProjectObserver
  void FormChanged(int form) override;
  void FormClosing(int form) override;

 private:
  /// Notifies events bars and history of what a window has stored, and hides the window at its
  /// end.
  class Host final : public editor::CodeHost {
   public:
    Host(EventsBar& bar, History& steps, std::function<void()> unload)
        : bar_(bar), steps_(steps), unload_(std::move(unload)) {}
    void PopBoockMarck(int form, std::string_view name) override;
    void DelBoockMarck(int form, std::string_view name) override;
    void AcceptBegins(int form, std::string_view step) override;
    void CodeAccepted(int form) override;
    void Unload() override { unload_(); }

   private:
    EventsBar& bar_;
    History& steps_;
    std::function<void()> unload_;
  };
  struct Parts;

  MDIForm1& shell_;
  QWidget& main_window_;
  std::unique_ptr<Parts> parts_;  ///< null until the windows are loaded
  bool code_was_last_ = false;    ///< of the two windows, `FormCodigo` was opened last
};

}  // namespace tarnwick
