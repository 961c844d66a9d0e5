// One page of the console: 80 columns and 25 rows of characters with their colours.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tarnwick::hosts {

/// Rows and columns count from 1. Text that reaches the right edge goes on in the next row; at the
/// lower edge everything moves up.
class ConsolePage {
 public:
  static constexpr int kRows = 25;
  static constexpr int kColumns = 80;

  ConsolePage() { Clear(); }

  void Clear();
  /// LF ends a row, CR goes back to its start, a tab goes on to the next column of eight.
  void Write(std::string_view text);
  /// A position outside is moved to the nearest one inside.
  void Locate(int row, int column);
  /// Colours from 0 to 15; -1 leaves one as it is.
  void Color(int text, int back);

  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] int Column() const { return column_; }
  /// Code of the character at a place; 0 outside.
  [[nodiscard]] int CharacterAt(int row, int column) const;
  /// Bytes by address: character and colour in turn, row by row. 0 outside; writing there does
  /// nothing.
  [[nodiscard]] int Peek(std::int64_t address) const;
  void Poke(std::int64_t address, int byte);

 private:
  struct Cell {
    unsigned char Character = ' ';
    unsigned char Colour = 7;
  };
  void NextRow();

  std::array<Cell, std::size_t{kRows} * kColumns> cells_{};
  int row_ = 1;
  int column_ = 1;
  unsigned char colour_ = 7;
};

}  // namespace tarnwick::hosts
