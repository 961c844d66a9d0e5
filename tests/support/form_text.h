// Texts of form files for tests of what reads them.
#pragma once

#include <string>

namespace tarnwick::test {

/// A form with the given further lines.
inline std::string WithForm(const std::string& lines) {
  return "[Form](1) {F}\r\n" + lines;
}

}  // namespace tarnwick::test
