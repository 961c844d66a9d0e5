// The words of the language that no program can give to a thing of its own.
#pragma once

#include <string_view>

namespace tarnwick::language {

/// True for a statement, an operator, a type, a function or a built-in object of the language, in
/// any case and without a type suffix. Words that end in "$" are not among them: "Left" is a free
/// name beside LEFT$.
[[nodiscard]] bool IsReservedWord(std::string_view word) noexcept;

/// True for a name as the language has it: a letter or "_", then letters, digits and "_". A type
/// suffix is no part of it.
[[nodiscard]] bool IsIdentifier(std::string_view name) noexcept;

}  // namespace tarnwick::language
