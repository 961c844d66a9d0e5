// What a running program may use, as a list for people.
#pragma once

#include <string>

namespace tarnwick::objects {

/// Every class with the members that work, that only keep their value and that are passed over,
/// then the words of the language that are left out with their reasons, and the irregular lines of
/// generated programs that are accepted. Windows-1252 with LF ends.
[[nodiscard]] std::string SupportedList();

/// The same as a page of Markdown.
[[nodiscard]] std::string SupportedPage();

}  // namespace tarnwick::objects
