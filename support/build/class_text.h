// The class table as C++ source text.
#pragma once

#include <string>
#include <vector>

#include "build/class_rows.h"

namespace tarnwick::support {

/// The header with the enumerations of all classes and of all names of members.
[[nodiscard]] std::string ClassWordsHeader(const std::vector<RunClass>& classes);
/// The source with the rows.
[[nodiscard]] std::string ClassRowsSource(const std::vector<RunClass>& classes, Faults& faults);

}  // namespace tarnwick::support
