// Message boxes of a program without windows.
#pragma once

#include <cstdio>
#include <string_view>

#include "platform/ports.h"

namespace tarnwick {

/// Writes messages as lines of UTF-8, by default to standard error. No user can reply, so every
/// question returns No.
class ConsoleMessages final : public MessagePort {
 public:
  /// `out` must stay open as long as this port lives.
  explicit ConsoleMessages(std::FILE* out = stderr) : out_(out) {}

  void Show(std::string_view text, std::string_view title) override;
  [[nodiscard]] bool AskYesNo(std::string_view text, std::string_view title,
                              MessageIcon icon) override;

 private:
  std::FILE* out_;
};

}  // namespace tarnwick
