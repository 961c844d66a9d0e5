// Message boxes of a program without windows.
#pragma once

#include <iosfwd>
#include <string_view>

#include "platform/ports.h"

namespace tarnwick {

/// Messages go out as lines of UTF-8, to standard error unless told otherwise. Nobody is there to
/// ask, so every question is answered No.
class ConsoleMessages final : public MessagePort {
 public:
  ConsoleMessages();
  /// `out` must live as long as this port.
  explicit ConsoleMessages(std::ostream& out) : out_(&out) {}

  void Show(std::string_view text, std::string_view title) override;
  [[nodiscard]] bool AskYesNo(std::string_view text, std::string_view title,
                              MessageIcon icon) override;

 private:
  std::ostream* out_;
};

}  // namespace tarnwick
