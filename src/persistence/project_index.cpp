#include "persistence/project_index.h"

#include "text/code_page.h"
#include "text/numbers.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kMainFormMark = "MF##";

/// A form's file as the index names it: bare when it lies in the project's own folder.
std::string_view FileReference(std::string_view file_name, std::string_view project_folder) {
  const bool beside = EqualsFolded(FolderOf(file_name), project_folder);
  return beside ? BareName(file_name) : file_name;
}

}  // namespace

ProjectIndex ReadProjectIndex(std::string_view text) {
  ProjectIndex index;
  for (std::string_view line : Split(text, kLineEnd)) {
    if (line.empty()) continue;
    if (line.starts_with(kMainFormMark)) {
      index.MainForm = line.substr(kMainFormMark.size());
      continue;
    }
    const std::size_t mark = line.find(kStoredLineBreak);
    if (mark != std::string_view::npos) line.remove_prefix(mark + 1);
    index.FormFiles.push_back(line);
  }
  return index;
}

std::string ProjectIndexText(const ProjectTables& tables, std::string_view project_folder) {
  std::string text;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    AppendNumber(text, std::int64_t{form});
    text += kStoredLineBreak;
    text += FileReference(tables.Form(form)->FileName, project_folder);
    text += kLineEnd;
  }
  text.append(kMainFormMark).append(tables.MainFormName).append(kLineEnd);
  return text;
}

std::string ShortProjectIndexText(const ProjectTables& tables) {
  std::string text;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    text.append(tables.Form(form)->FileName).append(kLineEnd);
  }
  return text;
}

}  // namespace tarnwick
