// The tags of record lines.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick {

/// Tags in the order in which the reader takes them, events last.
enum class Tag : std::uint8_t {
  Left,
  Top,
  Width,
  Height,
  String,
  Items,
  Tip,
  Visible,
  Enabled,
  Image,
  Cursor,
  Icon,
  FontName,
  FontSize,
  FontClr,
  TabOrder,
  Border,
  Color,
  WndState,
  Center,
  FontBold,
  FontItalic,
  ReadOnly,
  HideScrollBars,
  ScrllBars,
  Stretch,
  Autosize,
  Transparent,
  MultiSelect,
  Sorted,
  Columns,
  Checked,
  Close,
  Resize,
  Show,
  Change,
  MouseMove,
  MouseUp,
  MouseDown,
  KeyUp,
  KeyDown,
  KeyPress,
  DblClick,
  Click,
  Paint,
  Hint,
  Enter,
  None,  ///< no tag: a value of the head
};
inline constexpr std::size_t kTagCount = 47;

/// How a value comes out of its stored form.
enum class Restore : std::uint8_t {
  Plain,   ///< as it stands
  Lines,   ///< commas and line ends
  Commas,  ///< commas
  Items,   ///< list commas
  Code,    ///< commas and line ends, then trimmed
};

struct TagInfo {
  std::string_view Word;  ///< lower case
  Restore How;
};

inline constexpr std::array<TagInfo, kTagCount> kTags{{
    {"left", Restore::Plain},        {"top", Restore::Plain},
    {"width", Restore::Plain},       {"height", Restore::Plain},
    {"string", Restore::Lines},      {"items", Restore::Items},
    {"tip", Restore::Commas},        {"visible", Restore::Plain},
    {"enabled", Restore::Plain},     {"image", Restore::Plain},
    {"cursor", Restore::Plain},      {"icon", Restore::Plain},
    {"fontname", Restore::Plain},    {"fontsize", Restore::Plain},
    {"fontclr", Restore::Plain},     {"taborder", Restore::Plain},
    {"border", Restore::Plain},      {"color", Restore::Plain},
    {"wndstate", Restore::Plain},    {"center", Restore::Plain},
    {"fontbold", Restore::Plain},    {"fontitalic", Restore::Plain},
    {"readonly", Restore::Plain},    {"hidescrollbars", Restore::Plain},
    {"scrllbars", Restore::Plain},   {"stretch", Restore::Plain},
    {"autosize", Restore::Plain},    {"transparent", Restore::Plain},
    {"multiselect", Restore::Plain}, {"sorted", Restore::Plain},
    {"columns", Restore::Plain},     {"checked", Restore::Plain},
    {"close", Restore::Code},        {"resize", Restore::Code},
    {"show", Restore::Code},         {"change", Restore::Code},
    {"mousemove", Restore::Code},    {"mouseup", Restore::Code},
    {"mousedown", Restore::Code},    {"keyup", Restore::Code},
    {"keydown", Restore::Code},      {"keypress", Restore::Code},
    {"dblclick", Restore::Code},     {"click", Restore::Code},
    {"paint", Restore::Code},        {"hint", Restore::Code},
    {"enter", Restore::Code},
}};

[[nodiscard]] constexpr const TagInfo& InfoOf(Tag tag) noexcept {
  return kTags[static_cast<std::size_t>(tag)];
}

/// The tag of a word of letters in any case; None for a word that is no tag.
[[nodiscard]] constexpr Tag TagOfWord(std::string_view word) noexcept {
  constexpr char kCaseBit = 0x20;
  const auto equal = [](char letter, char lower) { return (letter | kCaseBit) == lower; };
  for (std::size_t tag = 0; tag < kTagCount; ++tag) {
    const std::string_view own = kTags[tag].Word;
    if (std::equal(word.begin(), word.end(), own.begin(), own.end(), equal)) {
      return static_cast<Tag>(tag);
    }
  }
  return Tag::None;
}

}  // namespace tarnwick
