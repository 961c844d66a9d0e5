#include "basic/source/source_set.h"

#include <utility>

namespace tarnwick::basic {
namespace {

std::vector<std::string_view> LinesOf(std::string_view bytes) {
  std::vector<std::string_view> lines;
  std::size_t begin = 0;
  while (begin < bytes.size()) {
    const std::size_t end = bytes.find_first_of("\r\n", begin);
    if (end == std::string_view::npos) {
      lines.push_back(bytes.substr(begin));
      break;
    }
    lines.push_back(bytes.substr(begin, end - begin));
    const bool two = bytes[end] == '\r' && end + 1 < bytes.size() && bytes[end + 1] == '\n';
    begin = end + (two ? 2 : 1);
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
