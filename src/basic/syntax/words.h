// The words that begin, divide or end statements, and the operators that are words.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarnwick::basic {

/// `None` is any other name. Few of these are reserved: the parser decides by where they stand.
enum class Word : std::uint8_t {
  None,
  Alias,
  And,
  As,
  Bind,
  ByRef,
  ByVal,
  Call,
  Case,
  Const,
  Constructor,
  Create,
  Data,
  Declare,
  DefByte,
  DefDbl,
  DefDWord,
  DefInt,
  DefLng,
  DefShort,
  DefSng,
  DefStr,
  DefWord,
  Dim,
  Do,
  Else,
  ElseIf,
  End,
  EndIf,
  Event,
  Exit,
  Extends,
  For,
  Function,
  FunctionI,
  Gosub,
  Goto,
  If,
  Input,
  Inv,
  Is,
  Let,
  Lib,
  Loop,
  LPrint,
  Mod,
  Next,
  Not,
  On,
  Or,
  Print,
  Private,
  Property,
  Public,
  Read,
  Redim,
  Restore,
  Return,
  Select,
  Set,
  Shared,
  Shl,
  Shr,
  Static,
  Step,
  Struct,
  Sub,
  SubI,
  Then,
  To,
  Type,
  Until,
  Wend,
  While,
  With,
  Xor,
};

/// The word of a name, without regard to case.
[[nodiscard]] Word WordOf(std::string_view name) noexcept;
/// The word in upper case, for messages.
[[nodiscard]] std::string_view TextOf(Word word) noexcept;

}  // namespace tarnwick::basic
