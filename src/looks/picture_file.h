// Whether the bytes of a picture file are all there.
#pragma once

#include <string_view>

namespace tarnwick::looks {

/// False for a Windows bitmap whose file ends before its picture does: what is missing must not be
/// shown as whatever lies in memory. True for all other bytes, whose readers notice it themselves.
[[nodiscard]] bool IsWhole(std::string_view bytes) noexcept;

}  // namespace tarnwick::looks
