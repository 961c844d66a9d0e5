// The printer of a running program, as LPRINT sees it.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarnwick::basic {

/// The number that the printer has among the pages of the instructions for PRINT: one that no
/// program gives.
inline constexpr std::int64_t kPrinterPage = INT64_MIN;

/// Gathers lines of text and prints them.
class PrinterHost {
 public:
  virtual ~PrinterHost() = default;
  /// Adds to what is printed with the next Flush. LF ends a line, a form feed ends a page.
  virtual void Write(std::string_view text) = 0;
  /// The column of the next character, from 1.
  [[nodiscard]] virtual int Column() = 0;
  /// Prints what was gathered; nothing when that is nothing. The program's end does it too.
  virtual void Flush() = 0;
};

}  // namespace tarnwick::basic
