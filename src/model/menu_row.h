// The grammar of a menu row, "...&New    (mnuNew)": designers, menu arrays and form files share it.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The depth prefix of a row, once for each level below the titles.
inline constexpr std::string_view kMenuDepth = "...";
/// What parts caption and name.
inline constexpr std::string_view kMenuGap = "    (";
/// The caption of a separator.
inline constexpr std::string_view kMenuSeparator = "-";
/// How many depth prefixes the designers give a row.
inline constexpr int kMostMenuDepth = 2;

/// The pieces of a row as a designer shows them.
struct MenuRowParts {
  int Depth = 0;  ///< depth prefixes, at most `kMostMenuDepth`
  std::string Caption;
  std::string Name;
};

/// The pieces of a row as the menu arrays take them; views of the row.
struct ParsedMenuRow {
  bool Nested = false;       ///< the row begins with a depth prefix
  std::string_view Text;     ///< the row without its name, with its prefix
  std::string_view Caption;  ///< without its first prefix; that of a deeper row begins with "..."
  std::string_view Name;
};

/// A row from its pieces: prefixes, caption, four blanks and the name in brackets.
[[nodiscard]] std::string MenuRowText(int depth, std::string_view caption, std::string_view name);
/// The pieces for the designers: the caption is what stands before the first "(", trimmed, without
/// its prefixes; the name stands between the first "(" and the first ")". A row that breaks the
/// grammar gives empty pieces.
[[nodiscard]] MenuRowParts SplitMenuRow(std::string_view row);
/// The pieces for the arrays: the first gap ends the caption, which loses its first prefix and the
/// blanks at its end; those at its start stay. The name is that of SplitMenuRow.
[[nodiscard]] ParsedMenuRow ParseMenuRow(std::string_view row) noexcept;
/// True for a row that is not filled yet: nothing in it but depth prefixes.
[[nodiscard]] bool IsEmptyMenuRow(std::string_view row) noexcept;
/// How many depth prefixes a row begins with, at most `kMostMenuDepth`.
[[nodiscard]] int MenuDepthOf(std::string_view row) noexcept;

/// True for the caption of an item that the designer showed below another one.
[[nodiscard]] bool IsDeeperItem(std::string_view caption) noexcept;
/// A caption without the one prefix that it may begin with: so files and programs have it.
[[nodiscard]] std::string_view WithoutMenuDepth(std::string_view caption) noexcept;
/// A caption as the menu bar of a design form shows it: every "..." is left out.
[[nodiscard]] std::string ShownMenuCaption(std::string_view caption);

}  // namespace tarnwick
