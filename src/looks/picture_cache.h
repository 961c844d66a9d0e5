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
/// among them). References stay good until Clear; what they show can change after Recheck.
class PictureCache {
 public:
  /// Returns the bytes of a file; nothing when it cannot be read.
  using ReadFile = std::function<std::optional<std::string>(const std::string&)>;

  explicit PictureCache(ReadFile read) : read_(std::move(read)) {}

  /// The picture of a file; a null one when there is no such file, no picture in it, or not all
  /// of one.
  [[nodiscard]] const QPixmap& At(std::string_view path);
  /// Files may have changed: each is looked at again when it is asked for next.
  void Recheck() noexcept { ++check_; }
  /// Forgets all.
  void Clear() { pictures_.clear(); }

 private:
  struct Entry {
    QPixmap Picture;
    std::optional<std::string> Bytes;  ///< of the file that the picture was read from
    unsigned Checked = 0;
  };

  ReadFile read_;
  std::unordered_map<std::string, Entry, FoldedHash, FoldedEqual> pictures_;
  unsigned check_ = 0;
};

}  // namespace tarnwick::looks
