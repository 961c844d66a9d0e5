// The console of a running program: one visible page (0) and seven hidden ones.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// Rows and columns count from 1. What lies outside a page is ignored when written and reads as 0.
class ConsoleHost {
 public:
  virtual ~ConsoleHost() = default;
  /// Writes at the position of the page's cursor and moves it. LF ends a line. Pages outside 0
  /// to 7 are ignored.
  virtual void Write(int page, std::string_view text) = 0;
  /// Column of the cursor of a page; 1 for a page that is not there. PRINT counts its zones by it.
  [[nodiscard]] virtual int Column(int page) = 0;
  [[nodiscard]] virtual int Row(int page) = 0;
  /// A line from the user without its end; nothing at the end of the input.
  virtual std::optional<std::string> ReadLine() = 0;
  /// `count` bytes from the user, without showing them; fewer at the end of the input.
  virtual std::string ReadBytes(std::size_t count) = 0;
  /// The key pressed just now, without waiting; "" when there is none.
  virtual std::string Key() = 0;
  virtual void Clear() = 0;
  virtual void Locate(int row, int column) = 0;
  /// Colours 0 to 15; -1 leaves one as it is.
  virtual void Color(int text, int back) = 0;
  virtual void CopyPage(int from, int to) = 0;
  /// Code of the character shown on the visible page; 0 outside.
  [[nodiscard]] virtual int CharacterAt(int row, int column) = 0;
  /// Byte of the visible page: character and colour in turn, row by row. 0 outside.
  [[nodiscard]] virtual int Peek(std::int64_t address) = 0;
  virtual void Poke(std::int64_t address, int byte) = 0;
  virtual void SetTitle(std::string_view title) = 0;
  /// True when the program has a console of its own.
  [[nodiscard]] virtual bool IsConsole() = 0;
};

}  // namespace tarnwick::basic
