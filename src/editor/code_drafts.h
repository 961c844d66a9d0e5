// Code that was typed and not accepted.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "model/project_records.h"

namespace tarnwick::editor {

/// The key of a form's Public Declarations among the keys of codes. No event has such a key.
[[nodiscard]] std::string DeclarationsKey(int form);
/// What is stored under the key of a code or of declarations; null for a key without an entry and
/// for a form that is not there.
[[nodiscard]] const std::string* StoredCode(const ProjectTables& project, std::string_view key);

/// What the code windows lost when they were closed without their Ok, by the key of the code. The
/// next opening on the same key offers it; an accepted text drops it. It lives as long as the
/// project.
class CodeDrafts {
 public:
  /// Texts by the key of their code.
  using Texts = std::map<std::string, std::string>;

  explicit CodeDrafts(const ProjectTables& project) : project_(project) {}

  void Keep(const std::string& key, std::string text);
  /// Keeps texts of an earlier run. One that is the same as what is stored is not kept.
  void Offer(const Texts& texts);
  /// The text of a key; null when nothing was lost there.
  [[nodiscard]] const std::string* Find(const std::string& key) const;
  void Drop(const std::string& key) { texts_.erase(key); }
  void Clear() { texts_.clear(); }
  /// All of them, for what keeps unsaved work.
  [[nodiscard]] const Texts& All() const noexcept { return texts_; }

 private:
  const ProjectTables& project_;
  Texts texts_;
};

}  // namespace tarnwick::editor
