#include "basic/source/source_set.h"

#include <algorithm>
#include <utility>

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

std::vector<std::string_view> LinesOf(std::string_view bytes) {
  std::vector<std::string_view> lines;
  lines.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1);
  while (!bytes.empty()) {
    const std::size_t feed = bytes.find('\n');
    std::string_view rest = bytes.substr(0, feed);
    bytes.remove_prefix(feed == std::string_view::npos ? bytes.size() : feed + 1);
    // Carriage returns in front of the line feed end lines, too; the last one belongs to it.
    std::size_t end = rest.find('\r');
    for (; end != std::string_view::npos && end + 1 < rest.size(); end = rest.find('\r')) {
      lines.push_back(rest.substr(0, end));
      rest.remove_prefix(end + 1);
    }
    lines.push_back(rest.substr(0, end));
  }
  return lines;
}

/// The folder of a path with its last separator; "" for a bare name.
std::string_view FolderOf(std::string_view path) {
  const std::size_t last = path.find_last_of("\\/:");
  return last == std::string_view::npos ? std::string_view() : path.substr(0, last + 1);
}

}  // namespace

std::optional<std::uint16_t> SourceSet::Add(std::string path, std::string bytes) {
  if (files_.size() >= kMaxSourceFiles || bytes.size() > kMaxSourceBytes - bytes_) {
    return std::nullopt;
  }
  bytes_ += bytes.size();
  SourceFile& file = files_.emplace_back();
  file.Path = std::move(path);
  file.Bytes = std::move(bytes);
  file.Lines = LinesOf(file.Bytes);
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
  const std::vector<std::string_view>& lines = files_[at.File].Lines;
  return at.Line <= lines.size() ? lines[at.Line - 1] : std::string_view();
}

}  // namespace tarnwick::basic
