#include "inspector/grid_rows.h"

#include <algorithm>
#include <utility>

#include "text/code_page.h"

namespace tarnwick {

namespace {

constexpr std::string_view kNameRow = "Name";
constexpr std::string_view kProgramIconRow = "Icon(App)";

/// The program takes its icon from form 1; on any other form the row would do nothing.
bool HasEffect(const PropertyRow& row, const RowTarget* target) {
  if (target == nullptr || target->Id != Kind::Form) return true;
  return target->Window.Number() == 1 || !EqualsFolded(row.Name, kProgramIconRow);
}

}  // namespace

void GridRows::Build(std::span<const PropertyRow> rows, const RowTarget* target) {
  cells_.clear();
  cells_.push_back({PropertyRow{std::string{kNameRow}, row_mark::kText, {}}, {}, nullptr});
  for (const PropertyRow& row : rows) {
    if (!HasEffect(row, target)) continue;
    cells_.push_back({row, {}, target != nullptr ? BindingOf(row.Name, target->Id) : nullptr});
  }
  ChooseShown();
}

const GridRows::Cell* GridRows::At(int row) const noexcept {
  if (row < 0 || row >= Count()) return nullptr;
  return &cells_[static_cast<std::size_t>(row)];
}

bool GridRows::SetText(int row, std::string text) {
  if (row < 0 || row >= Count()) return false;
  std::string& shown = cells_[static_cast<std::size_t>(row)].Text;
  if (shown == text) return false;
  shown = std::move(text);
  return true;
}

int GridRows::RowOf(std::string_view name) const noexcept {
  for (int row = 0; row < Count(); ++row) {
    if (EqualsFolded(At(row)->Row.Name, name)) return row;
  }
  return -1;
}

void GridRows::SetFilter(std::string_view text) {
  filter_ = text;
  ChooseShown();
}

int GridRows::TopOf(int row) const noexcept {
  const auto found = std::lower_bound(shown_.begin(), shown_.end(), row);
  if (found == shown_.end() || *found != row) return -1;
  return static_cast<int>(found - shown_.begin()) * kRowHeight;
}

void GridRows::ChooseShown() {
  shown_.clear();
  for (int row = 0; row < Count(); ++row) {
    const bool is_shown = row == 0 || filter_.empty() ||
                          FindFolded(At(row)->Row.Name, filter_) != std::string_view::npos;
    if (is_shown) shown_.push_back(row);
  }
}

}  // namespace tarnwick
