#include "project/convert_project.h"

#include <string_view>

#include "persistence/old_project.h"
#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick::project {

std::optional<std::string> ConvertOldProject(FilePort& files, const std::string& path) {
  const std::optional<std::string> old_text = files.Read(path);
  if (!old_text) return std::nullopt;
  const std::string stem = path.substr(0, path.find('.'));
  const std::string form_path = stem + ".ftn";
  const std::string project_path = stem + ".tnp";
  const std::string_view bare = BareName(form_path);
  std::string index = "1";
  index.append(1, kStoredLineBreak).append(bare).append(kLineEnd);
  index.append("MF##Form (").append(bare).append(")").append(kLineEnd);
  if (!files.Replace(project_path, index)) return std::nullopt;
  if (!files.Replace(form_path, ConvertOldText(*old_text))) return std::nullopt;
  return project_path;
}

}  // namespace tarnwick::project
