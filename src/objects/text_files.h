// Whole text files for objects that load and save their text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "objects/object_world.h"

namespace tarnwick::objects {

/// The bytes of a file; nothing, and a note that names the object, when it cannot be read.
[[nodiscard]] std::optional<std::string> ReadTextFile(ObjectWorld& world,
                                                      const ObjectRecord& object,
                                                      const std::string& path);
/// False, with the world's reason, when the file cannot be written.
bool WriteTextFile(ObjectWorld& world, const ObjectRecord& object, const std::string& path,
                   std::string_view bytes);
/// The lines of a text without their ends (CR LF, LF or CR); an end of line at the end of the text
/// begins no further line.
[[nodiscard]] std::vector<std::string> LinesOf(std::string_view text);

}  // namespace tarnwick::objects
