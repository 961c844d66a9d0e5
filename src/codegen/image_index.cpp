#include "codegen/image_index.h"

namespace tarnwick {

int ImageIndex::FindFirstImage(std::string_view path) {
  if (!first_) {
    first_.emplace();
    for (int j = 1; j <= records_.UBound(); ++j) {
      const std::string& held = RecordOrEmpty(records_, j).ImageFile;
      // A "(none)" in other letters counts as a path, and equals the "(None)" of another object.
      if (!held.empty()) first_->emplace(held, j);
    }
  }
  const auto found = first_->find(path);
  return found == first_->end() ? 0 : found->second;
}

int ImageIndex::FindEarlierImage(std::string_view path, int k) {
  const int first = FindFirstImage(path);
  return first < k ? first : 0;
}

}  // namespace tarnwick
