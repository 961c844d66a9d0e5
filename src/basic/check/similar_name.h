// "Did you mean": the nearest of many names.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// Edits (a byte put in, taken out or changed) at most between a name and the one proposed.
inline constexpr std::size_t kMaxEditDistance = 2;

/// Keeps the nearest of the names offered to it. Case does not count.
class SimilarName {
 public:
  explicit SimilarName(std::string_view wanted) : wanted_(wanted) {}
  /// Takes the name when it is nearer than all before; short names must be nearer than long ones.
  void Offer(std::string_view name);
  /// "Did you mean X?", or "" when no name is near enough.
  [[nodiscard]] std::string Question() const;

 private:
  std::string_view wanted_;
  std::string best_;
  std::size_t distance_ = kMaxEditDistance + 1;
};

}  // namespace tarnwick::basic
