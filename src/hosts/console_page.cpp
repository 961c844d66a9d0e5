#include "hosts/console_page.h"

#include <algorithm>

namespace tarnwick::hosts {

void ConsolePage::Clear() {
  cells_.fill({' ', colour_});
  row_ = column_ = 1;
}

void ConsolePage::NextRow() {
  column_ = 1;
  if (row_ < kRows) {
    ++row_;
    return;
  }
  std::copy(cells_.begin() + kColumns, cells_.end(), cells_.begin());
  std::fill(cells_.end() - kColumns, cells_.end(), Cell{' ', colour_});
}

void ConsolePage::Write(std::string_view text) {
  constexpr int kTab = 8;
  for (const char c : text) {
    if (c == '\n') {
      NextRow();
    } else if (c == '\r') {
      column_ = 1;
    } else if (c == '\t') {
      column_ += kTab - (column_ - 1) % kTab;
      if (column_ > kColumns) NextRow();
    } else {
      const auto at = static_cast<std::size_t>((row_ - 1) * kColumns + column_ - 1);
      cells_[at] = {static_cast<unsigned char>(c), colour_};
      if (++column_ > kColumns) NextRow();
    }
  }
}

void ConsolePage::Locate(int row, int column) {
  row_ = std::clamp(row, 1, kRows);
  column_ = std::clamp(column, 1, kColumns);
}

void ConsolePage::Color(int text, int back) {
  if (text >= 0 && text <= 15) colour_ = static_cast<unsigned char>((colour_ & 0xF0) | text);
  if (back >= 0 && back <= 15) colour_ = static_cast<unsigned char>((colour_ & 0x0F) | back << 4);
}

int ConsolePage::CharacterAt(int row, int column) const {
  if (row < 1 || row > kRows || column < 1 || column > kColumns) return 0;
  return cells_[static_cast<std::size_t>((row - 1) * kColumns + column - 1)].Character;
}

int ConsolePage::Peek(std::int64_t address) const {
  if (address < 0 || address >= static_cast<std::int64_t>(cells_.size()) * 2) return 0;
  const Cell cell = cells_[static_cast<std::size_t>(address) / 2];
  return address % 2 == 0 ? cell.Character : cell.Colour;
}

void ConsolePage::Poke(std::int64_t address, int byte) {
  if (address < 0 || address >= static_cast<std::int64_t>(cells_.size()) * 2) return;
  Cell& cell = cells_[static_cast<std::size_t>(address) / 2];
  (address % 2 == 0 ? cell.Character : cell.Colour) = static_cast<unsigned char>(byte & 0xFF);
}

}  // namespace tarnwick::hosts
