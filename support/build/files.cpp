#include "build/files.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace tarnwick::support {

std::optional<std::string> ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

bool WriteFile(const std::string& path, std::string_view bytes) {
  if (ReadFile(path) == bytes) return true;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (out) return true;
  std::fprintf(stderr, "%s: cannot be written\n", path.c_str());
  return false;
}

}  // namespace tarnwick::support
