// MESSAGEDLG in terms of the system's message box.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarnwick::basic {

/// Kinds of MESSAGEDLG, by number: warning, error, information, confirmation; others have neither
/// picture nor title.
struct MessageLook {
  std::string_view Title;
  int IconFlag = 0;  ///< MB_ICON*
};
[[nodiscard]] MessageLook LookOfMessage(std::int64_t type);

/// The flag of the message box with the buttons of a set (1 yes, 2 no, 4 OK, 8 cancel, 16 abort,
/// 32 retry, 64 ignore, 128 all, 256 help), or of the box that comes nearest: the system has six.
[[nodiscard]] int BoxOfButtons(std::int64_t buttons);

}  // namespace tarnwick::basic
