#include "text/path_text.h"

#include <algorithm>

#include "text/code_page.h"

namespace tarnwick {
namespace {

/// The drive whose root is the root of the machine's files.
constexpr char kRootDrive = 'Z';

bool HasDrive(std::string_view path) noexcept {
  return path.size() >= 2 && path[1] == ':';
}

}  // namespace

std::string_view FolderOf(std::string_view path) noexcept {
  const std::size_t last = path.rfind('\\');
  return last == std::string_view::npos ? path.substr(0, 0) : path.substr(0, last + 1);
}

std::string_view BareName(std::string_view path) noexcept {
  return path.substr(FolderOf(path).size());
}

std::string PathFromNative(std::string_view native) {
  std::string path = Utf8ToCodePage(native);
  std::replace(path.begin(), path.end(), '/', '\\');
  if (!path.empty() && path.front() == '\\') path.insert(0, {kRootDrive, ':'});
  return path;
}

std::string PathToNative(std::string_view path) {
  if (HasDrive(path)) {
    if (UpperByte(path.front()) != kRootDrive) return {};
    path.remove_prefix(2);
    if (path.empty()) return "/";
  }
  std::string native = CodePageToUtf8(path);
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

}  // namespace tarnwick
