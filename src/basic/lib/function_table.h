// The words of the language's function list with their signatures, looked up by name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// One number per row of function_list.h.
enum class FunctionId : std::uint16_t {
#define BASIC_ROW(id, name, form, result, parameters) id,
#include "basic/lib/function_list.h"
#undef BASIC_ROW
};

/// What sort of word it is; function_list.h says what each means.
enum class FunctionForm : std::uint8_t {
  Function,
  Procedure,
  Intrinsic,
  Operator,
  Keyword,
  Directive,
  Constant,
  Object,
};

/// Type of a result, and of what a native function is given for an argument.
enum class FunctionType : std::uint8_t { None, Whole, Number, String, Any };

/// What an argument may be.
enum class ParameterKind : std::uint8_t {
  String,          ///< a string; a number is written as STR$ writes it
  Whole,           ///< an int64: a fraction is rounded half to even
  Number,          ///< a double
  Any,             ///< number or string, handed on with its type
  NumberVariable,  ///< by reference: a variable, element or field that holds a number
  Variable,        ///< by reference: any variable, element or field
  Array,           ///< an array's name without brackets
  Element,         ///< one element of an array; both of a pair are of the same array
  Routine,         ///< the name of a SUB or FUNCTION
  Word,            ///< a word of the grammar, such as ASCEND
};

struct Parameter {
  ParameterKind Kind = ParameterKind::Any;
  bool Optional = false;
  bool Repeats = false;  ///< none, one or more of this kind; only ever the last parameter
};

/// True when the argument is handed over by reference, never as a value.
[[nodiscard]] constexpr bool IsByReference(ParameterKind kind) {
  return kind >= ParameterKind::NumberVariable && kind <= ParameterKind::Element;
}

/// MaxArguments of a function that takes any number of arguments.
inline constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

struct FunctionInfo {
  FunctionId Id{};
  std::string_view Name;  ///< upper case; string functions end in "$", directives begin with it
  FunctionForm Form = FunctionForm::Keyword;
  FunctionType Result = FunctionType::None;
  std::span<const Parameter> Parameters;
  std::size_t MinArguments = 0;
  std::size_t MaxArguments = 0;

  /// True when the machine runs it through NativeOf: the two forms without code of the compiler.
  [[nodiscard]] constexpr bool IsNative() const {
    return Form == FunctionForm::Function || Form == FunctionForm::Procedure;
  }
  /// The parameter of argument `index` from 0; the last one for those beyond it when that repeats.
  /// `index` is below MaxArguments.
  [[nodiscard]] const Parameter& ParameterOf(std::size_t index) const;
};

/// All rows, in the order of FunctionId.
[[nodiscard]] std::span<const FunctionInfo> Functions();
/// The row of an id.
[[nodiscard]] const FunctionInfo& FunctionOf(FunctionId id);
/// The rows of a name, without regard to case; none when the name is no word of the list. Several
/// rows differ in their number of arguments.
[[nodiscard]] std::span<const FunctionInfo> FindFunctions(std::string_view name);
/// The row of a name that takes so many arguments; null when there is none of that name, or none
/// that takes them (FindFunctions gives those).
[[nodiscard]] const FunctionInfo* FindFunction(std::string_view name, std::size_t arguments);
/// The same among the rows of a name.
[[nodiscard]] const FunctionInfo* FindFunction(std::span<const FunctionInfo> rows,
                                               std::size_t arguments);

/// The word that the runner leaves out, with the reason and the remedy.
struct LeftOut {
  std::string_view Name;
  std::string_view Reason;
  std::string_view Instead;
};
/// All words that are left out, in the order of the table.
[[nodiscard]] std::span<const LeftOut> LeftOutWords();
/// The row of a name, without regard to case; null when it is not left out.
[[nodiscard]] const LeftOut* FindLeftOut(std::string_view name);
/// What a message says of a word that is left out, and what to do about it ("" when not known).
[[nodiscard]] std::string TextOf(const LeftOut& word);
[[nodiscard]] std::string RemedyOf(const LeftOut& word);

}  // namespace tarnwick::basic
