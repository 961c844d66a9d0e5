#include "looks/picture_cache.h"

#include <QByteArray>
#include <utility>

#include "looks/picture_file.h"

namespace tarnwick::looks {

const QPixmap& PictureCache::At(std::string_view path) {
  const auto [found, fresh] = pictures_.try_emplace(std::string(path));
  Entry& entry = found->second;
  if (!fresh && entry.Checked == check_) return entry.Picture;
  entry.Checked = check_;
  std::optional<std::string> bytes = read_(found->first);
  if (!fresh && bytes == entry.Bytes) return entry.Picture;
  entry.Picture = {};
  if (bytes && IsWhole(*bytes)) {
    entry.Picture.loadFromData(reinterpret_cast<const uchar*>(bytes->data()),
                               static_cast<uint>(bytes->size()));
  }
  entry.Bytes = std::move(bytes);
  return entry.Picture;
}

}  // namespace tarnwick::looks
