// Which member or event list a word of the user's code names.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "language/support_tables.h"
#include "model/project_records.h"

namespace tarnwick::editor {

/// The two code windows differ in the fixed words that their look-up knows.
inline constexpr std::string_view kFixedWordsOfCode[] = {"clipboard", "application", "font",
                                                         "screen"};
inline constexpr std::string_view kFixedWordsOfDeclarations[] = {"clipboard", "application",
                                                                 "font"};

/// Resolves one word against the project's tables and the support tables. It knows no scopes and
/// parses no code. Every look-up is one walk over the project's objects.
class MemberLookup {
 public:
  MemberLookup(const ProjectTables& project, const language::SupportTables& language,
               std::span<const std::string_view> fixed_words)
      : project_(project), language_(language), fixed_words_(fixed_words) {}

  /// The members of what stands in front of a dot; empty for a word that names nothing.
  [[nodiscard]] std::vector<std::string> MembersOf(std::string_view word) const;
  /// The events of what stands in front of an underscore; empty for a word that names nothing.
  [[nodiscard]] std::vector<std::string> EventsOf(std::string_view word) const;
  /// The type names that follow "As".
  [[nodiscard]] std::vector<std::string> TypeNames() const;

 private:
  enum class ListSort { Members, Events };
  /// The key of the list of a project's form, menu row or object of that name; "" for no such name.
  [[nodiscard]] std::string KeyOf(std::string_view word, ListSort sort) const;
  [[nodiscard]] std::string KeyOnForm(const DesignForm& window, std::string_view word,
                                      ListSort sort, bool& menus_searched) const;
  [[nodiscard]] std::vector<std::string> MemberNames(std::string_view key) const;

  const ProjectTables& project_;
  const language::SupportTables& language_;
  std::span<const std::string_view> fixed_words_;
};

}  // namespace tarnwick::editor
