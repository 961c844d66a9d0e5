// Tables that people read, with tabs between the columns.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwick::basic {

/// The text in front of the first `separator`, or all of it. Both are taken off `rest`.
[[nodiscard]] constexpr std::string_view TakeUntil(std::string_view& rest,
                                                   char separator) noexcept {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

}  // namespace tarnwick::basic
