// Rows of shared values, and what differs between two states of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace tarnwick {

/// A value of a project at some time. Times at which it was the same share it.
template <class T>
using Shared = std::shared_ptr<const T>;

template <class T>
struct ValueChange {
  Shared<T> Before;
  Shared<T> After;
  [[nodiscard]] bool Empty() const noexcept { return Before == After; }
};

/// The one run of rows in which two states differ.
template <class Row>
struct RowsChange {
  std::size_t First = 0;
  std::vector<Row> Before;
  std::vector<Row> After;
  [[nodiscard]] bool Empty() const noexcept { return Before.empty() && After.empty(); }
};

/// Replaces the rows of one side of a change by those of the other.
template <class Row>
void PutRows(std::vector<Row>& rows, const RowsChange<Row>& change, bool back) {
  const std::vector<Row>& from = back ? change.After : change.Before;
  const std::vector<Row>& to = back ? change.Before : change.After;
  const auto first = rows.begin() + static_cast<std::ptrdiff_t>(change.First);
  const std::size_t kept = std::min(from.size(), to.size());
  std::copy_n(to.begin(), kept, first);
  const auto behind = first + static_cast<std::ptrdiff_t>(kept);
  const auto tail = static_cast<std::ptrdiff_t>(kept);
  if (from.size() > kept) {
    rows.erase(behind, first + static_cast<std::ptrdiff_t>(from.size()));
  } else {
    rows.insert(behind, to.begin() + tail, to.end());
  }
}

/// Brings rows up to date with a live array of `count` elements and returns what differed.
/// `same(row, i)` compares a row with element i; `make(i, old)` makes its row, `old` being the row
/// that stood there, or null.
template <class Row, class Same, class Make>
RowsChange<Row> RenewRows(std::vector<Row>& rows, std::size_t count, Same same, Make make) {
  const std::size_t least = std::min(rows.size(), count);
  std::size_t head = 0;
  while (head < least && same(rows[head], head)) ++head;
  RowsChange<Row> change;
  if (head == rows.size() && head == count) return change;
  std::size_t tail = 0;
  while (tail < least - head && same(rows[rows.size() - 1 - tail], count - 1 - tail)) ++tail;
  change.First = head;
  change.Before.assign(rows.begin() + static_cast<std::ptrdiff_t>(head),
                       rows.end() - static_cast<std::ptrdiff_t>(tail));
  change.After.reserve(count - tail - head);
  for (std::size_t i = head; i < count - tail; ++i) {
    change.After.push_back(make(i, i < rows.size() ? &rows[i] : nullptr));
  }
  PutRows(rows, change, false);
  return change;
}

}  // namespace tarnwick
