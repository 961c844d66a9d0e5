// The support tables: what the system knows of the target language and of its own property rows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/ports.h"
#include "text/code_page.h"

namespace tarnwick {

/// Texts under keys that compare without regard to case. A key is given once: a second text under
/// it is refused and the first one stays.
class KeyedTexts {
 public:
  /// False, and nothing changed, when the key is there already.
  bool Add(std::string_view key, std::string value);
  /// The text of a key; null when there is none.
  [[nodiscard]] const std::string* Find(std::string_view key) const noexcept;
  [[nodiscard]] std::size_t Size() const noexcept { return texts_.size(); }
  [[nodiscard]] bool Empty() const noexcept { return texts_.empty(); }

 private:
  std::unordered_map<std::string, std::string, FoldedHash, FoldedEqual> texts_;
};

/// What the four support files hold. They are read once at start-up and never written:
///
///   const SupportTables tables = ReadSupportTables(ports.Files, program_folder);
///   if (const std::string* rows = tables.ObjectHelp.Find("BUTTON")) ...
struct SupportTables {
  KeyedTexts MemberLists;                 ///< by kind or word: members joined by 0x95
  KeyedTexts MemberHelp;                  ///< by member: help with CR LF lines
  KeyedTexts EventLists;                  ///< by kind: events joined by 0x95
  std::vector<std::string> ListaObjetos;  ///< object kinds of the target language
  /// Function names; row 0 stays empty, so that row numbers count the functions from 1.
  std::vector<std::string> ListColFunc{1};
  std::vector<std::string> FunctionDescriptions{1};  ///< help, parallel to `ListColFunc`
  std::vector<std::string> ListFunc1;                ///< first list of the function panel
  std::vector<std::string> ListFunc0;                ///< second list, the further functions
  std::string Keywords;                ///< each followed by LF, one LF more at the end
  std::vector<std::string> KindLines;  ///< all lines of the fourth file, unchanged
  KeyedTexts ObjectHelp;               ///< by upper-case kind: property rows joined by 0x95
};

/// Reads "\Add001.tn" to "\Add004.tn" of the program folder. A file that is missing leaves its
/// tables empty, a line that lacks what it should carry is passed over; nothing is reported.
[[nodiscard]] SupportTables ReadSupportTables(FilePort& files, const std::string& program_folder);

/// The text of the first file: kinds, member lists, member help, event lists.
void AddMemberFile(SupportTables& tables, std::string_view text);
/// The text of the second file: functions with their help, and the two lists of the panel.
void AddFunctionFile(SupportTables& tables, std::string_view text);
/// The text of the third file: the keywords, of which the last line counts.
void AddKeywordFile(SupportTables& tables, std::string_view text);
/// The text of the fourth file: the property rows of every kind.
void AddKindFile(SupportTables& tables, std::string_view text);

}  // namespace tarnwick
