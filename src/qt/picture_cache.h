// Pictures of design forms, each read from its file once.
#pragma once

#include <QPixmap>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/ports.h"
#include "text/code_page.h"

namespace tarnwick {

/// Keeps the pictures of the open project by path (any format the toolkit reads, .bmp and .ico
/// among them). References stay good until Clear.
class PictureCache {
 public:
  explicit PictureCache(FilePort& files) : files_(files) {}

  /// The picture of a file; a null one when there is no such file or no picture in it.
  [[nodiscard]] const QPixmap& At(std::string_view path);
  /// Forgets all: files may have changed.
  void Clear() { pictures_.clear(); }

 private:
  FilePort& files_;
  std::unordered_map<std::string, QPixmap, FoldedHash, FoldedEqual> pictures_;
};

}  // namespace tarnwick
