#include "project/recovery.h"

#include <algorithm>
#include <utility>

#include "text/code_page.h"

namespace tarnwick::project {

namespace {

constexpr std::string_view kUnsaved = "unsaved.tnr";
constexpr std::string_view kLeftHead = "left-";
constexpr std::string_view kProjectName = "project.txt";

}  // namespace

Recovery::Recovery(ProjectTables& tables, FilePort& files, InstanceFolderPort& folders,
                   std::string parent, std::function<std::string()> now,
                   std::function<TypedCode()> typed)
    : tables_(tables),
      files_(files),
      folders_(folders),
      parent_(std::move(parent)),
      now_(std::move(now)),
      typed_(std::move(typed)) {}

std::string Recovery::PathOf(std::string_view name) const {
  return std::string(folder_).append("\\").append(name);
}

void Recovery::Begin() {
  folder_ = folders_.Claim(parent_);
}

void Recovery::TellProject() {
  if (!folder_.empty()) files_.Replace(PathOf(kProjectName), tables_.ProjectFile);
}

void Recovery::Settle() {
  settled_ = KeptText(tables_);
  TellProject();
  if (folder_.empty() || written_.empty()) return;
  files_.Remove(PathOf(kUnsaved));
  written_.clear();
}

bool Recovery::Keep() {
  std::string text = KeptText(tables_);
  const bool changed = text != settled_;
  const TypedCode code = typed_();
  if (!changed && code.empty()) {
    // Taken back by hand: what was kept is no more than what is saved.
    if (!written_.empty()) Settle();
    return false;
  }
  if (!code.empty()) text = WithTypedCode(std::move(text), tables_, code);
  if (folder_.empty() || text == written_) return changed;
  if (files_.Replace(PathOf(kUnsaved), KeptFileText(now_(), text))) written_ = std::move(text);
  return changed;
}

bool Recovery::LeaveBehind() {
  if (folder_.empty()) return false;
  bool is_kept = false;
  std::string text = KeptText(tables_);
  const TypedCode code = typed_();
  if (text != settled_ || !code.empty()) {
    text = WithTypedCode(std::move(text), tables_, code);
    std::string name(kLeftHead);
    name.append(std::to_string(++left_)).append(".tnr");
    is_kept = files_.Replace(PathOf(name), KeptFileText(now_(), text));
    Prune();
  }
  files_.Remove(PathOf(kUnsaved));
  written_.clear();
  return is_kept;
}

void Recovery::End() {
  if (folder_.empty()) return;
  for (const InstanceFolder& folder : folders_.List(parent_)) {
    if (folder.Running && folder.Path != folder_) continue;
    const bool keeps = std::any_of(folder.Files.begin(), folder.Files.end(),
                                   [](const std::string& name) { return name != kProjectName; });
    if (!keeps) folders_.Remove(folder.Path);
  }
  folder_.clear();
}

std::vector<Recovery::Offer> Recovery::Offers() {
  std::vector<Offer> offers;
  for (const InstanceFolder& folder : folders_.List(parent_)) {
    for (const std::string& name : folder.Files) {
      const bool left = name.starts_with(kLeftHead);
      // What a running instance has not saved is its own.
      if (!left && (name != kUnsaved || folder.Running)) continue;
      std::string path = folder.Path + "\\" + name;
      const std::optional<std::string> text = files_.Read(path);
      std::optional<KeptProject> kept = text ? ReadKeptFile(*text) : std::nullopt;
      if (kept) offers.push_back({std::move(path), *std::move(kept), !left});
    }
  }
  std::stable_sort(offers.begin(), offers.end(),
                   [](const Offer& a, const Offer& b) { return a.Project.When > b.Project.When; });
  return offers;
}

void Recovery::Forget(const Offer& offer) {
  files_.Remove(offer.Path);
}

void Recovery::Prune() {
  const std::vector<Offer> offers = Offers();
  for (std::size_t i = kMostKept; i < offers.size(); ++i) Forget(offers[i]);
}

bool Recovery::IsOpenElsewhere(const std::string& project_file) {
  for (const InstanceFolder& folder : folders_.List(parent_)) {
    if (!folder.Running || folder.Path == folder_) continue;
    const std::optional<std::string> other =
        files_.Read(std::string(folder.Path).append("\\").append(kProjectName));
    if (other && EqualsFolded(*other, project_file)) return true;
  }
  return false;
}

}  // namespace tarnwick::project
