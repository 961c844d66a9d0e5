// The options of a grid of texts.
#pragma once

#include <cstdint>

#include "objects/object_record.h"

namespace tarnwick::objects {

/// By the numbers that programs know them by.
enum class GridOption : std::uint8_t {
  FixedVerticalLine = 0,
  FixedHorizontalLine = 1,
  VerticalLine = 2,
  HorizontalLine = 3,
  RowSizing = 6,
  ColumnSizing = 7,
  Editing = 10,
  Tabs = 11,
  RowSelect = 12
};

/// True when the grid has an option.
[[nodiscard]] inline bool HasGridOption(const ObjectRecord& grid, GridOption option) {
  const auto* const cells = grid.As<GridCells>();
  return cells != nullptr && (cells->Options >> static_cast<unsigned>(option) & 1) != 0;
}

}  // namespace tarnwick::objects
