// Which object of a form first names a picture: a picture is bound once and shared.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "model/project_records.h"
#include "text/code_page.h"

namespace tarnwick {

/// The first holder of each picture among the records of one kind on one form. Paths compare
/// without regard to case. The index is built at the first look-up, in one pass.
class ImageIndex {
 public:
  /// The records must not change while the index is in use.
  explicit ImageIndex(const RecordArray<ObjectRec>& records) noexcept : records_(records) {}
  /// The number of the first record with the path; 0 when none has it.
  [[nodiscard]] int FindFirstImage(std::string_view path);
  /// The number of the first record before number `k` with the path; 0 when none has it.
  [[nodiscard]] int FindEarlierImage(std::string_view path, int k);

 private:
  using FirstByPath = std::unordered_map<std::string_view, int, FoldedHash, FoldedEqual>;

  const RecordArray<ObjectRec>& records_;
  std::optional<FirstByPath> first_;
};

}  // namespace tarnwick
