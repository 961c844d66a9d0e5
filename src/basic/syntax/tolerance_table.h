// Reads the table of tolerated lines, while the program is compiled.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "basic/syntax/tolerances.h"
#include "basic/table_text.h"

namespace tarnwick::basic {

/// The names of the rows, by enumerator.
inline constexpr std::array<std::string_view, kToleranceCount> kToleranceNames = {
    "frame-hint-rest", "frame-modal-rest",  "empty-value",     "lost-popup",   "empty-menu-title",
    "declared-twice",  "event-without-sub", "growing-array",   "viewer-names", "loop-name",
    "socket-array",    "bracket-name",      "unbound-picture",
};

/// The words of the effects, by enumerator.
inline constexpr std::array<std::string_view, 4> kToleranceEffects = {"skip", "call", "merge",
                                                                      "declare"};

struct ToleranceTable {
  std::array<ToleranceRow, kToleranceCount> Rows{};  ///< by enumerator
  /// Each tolerance has one row, there is no other row, and each effect is known.
  bool Whole = true;
};

/// Reads a line of column names and then a line per row: name, line, effect, note and remedy with
/// tabs between.
[[nodiscard]] constexpr ToleranceTable ReadTolerances(std::string_view text) noexcept {
  const auto index_in = [](const auto& names, std::string_view name) {
    std::size_t at = 0;
    while (at < names.size() && names[at] != name) ++at;
    return at;
  };
  ToleranceTable table;
  std::size_t count = 0;
  static_cast<void>(TakeUntil(text, '\n'));
  while (!text.empty()) {
    std::string_view line = TakeUntil(text, '\n');
    const std::string_view name = TakeUntil(line, '\t');
    const std::string_view example = TakeUntil(line, '\t');
    const std::size_t effect = index_in(kToleranceEffects, TakeUntil(line, '\t'));
    const std::string_view note = TakeUntil(line, '\t');
    const std::size_t which = index_in(kToleranceNames, name);
    ++count;
    if (which == kToleranceCount || effect == kToleranceEffects.size() ||
        !table.Rows[which].Name.empty()) {
      table.Whole = false;
      continue;
    }
    table.Rows[which] = {static_cast<Tolerance>(which),        name, example,
                         static_cast<ToleranceEffect>(effect), note, line};
  }
  if (count != kToleranceCount) table.Whole = false;
  return table;
}

}  // namespace tarnwick::basic
