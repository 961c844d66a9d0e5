#include "looks/picture_cache.h"

#include <QByteArray>

namespace tarnwick::looks {

const QPixmap& PictureCache::At(std::string_view path) {
  if (const auto found = pictures_.find(path); found != pictures_.end()) return found->second;
  QPixmap picture;
  if (const auto bytes = read_(std::string(path))) {
    picture.loadFromData(reinterpret_cast<const uchar*>(bytes->data()),
                         static_cast<uint>(bytes->size()));
  }
  return pictures_.emplace(std::string(path), std::move(picture)).first->second;
}

}  // namespace tarnwick::looks
