// Files and memory as streams of bytes with a position.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "objects/object_world.h"

namespace tarnwick::objects {

/// Bytes that a stream in memory holds at most.
inline constexpr std::int64_t kMostStreamBytes = std::int64_t{256} << 20U;

/// A QFILESTREAM or QMEMORYSTREAM object in use. `Check` must have returned true before anything
/// else is asked.
class Stream {
 public:
  Stream(ObjectWorld& world, ObjectId object);
  Stream(ObjectWorld& world, ObjectRecord& object);

  /// True when the object is a stream that can be used; else the world has the reason.
  bool Check();
  /// Up to `count` bytes from the position on; fewer at the end, "" for a count below 1.
  std::string Read(std::int64_t count);
  /// Up to the next LF, without it and a CR in front of it.
  std::string ReadLine();
  /// False, with the world's reason, when not all was written.
  bool Write(std::string_view bytes);
  [[nodiscard]] std::int64_t Position();
  /// Positions below 0 count as 0.
  void Seek(std::int64_t position);
  [[nodiscard]] std::int64_t Size();

 private:
  ObjectWorld& world_;
  ObjectRecord* object_;
  StreamState* state_;
};

}  // namespace tarnwick::objects
