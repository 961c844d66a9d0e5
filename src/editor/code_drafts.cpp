#include "editor/code_drafts.h"

#include <utility>

#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick::editor {

namespace {

constexpr std::string_view kFormWord = "Form";
constexpr std::string_view kDeclarations = ".(Public Declarations)";

}  // namespace

std::string DeclarationsKey(int form) {
  return std::string(kFormWord).append(NumberText(std::int64_t{form})).append(kDeclarations);
}

const std::string* StoredCode(const ProjectTables& project, std::string_view key) {
  if (!key.ends_with(kDeclarations)) return project.EventTable.Find(key);
  if (!StartsWithFolded(key, kFormWord)) return nullptr;
  key.remove_prefix(kFormWord.size());
  const int form = ToInt16(Val(key.substr(0, key.find('.')))).value_or(0);
  return project.IsLive(form) ? &project.Form(form)->DeclarePbl : nullptr;
}

void CodeDrafts::Keep(const std::string& key, std::string text) {
  texts_.insert_or_assign(key, std::move(text));
}

void CodeDrafts::Offer(const Texts& texts) {
  for (const auto& [key, text] : texts) {
    const std::string* const stored = StoredCode(project_, key);
    if (stored == nullptr ? !text.empty() : *stored != text) Keep(key, text);
  }
}

const std::string* CodeDrafts::Find(const std::string& key) const {
  const auto found = texts_.find(key);
  return found == texts_.end() ? nullptr : &found->second;
}

}  // namespace tarnwick::editor
