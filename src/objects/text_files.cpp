#include "objects/text_files.h"

namespace tarnwick::objects {

std::optional<std::string> ReadTextFile(ObjectWorld& world, const ObjectRecord& object,
                                        const std::string& path) {
  basic::FileHost* const files = world.Files();
  const auto file = files == nullptr ? nullptr : files->Open(path, basic::FileMode::Read);
  if (file == nullptr) {
    world.Note(object.FullName() + ": the file " + path + " cannot be read");
    return std::nullopt;
  }
  constexpr std::size_t kPiece = 1 << 16;
  std::string text;
  for (std::string piece = file->Read(kPiece); !piece.empty(); piece = file->Read(kPiece)) {
    text += piece;
  }
  return text;
}

bool WriteTextFile(ObjectWorld& world, const ObjectRecord& object, const std::string& path,
                   std::string_view bytes) {
  basic::FileHost* const files = world.Files();
  const auto file = files == nullptr ? nullptr : files->Open(path, basic::FileMode::Create);
  if (file != nullptr && file->Write(bytes)) return true;
  return world.Fail(object.FullName() + ": the file " + path + " cannot be written");
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool both = text.substr(end, 2) == "\r\n";
    text.remove_prefix(end + (both ? 2 : 1));
  }
  return lines;
}

}  // namespace tarnwick::objects
