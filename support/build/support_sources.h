// The support sources as records: what the language has, in the order of the files.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "build/faults.h"
#include "build/source_reader.h"

namespace tarnwick::support {

/// A kind of the Objects Examiner.
struct KindEntry {
  std::string Name;
  std::vector<std::string> Keys;                   ///< words under which its lists are looked up
  std::string Class;                               ///< component of the language
  std::optional<std::vector<std::string>> Events;  ///< nothing for what is no object of a form
  std::vector<std::string> Text;
  std::vector<std::string> Example;
  Place Where;
};

/// A property, method or event of a kind.
struct MemberEntry {
  std::string Kind;
  std::string Name;
  std::string Category;  ///< "property", "method" or "event"
  std::string Signature;
  std::string Access;  ///< "R", "W" or "RW" for properties
  std::string Default;
  std::string Values;  ///< "number=name" pairs joined by ";"
  std::string Description;
  Place Where;
};

/// The help key of members whose name alone would not be distinct. "*" as member is any member,
/// in the key it stands for the member's name.
struct HelpKeyRule {
  std::string Kind;
  std::string Member;
  std::string Key;
};

struct FunctionEntry {
  std::string Name;
  std::string Group;
  bool Main = false;  ///< listed in the first tab of the panel, not in the second
  std::string Syntax;
  std::vector<std::string> Text;
  std::vector<std::string> Example;
  Place Where;
};

/// A row of the property grid.
struct GridRow {
  std::string Kind;  ///< upper case
  std::string Name;
  std::string Mark;  ///< a word of MarkByte()
  std::vector<std::string> Values;
  Place Where;
};

struct SupportSources {
  std::vector<KindEntry> Kinds;
  std::vector<MemberEntry> Members;
  std::vector<HelpKeyRule> HelpKeys;
  std::vector<Word> Types;
  std::vector<FunctionEntry> Functions;
  std::vector<Word> Keywords;
  std::vector<GridRow> Rows;
};

/// Reads all sources below `folder`. What is missing or does not fit its shape is a fault.
[[nodiscard]] SupportSources LoadSources(const std::string& folder, Faults& faults);

/// The key under which the help of a member is kept, in lower case.
[[nodiscard]] std::string HelpKeyOf(const SupportSources& sources, std::string_view kind,
                                    std::string_view member);

}  // namespace tarnwick::support
