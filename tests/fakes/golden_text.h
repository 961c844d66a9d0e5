// Comparing a result with a golden file so that a failure can be read.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick::test {

/// Passes when the texts are equal byte for byte. Otherwise the test fails with `name` and a
/// unified diff of the lines, in which unprintable bytes stand as "\xNN".
void ExpectSameText(const std::string& name, std::string_view result, std::string_view expected);

/// The unified diff alone, as the system's `diff` prints it; "" for equal texts.
[[nodiscard]] std::string UnifiedDiff(std::string_view expected, std::string_view result);

}  // namespace tarnwick::test
