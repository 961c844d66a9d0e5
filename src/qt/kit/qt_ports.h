// The ports that are implemented with windows: message boxes, dialogs, screen.
#pragma once

#include <QElapsedTimer>
#include <string>

#include "platform/ports.h"

class QWidget;

namespace tarnwick {

/// Message boxes over the active window.
class QtMessages final : public MessagePort {
 public:
  void Show(std::string_view text, std::string_view title) override;
  [[nodiscard]] bool AskYesNo(std::string_view text, std::string_view title,
                              MessageIcon icon) override;
  [[nodiscard]] std::optional<bool> AskOrCancel(std::string_view text,
                                                std::string_view title) override;
};

/// The common dialogs over the active window. Paths go in and come out as Windows paths.
class QtDialogs final : public DialogPort {
 public:
  std::optional<std::string> OpenFile(const FileDialogRequest& request) override;
  std::optional<std::string> SaveFile(const FileDialogRequest& request) override;
  std::optional<std::int32_t> PickColor(std::int32_t start) override;
  std::optional<FontChoice> PickFont(const FontChoice& start) override;
  std::optional<std::string> PickFolder(const std::string& start) override;
};

class QtScreen final : public ScreenPort {
 public:
  /// Repaints at most once a frame: long loops call this at every step. Input waits, so that no
  /// command starts within another.
  void Yield() override;

 private:
  QElapsedTimer since_;
};

/// A dialog's filter, captions and patterns in turn parted by "|", as the toolkit's dialog takes
/// it: "Form (*.ftn);;All Files (*)".
[[nodiscard]] std::string ToolkitFilter(std::string_view filter);

}  // namespace tarnwick
