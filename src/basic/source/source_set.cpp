#include "basic/source/source_set.h"

#include <algorithm>
#include <utility>

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

/// The folder of a path with its last separator; "" for a bare name.
std::string_view FolderOf(std::string_view path) {
  const std::size_t last = path.find_last_of("\\/:");
  return last == std::string_view::npos ? std::string_view() : path.substr(0, last + 1);
}

}  // namespace

std::string_view LineWalk::Next() noexcept {
  if (!feed_known_) {
    feed_ = std::min(rest_.find('\n'), rest_.size());
    feed_known_ = true;
  }
  const std::string_view line = rest_.substr(0, std::min(rest_.substr(0, feed_).find('\r'), feed_));
  // A carriage return right in front of the line feed belongs to it.
  const bool at_feed = line.size() + 1 >= feed_;
  const std::size_t taken = std::min(at_feed ? feed_ + 1 : line.size() + 1, rest_.size());
  rest_.remove_prefix(taken);
  feed_known_ = !at_feed;
  feed_ -= std::min(taken, feed_);
  ++count_;
  return line;
}

std::optional<std::uint16_t> SourceSet::Add(std::string path, std::string bytes) {
  if (files_.size() >= kMaxSourceFiles || bytes.size() > kMaxSourceBytes - bytes_) {
    return std::nullopt;
  }
  bytes_ += bytes.size();
  SourceFile& file = files_.emplace_back();
  file.Path = std::move(path);
  file.Bytes = std::move(bytes);
  return static_cast<std::uint16_t>(files_.size() - 1);
}

std::optional<std::uint16_t> SourceSet::Include(SourceReader& reader, std::string_view name,
                                                std::string_view program_folder,
                                                std::uint16_t from) {
  if (name.empty() || files_.size() >= kMaxSourceFiles) return std::nullopt;
  const std::string_view bare = name.substr(FolderOf(name).size());
  const std::string_view beside = FolderOf(files_[from].Path);
  std::vector<std::string> candidates = {std::string(name)};
  const auto add = [&candidates](std::string_view folder, std::string_view file) {
    if (!folder.empty()) candidates.push_back(std::string(folder).append(file));
  };
  add(program_folder.empty() ? "" : std::string(program_folder) + '\\', bare);
  add(beside, name);
  add(beside, bare);
  if (EqualsFolded(bare, kLanguageInclude)) {
    add(program_folder.empty() ? "" : std::string(program_folder) + '\\', kOwnInclude);
    add(beside, kOwnInclude);
  }
  for (std::string& path : candidates) {
    std::optional<std::string> bytes = reader.ReadSource(path);
    if (bytes) return Add(std::move(path), *std::move(bytes));
  }
  return std::nullopt;
}

std::string_view SourceSet::LineAt(SourcePlace at) const noexcept {
  if (at.Line == 0 || at.File >= files_.size()) return {};
  LineWalk lines(files_[at.File].Bytes);
  while (!lines.AtEnd()) {
    const std::string_view line = lines.Next();
    if (lines.Count() == at.Line) return line;
  }
  return {};
}

}  // namespace tarnwick::basic
