// What the program knows of RapidQ: its keywords, kinds, members, events and functions.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "language/function_help.h"
#include "language/keyed.h"
#include "language/kind_members.h"
#include "language/property_row.h"

namespace tarnwick::language {

/// The tables, filled once from the support files and never written. Editor, property grid,
/// Objects Examiner, checks and interpreter look things up here:
///
///   if (const auto* members = tables.MemberLists.Find("button")) ...  // name and sort of each
///   if (const FunctionHelp* mid = tables.Functions.Find("mid$")) ...
struct SupportTables {
  /// By kind, control array or word ("button", "images", "clipboard", "as"): the members.
  Keyed<std::vector<KindMember>> MemberLists;
  /// By the key that `MemberHelpKey` gives, or a kind followed by "%"; lines end in CR LF.
  KeyedTexts MemberHelp;
  /// By kind or control array: the events in the order in which the code editor offers them.
  Keyed<std::vector<std::string>> EventLists;
  /// The object kinds of the language, in the order of the Objects Examiner.
  std::vector<std::string> ListaObjetos;
  /// The functions (`ListColFunc`) with their descriptions (`FunctionDescriptions`).
  FunctionList Functions;
  std::vector<std::string> ListFunc1;  ///< first list of the function panel
  std::vector<std::string> ListFunc0;  ///< second list, the further functions
  std::vector<std::string> Keywords;
  /// By kind word: the rows of the property grid, without the row "Name" that every kind has.
  Keyed<std::vector<PropertyRow>> ObjectHelp;

  SupportTables();
  SupportTables(SupportTables&& other) noexcept;
  SupportTables& operator=(SupportTables&& other) noexcept;
  ~SupportTables();

  /// The description of a kind; null when there is none.
  [[nodiscard]] const std::string* HelpOfKind(std::string_view kind) const;
  /// The description of a member as it is written for the kind; null when there is none.
  [[nodiscard]] const std::string* HelpOfMember(std::string_view kind,
                                                std::string_view member) const;
};

}  // namespace tarnwick::language
