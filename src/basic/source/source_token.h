// The tokens that the parser reads: those of the files, with directives and macros resolved.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "basic/source/source_place.h"

namespace tarnwick::basic {

enum class SourceTokenKind : std::uint8_t {
  Name,
  Number,
  Text,
  Sign,
  Directive,  ///< one that the parser handles; the line's other tokens follow
  LineEnd,    ///< end of a statement line, continued lines taken together
  End,        ///< end of the program
};

/// One token. A token of a macro has the place where the macro is used.
struct SourceToken {
  SourceTokenKind Kind = SourceTokenKind::End;
  bool Touches = false;   ///< no blank stands between it and the token in front
  bool Unclosed = false;  ///< a text without closing quote
  /// The bytes of the token; of a text its value, without quotes and with escapes resolved.
  std::string_view Text;
  SourcePlace At;
  bool Plain = false;  ///< a name that $UNDEF has made no keyword
};

/// Hands out the tokens of a program, one statement line after the other.
class TokenLines {
 public:
  virtual ~TokenLines() = default;
  /// Replaces `line` by the tokens of the next statement line and its LineEnd; behind the last one
  /// by one End, each time it is asked.
  virtual void Next(std::vector<SourceToken>& line) = 0;
};

}  // namespace tarnwick::basic
