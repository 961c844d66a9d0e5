#include "menus/menu_preview.h"

#include <utility>

namespace tarnwick::menus {

std::vector<PreviewMenu> PreviewOf(const MenuDesign& design, const Rows& rows) {
  std::vector<PreviewMenu> menus;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (IsEmptyMenuRow(rows[row])) continue;
    const ParsedMenuRow parsed = ParseMenuRow(rows[row]);
    if (parsed.Nested && menus.empty()) continue;
    PreviewItem item{static_cast<int>(row), design.HasBar ? ShownMenuCaption(parsed.Caption)
                                                          : std::string(parsed.Caption)};
    if (parsed.Nested) {
      menus.back().Items.push_back(std::move(item));
    } else {
      menus.push_back({std::move(item), {}});
    }
  }
  return menus;
}

int PreviewMenuOf(const std::vector<PreviewMenu>& menus, int row) noexcept {
  int found = -1;
  for (std::size_t i = 0; i < menus.size() && menus[i].Head.Row <= row; ++i) {
    found = static_cast<int>(i);
  }
  return found;
}

}  // namespace tarnwick::menus
