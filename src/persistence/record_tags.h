// The tags of record lines.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/enum_table.h"

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
inline constexpr std::size_t kTagCount = static_cast<std::size_t>(Tag::None);

/// How a stored value is restored.
enum class Restore : std::uint8_t {
  Plain,   ///< unchanged
  Lines,   ///< commas and line ends
  Commas,  ///< commas
  Items,   ///< list commas
  Code,    ///< commas and line ends, then trimmed
};

struct TagInfo {
  Tag Id;
  std::string_view Word;  ///< lower case
  Restore How;
};

inline constexpr std::array<TagInfo, kTagCount> kTags{{
    {Tag::Left, "left", Restore::Plain},
    {Tag::Top, "top", Restore::Plain},
    {Tag::Width, "width", Restore::Plain},
    {Tag::Height, "height", Restore::Plain},
    {Tag::String, "string", Restore::Lines},
    {Tag::Items, "items", Restore::Items},
    {Tag::Tip, "tip", Restore::Commas},
    {Tag::Visible, "visible", Restore::Plain},
    {Tag::Enabled, "enabled", Restore::Plain},
    {Tag::Image, "image", Restore::Plain},
    {Tag::Cursor, "cursor", Restore::Plain},
    {Tag::Icon, "icon", Restore::Plain},
    {Tag::FontName, "fontname", Restore::Plain},
    {Tag::FontSize, "fontsize", Restore::Plain},
    {Tag::FontClr, "fontclr", Restore::Plain},
    {Tag::TabOrder, "taborder", Restore::Plain},
    {Tag::Border, "border", Restore::Plain},
    {Tag::Color, "color", Restore::Plain},
    {Tag::WndState, "wndstate", Restore::Plain},
    {Tag::Center, "center", Restore::Plain},
    {Tag::FontBold, "fontbold", Restore::Plain},
    {Tag::FontItalic, "fontitalic", Restore::Plain},
    {Tag::ReadOnly, "readonly", Restore::Plain},
    {Tag::HideScrollBars, "hidescrollbars", Restore::Plain},
    {Tag::ScrllBars, "scrllbars", Restore::Plain},
    {Tag::Stretch, "stretch", Restore::Plain},
    {Tag::Autosize, "autosize", Restore::Plain},
    {Tag::Transparent, "transparent", Restore::Plain},
    {Tag::MultiSelect, "multiselect", Restore::Plain},
    {Tag::Sorted, "sorted", Restore::Plain},
    {Tag::Columns, "columns", Restore::Plain},
    {Tag::Checked, "checked", Restore::Plain},
    {Tag::Close, "close", Restore::Code},
    {Tag::Resize, "resize", Restore::Code},
    {Tag::Show, "show", Restore::Code},
    {Tag::Change, "change", Restore::Code},
    {Tag::MouseMove, "mousemove", Restore::Code},
    {Tag::MouseUp, "mouseup", Restore::Code},
    {Tag::MouseDown, "mousedown", Restore::Code},
    {Tag::KeyUp, "keyup", Restore::Code},
    {Tag::KeyDown, "keydown", Restore::Code},
    {Tag::KeyPress, "keypress", Restore::Code},
    {Tag::DblClick, "dblclick", Restore::Code},
    {Tag::Click, "click", Restore::Code},
    {Tag::Paint, "paint", Restore::Code},
    {Tag::Hint, "hint", Restore::Code},
    {Tag::Enter, "enter", Restore::Code},
}};
static_assert(HasRowOfEach(kTags, kTagCount));

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
