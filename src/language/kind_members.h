// The members of the language's object kinds, and where their descriptions are kept.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::language {

/// What a row of a member list stands for.
enum class MemberSort : std::uint8_t { Property, Method, Event, TypeName };

/// One row of a member list.
struct KindMember {
  std::string Name;
  MemberSort Sort = MemberSort::Property;

  friend bool operator==(const KindMember&, const KindMember&) = default;
};

/// The word whose list holds type names rather than members: they follow "Dim x As".
inline constexpr std::string_view kTypeWord = "as";

/// The key of a member's help: its name in lower case, made distinct where kinds of the language
/// share a name but not its meaning.
[[nodiscard]] std::string MemberHelpKey(std::string_view kind, std::string_view member);

/// A description of a member holds one passage for each group of kinds that share it. Its first
/// line names member, sort and kinds ("Caption, property of Button, Label").
struct HelpPassage {
  std::string_view Head;  ///< the first line
  std::string_view Body;  ///< the lines behind it
};

/// The passages of a description in their order; the views live as long as `help`.
[[nodiscard]] std::vector<HelpPassage> PassagesOf(std::string_view help);
/// True when the head of a passage names the kind, as a whole word and in any case.
[[nodiscard]] bool NamesKind(const HelpPassage& passage, std::string_view kind) noexcept;
/// The sort that a description gives a member of a kind: that of the passage that names the kind,
/// or of the first one when none does. Nothing when no passage gives a sort.
[[nodiscard]] std::optional<MemberSort> SortInHelp(std::string_view help, std::string_view kind);

}  // namespace tarnwick::language
