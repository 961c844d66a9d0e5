#include "basic/lib/function_table.h"

#include <array>
#include <string>
#include <unordered_map>

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

struct Row {
  std::string_view Name;
  FunctionForm Form;
  FunctionType Result;
  std::string_view Signature;
};

constexpr Row kRows[] = {
#define BASIC_ROW(id, name, form, result, parameters) \
  {name, FunctionForm::form, FunctionType::result, parameters},
#include "basic/lib/function_list.h"
#undef BASIC_ROW
};
constexpr std::size_t kRowCount = std::size(kRows);

/// The kind that a letter of a signature stands for. An unknown letter stops the build.
constexpr ParameterKind KindOf(char letter) {
  switch (letter) {
    case 's':
      return ParameterKind::String;
    case 'w':
      return ParameterKind::Whole;
    case 'n':
      return ParameterKind::Number;
    case 'a':
      return ParameterKind::Any;
    case 'v':
      return ParameterKind::NumberVariable;
    case 'r':
      return ParameterKind::Variable;
    case 'y':
      return ParameterKind::Array;
    case 'e':
      return ParameterKind::Element;
    case 'p':
      return ParameterKind::Routine;
    case 'l':
      return ParameterKind::Word;
    default:
      throw letter;
  }
}

constexpr bool IsMark(char c) {
  return c == '?' || c == '*';
}

constexpr std::size_t CountParameters() {
  std::size_t count = 0;
  for (const Row& row : kRows) {
    for (const char c : row.Signature) count += IsMark(c) ? 0U : 1U;
  }
  return count;
}

/// The parameters of all rows, one row behind the other.
constexpr auto kParameters = [] {
  std::array<Parameter, CountParameters()> all{};
  std::size_t at = 0;
  for (const Row& row : kRows) {
    for (const char c : row.Signature) {
      if (c == '?') {
        all[at - 1].Optional = true;
      } else if (c == '*') {
        all[at - 1].Repeats = true;
      } else {
        all[at++].Kind = KindOf(c);
      }
    }
  }
  return all;
}();

constexpr auto kFunctions = [] {
  std::array<FunctionInfo, kRowCount> all{};
  std::size_t first = 0;
  for (std::size_t i = 0; i < kRowCount; ++i) {
    FunctionInfo& info = all[i];
    info = {static_cast<FunctionId>(i), kRows[i].Name, kRows[i].Form, kRows[i].Result, {}, 0, 0};
    std::size_t count = 0;
    bool any_number = false;
    for (const char c : kRows[i].Signature) count += IsMark(c) ? 0U : 1U;
    info.Parameters = std::span(kParameters).subspan(first, count);
    for (const Parameter& parameter : info.Parameters) {
      if (!parameter.Optional && !parameter.Repeats) ++info.MinArguments;
      any_number = any_number || parameter.Repeats;
    }
    info.MaxArguments = any_number ? kAnyNumber : count;
    first += count;
  }
  return all;
}();

/// First row and number of rows of each name.
using NameMap =
    std::unordered_map<std::string_view, std::span<const FunctionInfo>, FoldedHash, FoldedEqual>;

NameMap MakeNameMap() {
  NameMap map;
  const std::span<const FunctionInfo> all(kFunctions);
  for (std::size_t first = 0; first < all.size();) {
    std::size_t end = first + 1;
    while (end < all.size() && all[end].Name == all[first].Name) ++end;
    map.emplace(all[first].Name, all.subspan(first, end - first));
    first = end;
  }
  return map;
}

}  // namespace

const Parameter& FunctionInfo::ParameterOf(std::size_t index) const {
  return index < Parameters.size() ? Parameters[index] : Parameters.back();
}

std::span<const FunctionInfo> Functions() {
  return kFunctions;
}

const FunctionInfo& FunctionOf(FunctionId id) {
  return kFunctions[static_cast<std::size_t>(id)];
}

std::span<const FunctionInfo> FindFunctions(std::string_view name) {
  static const NameMap kMap = MakeNameMap();
  const auto found = kMap.find(name);
  return found == kMap.end() ? std::span<const FunctionInfo>() : found->second;
}

const FunctionInfo* FindFunction(std::string_view name, std::size_t arguments) {
  return FindFunction(FindFunctions(name), arguments);
}

const FunctionInfo* FindFunction(std::span<const FunctionInfo> rows, std::size_t arguments) {
  for (const FunctionInfo& row : rows) {
    if (arguments >= row.MinArguments && arguments <= row.MaxArguments) return &row;
  }
  return nullptr;
}

}  // namespace tarnwick::basic
