// The tests that the sources have, for tables that name them.
#pragma once

#include <set>
#include <string>

namespace tarnwick::test {

/// All tests below tests/, as "Suite.Name".
[[nodiscard]] std::set<std::string> TestsOfTheSources();
/// The bytes of a file, by its path from the top of the sources; empty when it is not there.
[[nodiscard]] std::string SourceBytes(const std::string& path);

}  // namespace tarnwick::test
