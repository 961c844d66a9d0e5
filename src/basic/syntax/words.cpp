#include "basic/syntax/words.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

/// In the order of `Word`, which is that of the alphabet.
constexpr std::array<std::string_view, 76> kWords = {
    "",         "ALIAS",    "AND",         "AS",       "BIND",     "BYREF",   "BYVAL",   "CALL",
    "CASE",     "CONST",    "CONSTRUCTOR", "CREATE",   "DATA",     "DECLARE", "DEFBYTE", "DEFDBL",
    "DEFDWORD", "DEFINT",   "DEFLNG",      "DEFSHORT", "DEFSNG",   "DEFSTR",  "DEFWORD", "DIM",
    "DO",       "ELSE",     "ELSEIF",      "END",      "ENDIF",    "EVENT",   "EXIT",    "EXTENDS",
    "FOR",      "FUNCTION", "FUNCTIONI",   "GOSUB",    "GOTO",     "IF",      "INPUT",   "INV",
    "IS",       "LET",      "LIB",         "LOOP",     "LPRINT",   "MOD",     "NEXT",    "NOT",
    "ON",       "OR",       "PRINT",       "PRIVATE",  "PROPERTY", "PUBLIC",  "READ",    "REDIM",
    "RESTORE",  "RETURN",   "SELECT",      "SET",      "SHARED",   "SHL",     "SHR",     "STATIC",
    "STEP",     "STRUCT",   "SUB",         "SUBI",     "THEN",     "TO",      "TYPE",    "UNTIL",
    "WEND",     "WHILE",    "WITH",        "XOR"};
constexpr std::size_t kLongestWord = 11;
static_assert(kWords.size() == static_cast<std::size_t>(Word::Xor) + 1);
static_assert(std::is_sorted(kWords.begin(), kWords.end()));

}  // namespace

Word WordOf(std::string_view name) noexcept {
  if (name.size() < 2 || name.size() > kLongestWord) return Word::None;
  std::array<char, kLongestWord> upper{};
  std::transform(name.begin(), name.end(), upper.begin(), UpperByte);
  const std::string_view text(upper.data(), name.size());
  const auto* const found = std::lower_bound(kWords.begin(), kWords.end(), text);
  if (found == kWords.end() || *found != text) return Word::None;
  return static_cast<Word>(found - kWords.begin());
}

std::string_view TextOf(Word word) noexcept {
  return kWords[static_cast<std::size_t>(word)];
}

}  // namespace tarnwick::basic
