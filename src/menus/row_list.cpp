#include "menus/row_list.h"

#include <algorithm>
#include <utility>

namespace tarnwick::menus {

namespace {

/// A designer's list ends with so many empty rows when it opens.
constexpr std::size_t kEmptyRows = 2;

}  // namespace

RowList::RowList(const MenuDesign& design, std::string form_name, Rows rows)
    : design_(design), form_name_(std::move(form_name)), rows_(std::move(rows)) {
  EndWithEmptyRows();
}

void RowList::EndWithEmptyRows() {
  rows_.resize(rows_.size() + kEmptyRows);
  Select(0);
}

void RowList::FillEmptyList() {
  if (!rows_.empty()) return;
  RowTexts typed = std::move(texts_);
  EndWithEmptyRows();
  texts_ = std::move(typed);
}

bool RowList::HasText() const {
  return !std::all_of(rows_.begin(), rows_.end(), IsEmptyMenuRow);
}

bool RowList::HasPendingText() const {
  if (selected_ < 0) return !texts_.Caption.empty() || !texts_.Name.empty();
  const MenuRowParts row = SplitMenuRow(Row());
  return texts_.Caption != row.Caption || texts_.Name != row.Name;
}

Rows RowList::RowsWithTexts() const {
  Rows rows = rows_;
  if (selected_ >= 0 && HasPendingText()) {
    rows[static_cast<std::size_t>(selected_)] = MenuRowText(Depth(), texts_.Caption, texts_.Name);
  }
  return rows;
}

int RowList::Depth() const {
  if (selected_ < 0) return 0;
  if (!Row().empty()) return MenuDepthOf(Row());
  if (wanted_depth_) return *wanted_depth_;
  return selected_ == 0 ? 0 : MenuDepthOf(rows_[static_cast<std::size_t>(selected_ - 1)]);
}

void RowList::Select(int row) {
  selected_ = std::clamp(row, -1, Count() - 1);
  if (selected_ < 0 && Count() > 0) selected_ = 0;
  wanted_depth_.reset();
  texts_ = {};
  if (selected_ < 0) return;
  MenuRowParts parts = SplitMenuRow(Row());
  texts_ = {std::move(parts.Caption), std::move(parts.Name)};
}

void RowList::Enter() {
  FillEmptyList();
  const bool nothing = texts_ == RowTexts{} && IsEmptyMenuRow(Row());
  if (!nothing) {
    Row() = MenuRowText(Depth(), texts_.Caption, texts_.Name);
    if (selected_ == Count() - 1) rows_.emplace_back();
  }
  Select(selected_ + 1);
}

void RowList::Outdent() {
  if (selected_ < 0) return;
  if (IsEmptyMenuRow(Row())) {
    // Without a prefix the row would take the depth of the row above it again.
    wanted_depth_ = std::max(0, Depth() - 1);
    Row().clear();
  } else if (MenuDepthOf(Row()) > 0) {
    Row().erase(0, kMenuDepth.size());
  }
}

void RowList::Indent() {
  if (selected_ < 0 || Depth() >= kMostMenuDepth) return;
  // An empty row counts as deep as it would be once it is filled.
  const int missing = Row().empty() ? Depth() + 1 : 1;
  for (int level = 0; level < missing; ++level) Row().insert(0, kMenuDepth);
}

void RowList::Up() {
  MoveTo(selected_ - 1);
}

void RowList::Down() {
  MoveTo(selected_ + 1);
}

void RowList::MoveTo(int row) {
  if (selected_ < 0 || row < 0 || row >= Count() || row == selected_) return;
  const auto from = rows_.begin() + selected_;
  const auto to = rows_.begin() + row;
  if (row > selected_) {
    std::rotate(from, from + 1, to + 1);
  } else {
    std::rotate(to, from, from + 1);
  }
  selected_ = row;
}

void RowList::DeleteRow() {
  if (selected_ < 0) return;
  rows_.erase(rows_.begin() + selected_);
  Select(std::min(selected_, Count() - 1));
}

void RowList::DeleteAll() {
  rows_.clear();
  Select(-1);
}

void RowList::Insert() {
  FillEmptyList();
  if (selected_ == Count() - 1) {
    rows_.emplace_back();
    return;
  }
  rows_.insert(rows_.begin() + selected_, std::string());
  Select(selected_);
}

void RowList::Example() {
  rows_.clear();
  for (const ExampleRow& row : design_.Example) {
    rows_.push_back(MenuRowText(row.Depth, row.Caption, form_name_ + std::string(row.Name)));
  }
  EndWithEmptyRows();
}

}  // namespace tarnwick::menus
