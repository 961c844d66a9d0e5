#include "hosts/paged_console.h"

namespace tarnwick::hosts {

ConsolePage* PagedConsole::Page(int page) {
  if (page < 0 || page >= static_cast<int>(pages_.size())) return nullptr;
  return &pages_[static_cast<std::size_t>(page)];
}

void PagedConsole::Write(int page, std::string_view text) {
  ConsolePage* const target = Page(page);
  if (target == nullptr) return;
  target->Write(text);
  if (page == 0) Printed(text);
}

int PagedConsole::Column(int page) {
  const ConsolePage* const target = Page(page);
  return target == nullptr ? 1 : target->Column();
}

int PagedConsole::Row(int page) {
  const ConsolePage* const target = Page(page);
  return target == nullptr ? 1 : target->Row();
}

void PagedConsole::Clear() {
  Visible().Clear();
  Cleared();
}

void PagedConsole::Locate(int row, int column) {
  Visible().Locate(row, column);
  Located();
}

void PagedConsole::Color(int text, int back) {
  Visible().Color(text, back);
  Colored(text, back);
}

void PagedConsole::CopyPage(int from, int to) {
  const ConsolePage* const source = Page(from);
  ConsolePage* const target = Page(to);
  if (source == nullptr || target == nullptr || source == target) return;
  *target = *source;
  if (to == 0) Replaced();
}

int PagedConsole::CharacterAt(int row, int column) {
  return Visible().CharacterAt(row, column);
}

int PagedConsole::Peek(std::int64_t address) {
  return Visible().Peek(address);
}

void PagedConsole::Poke(std::int64_t address, int byte) {
  Visible().Poke(address, byte);
  Poked();
}

}  // namespace tarnwick::hosts
