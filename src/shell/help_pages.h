// The pages of the Help menu that the program has in itself.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "shell/command_table.h"

namespace tarnwick {

enum class HelpPage : std::uint8_t {
  Running,    ///< the runner beside the compiler
  Choices,    ///< what the runner does where the language leaves a choice
  Supported,  ///< the classes and words that the runner knows; made from its tables
};

struct HelpPageRow {
  HelpPage Page;
  Command Opens;
  std::string_view Title;
  std::string_view File;  ///< its name in docs/, by which other pages link to it
};

/// All pages, by enumerator.
[[nodiscard]] std::span<const HelpPageRow> HelpPages() noexcept;
[[nodiscard]] const HelpPageRow& RowOf(HelpPage page) noexcept;
/// The page that a command opens; nothing for other commands.
[[nodiscard]] std::optional<HelpPage> HelpPageOf(Command command) noexcept;
/// The page that a link to a file means; nothing for other files.
[[nodiscard]] std::optional<HelpPage> HelpPageOf(std::string_view file) noexcept;

}  // namespace tarnwick
