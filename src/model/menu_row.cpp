#include "model/menu_row.h"

#include <algorithm>

#include "text/strings.h"

namespace tarnwick {

namespace {

std::string_view NameOf(std::string_view row) noexcept {
  const std::size_t open = row.find('(');
  const std::size_t close = row.find(')');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open) return {};
  return row.substr(open + 1, close - open - 1);
}

}  // namespace

std::string MenuRowText(int depth, std::string_view caption, std::string_view name) {
  std::string row;
  for (int level = 0; level < depth; ++level) row += kMenuDepth;
  return row.append(caption).append(kMenuGap).append(name).append(")");
}

MenuRowParts SplitMenuRow(std::string_view row) {
  MenuRowParts parts;
  parts.Depth = MenuDepthOf(row);
  std::string_view caption = Trim(row.substr(0, row.find('(')));
  // A prefix behind blanks is no depth, and is left out of the caption all the same.
  for (int level = std::max(parts.Depth, 1); level > 0; --level) {
    caption = WithoutMenuDepth(caption);
  }
  parts.Caption = caption;
  parts.Name = NameOf(row);
  return parts;
}

ParsedMenuRow ParseMenuRow(std::string_view row) noexcept {
  ParsedMenuRow parsed;
  parsed.Nested = row.starts_with(kMenuDepth);
  parsed.Text = row.substr(0, row.find(kMenuGap));
  parsed.Caption = TrimRight(WithoutMenuDepth(parsed.Text));
  parsed.Name = NameOf(row);
  return parsed;
}

bool IsEmptyMenuRow(std::string_view row) noexcept {
  while (row.starts_with(kMenuDepth)) row.remove_prefix(kMenuDepth.size());
  return row.empty();
}

int MenuDepthOf(std::string_view row) noexcept {
  int depth = 0;
  for (; depth < kMostMenuDepth && row.starts_with(kMenuDepth); ++depth) {
    row.remove_prefix(kMenuDepth.size());
  }
  return depth;
}

bool IsDeeperItem(std::string_view caption) noexcept {
  return caption.starts_with(kMenuDepth);
}

std::string_view WithoutMenuDepth(std::string_view caption) noexcept {
  return caption.substr(IsDeeperItem(caption) ? kMenuDepth.size() : 0);
}

std::string ShownMenuCaption(std::string_view caption) {
  std::string shown;
  for (const std::string_view piece : Split(caption, kMenuDepth)) shown += piece;
  return shown;
}

}  // namespace tarnwick
