// Pictures of design forms, each read from its file once.
#pragma once

#include <QPixmap>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "text/code_page.h"

namespace tarnwick::looks {

/// Keeps the pictures of the open project by path (any format the toolkit reads, .bmp and .ico
/// among them). References stay good until Clear.
class PictureCache {
 public:
  /// Returns the bytes of a file; nothing when it cannot be read.
  using ReadFile = std::function<std::optional<std::string>(const std::string&)>;

  explicit PictureCache(ReadFile read) : read_(std::move(read)) {}

  /// The picture of a file; a null one when there is no such file or no picture in it.
  [[nodiscard]] const QPixmap& At(std::string_view path);
  /// Forgets all: files may have changed.
  void Clear() { pictures_.clear(); }

 private:
  ReadFile read_;
  std::unordered_map<std::string, QPixmap, FoldedHash, FoldedEqual> pictures_;
};

}  // namespace tarnwick::looks
