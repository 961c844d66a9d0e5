#include "shell/help_pages.h"

#include <array>

namespace tarnwick {

namespace {

constexpr std::array kPages{
    HelpPageRow{HelpPage::Running, Command::HelpRunning, "Runner and Compiler",
                "running-programs.md"},
    HelpPageRow{HelpPage::Choices, Command::HelpChoices, "Choices of the Runner",
                "language-choices.md"},
    HelpPageRow{HelpPage::Supported, Command::HelpSupported, "What the Runner Supports",
                "supported.md"},
};

}  // namespace

std::span<const HelpPageRow> HelpPages() noexcept {
  return kPages;
}

const HelpPageRow& RowOf(HelpPage page) noexcept {
  return kPages[static_cast<std::size_t>(page)];
}

std::optional<HelpPage> HelpPageOf(Command command) noexcept {
  for (const HelpPageRow& row : kPages) {
    if (row.Opens == command) return row.Page;
  }
  return std::nullopt;
}

std::optional<HelpPage> HelpPageOf(std::string_view file) noexcept {
  for (const HelpPageRow& row : kPages) {
    if (row.File == file) return row.Page;
  }
  return std::nullopt;
}

}  // namespace tarnwick
