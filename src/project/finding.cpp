#include "project/finding.h"

#include <algorithm>

#include "language/characters.h"
#include "language/reserved_words.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::project {

namespace {

/// Names that the generated program takes for itself.
constexpr std::array<std::string_view, 3> kProgramNames{"Font", "MenuBar", "Default_Icon"};

bool IsProgramName(std::string_view name) noexcept {
  return std::any_of(kProgramNames.begin(), kProgramNames.end(),
                     [&](std::string_view own) { return EqualsFolded(own, name); });
}

/// The name without the index of an array; nothing when the brackets hold no number.
std::optional<std::string_view> StemOf(std::string_view name) noexcept {
  const std::string_view stem = ArrayStem(name);
  std::string_view index = name.substr(stem.size());
  if (index.size() < 3 || !index.ends_with(')')) return std::nullopt;
  index = index.substr(1, index.size() - 2);
  const bool number = std::all_of(index.begin(), index.end(), language::IsDigit);
  return number ? std::optional(stem) : std::nullopt;
}

}  // namespace

std::string Finding::Line() const {
  std::string line = Place;
  if (!line.empty()) line += ": ";
  line.append(Text).append("; ").append(ToDo());
  // A name or a path from a damaged file can hold anything; a finding stays on its line.
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return line;
}

bool FormsArrays(Kind kind) noexcept {
  switch (InfoOf(kind).Program.Dim.Rule) {
    case DimRule::Stem:
    case DimRule::Plain:
    case DimRule::MenuBar:
      return true;
    default:
      return kind == Kind::MenuItem;  // declared along with its menu bar
  }
}

std::optional<FindingId> FaultOfName(std::string_view name, Kind kind) {
  if (Trim(name).empty()) return FindingId::NameEmpty;
  if (IsArrayForm(name)) {
    if (!FormsArrays(kind)) return FindingId::NameInBrackets;
    const std::optional<std::string_view> stem = StemOf(name);
    if (!stem) return FindingId::NameMalformed;
    name = *stem;
  }
  if (!language::IsIdentifier(name)) return FindingId::NameMalformed;
  if (language::IsReservedWord(name) || IsProgramName(name)) return FindingId::NameReserved;
  return std::nullopt;
}

std::string TextOfNameFault(FindingId fault, std::string_view name) {
  std::string text = "the name ";
  text += name;
  switch (fault) {
    case FindingId::NameEmpty:
      return "the name is empty";
    case FindingId::NameInBrackets:
      return text + " has brackets, and its kind forms no arrays";
    case FindingId::NameReserved:
      return text + (IsProgramName(ArrayStem(name)) ? " is one that every program has already"
                                                    : " is a word of the language");
    default:
      return text + " is no name of the language";
  }
}

}  // namespace tarnwick::project
