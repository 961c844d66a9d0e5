#include "basic/check/similar_name.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

std::size_t EditDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const bool same = LowerByte(a[i]) == LowerByte(b[j]);
      const std::size_t change = diagonal + (same ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, change});
    }
  }
  return row.back();
}

}  // namespace

void SimilarName::Offer(std::string_view name) {
  constexpr std::size_t kLongest = 64;
  if (name.empty() || name.size() > kLongest || wanted_.size() > kLongest) return;
  const std::size_t longer = std::max(name.size(), wanted_.size());
  if (longer - std::min(name.size(), wanted_.size()) > kMaxEditDistance) return;
  const std::size_t distance = EditDistance(wanted_, name);
  if (distance >= distance_ || distance * 3 > longer) return;
  distance_ = distance;
  best_ = name;
}

std::string SimilarName::Question() const {
  return best_.empty() ? std::string() : "Did you mean " + best_ + "?";
}

}  // namespace tarnwick::basic
