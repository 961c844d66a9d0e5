// What a running program may use, as a list for people.
#pragma once

#include <string>

namespace tarnwick::objects {

/// Every class with the members that work, that only keep their value and that are passed over,
/// then the words of the language that are left out with their reasons. Lines end in LF.
[[nodiscard]] std::string SupportedList();

}  // namespace tarnwick::objects
