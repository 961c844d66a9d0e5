// Code that was typed and not accepted.
#pragma once

#include <map>
#include <string>
#include <utility>

namespace tarnwick::editor {

/// What a code window lost when it was closed without its Ok, by the key of the code. The next
/// opening on the same key offers it; an accepted text drops it. It lives as long as the project.
class CodeDrafts {
 public:
  /// Texts by the key of their code.
  using Texts = std::map<std::string, std::string>;

  void Keep(std::string key, std::string text) {
    texts_.insert_or_assign(std::move(key), std::move(text));
  }
  /// The text of a key; null when nothing was lost there.
  [[nodiscard]] const std::string* Find(const std::string& key) const {
    const auto found = texts_.find(key);
    return found == texts_.end() ? nullptr : &found->second;
  }
  void Drop(const std::string& key) { texts_.erase(key); }
  void Clear() { texts_.clear(); }
  /// All of them, for what keeps unsaved work.
  [[nodiscard]] const Texts& All() const noexcept { return texts_; }

 private:
  Texts texts_;
};

}  // namespace tarnwick::editor
