// A statement line: one line of a file with those that continue it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "basic/source/arena.h"
#include "basic/source/messages.h"
#include "basic/source/source_set.h"
#include "basic/source/source_token.h"
#include "language/lexer.h"

namespace tarnwick::basic {

/// Lines that one statement may take at most.
inline constexpr int kMaxContinuedLines = 1000;

/// Reads a file line by line.
class LineReader {
 public:
  LineReader(const SourceFile& file, std::uint16_t index, Arena& memory, Messages& messages)
      : walk_(file.Bytes), index_(index), memory_(memory), messages_(messages) {}

  /// True when a further line is there.
  [[nodiscard]] bool HasNext() const noexcept { return !walk_.AtEnd(); }
  /// Replaces `tokens` by those of the next statement line, without comments and without a LineEnd.
  /// `escapes` says whether "\" escapes in its texts, `counts` whether its faults are reported.
  void Next(bool escapes, bool counts, std::vector<SourceToken>& tokens);
  /// What stands on the last line read behind its first token, blanks at both ends off, comment
  /// included.
  [[nodiscard]] std::string_view RestOfDirective() const;

 private:
  void TakeText(std::string_view text, const language::Token& token, SourceToken made, bool escapes,
                std::vector<SourceToken>& tokens);

  LineWalk walk_;
  std::uint16_t index_;
  Arena& memory_;
  Messages& messages_;
  std::string_view rest_;  ///< with its blanks
  bool counts_ = true;
  std::vector<language::Token> lexed_;
};

/// A place in a line; `begin` counts bytes from 0.
[[nodiscard]] SourcePlace PlaceIn(std::uint16_t file, std::size_t line_number, std::size_t begin,
                                  std::size_t length) noexcept;

}  // namespace tarnwick::basic
