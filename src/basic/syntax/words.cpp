#include "basic/syntax/words.h"

#include <array>
#include <cstddef>

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
static_assert(kWords.size() == static_cast<std::size_t>(Word::Xor) + 1);

}  // namespace

std::string_view TextOf(Word word) noexcept {
  return kWords[static_cast<std::size_t>(word)];
}

}  // namespace tarnwick::basic
