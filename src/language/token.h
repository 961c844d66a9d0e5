// The tokens of a line of RapidQ source.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarnwick::language {

enum class TokenKind : std::uint8_t {
  Name,          ///< a word with its type suffix: keywords, too, since few of them are reserved
  Number,        ///< with prefix (&H, &B, &O) and suffix
  Text,          ///< in quotes, the quotes included
  Sign,          ///< an operator or a bracket, of one to three characters
  Directive,     ///< "$" and a word, first on the line
  Comment,       ///< from the apostrophe or REM to the end of the line
  Continuation,  ///< "_" behind the last token: the statement goes on in the next line
  Unknown,       ///< a byte that begins no token
};

/// One token; its bytes are `Length` bytes of its line from `Begin` on.
struct Token {
  std::uint32_t Begin = 0;
  std::uint32_t Length = 0;
  TokenKind Kind = TokenKind::Unknown;
  /// Of a text: the closing quote is missing. With a continuation behind it the text goes on in the
  /// next line, without one it ends with this line.
  bool Unclosed = false;
  /// Of a text: it began in the line above, so that there is no opening quote.
  bool FromAbove = false;

  [[nodiscard]] std::string_view In(std::string_view line) const noexcept {
    return line.substr(Begin, Length);
  }
  friend bool operator==(const Token&, const Token&) = default;
};

/// What a line hands on to the next one. Two equal states at a line's start give equal tokens for
/// equal text, so a highlighter may stop where the state at a line's end is the one that it was.
struct LineState {
  bool OpenText = false;     ///< a text goes on
  bool Continued = false;    ///< a statement goes on
  bool EscapeChars = false;  ///< "\" escapes in texts ($ESCAPECHARS ON)

  friend bool operator==(const LineState&, const LineState&) = default;
};

}  // namespace tarnwick::language
