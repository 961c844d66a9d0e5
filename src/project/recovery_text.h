// A whole project as one text, as recovery keeps it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/project_records.h"

namespace tarnwick::project {

/// Code that was typed and not accepted, by its keys in `EventTable`.
using TypedCode = std::map<std::string, std::string>;

/// A form of a kept project.
struct KeptForm {
  std::string Name;
  std::string File;  ///< where it was last saved; "" for nowhere
  std::string Text;  ///< the form file as it would be saved
  TypedCode Code{};  ///< typed on it, by its keys behind that of the form: ".Button1.OnClick"
};

/// A kept project.
struct KeptProject {
  std::string When;         ///< "2026-03-01 14:05:09"
  std::string ProjectFile;  ///< the index; it may never have been written
  std::string MainForm;
  std::vector<KeptForm> Forms;
};

/// The project as it would be saved now: its paths, its main form and the texts of its live forms.
/// Two equal projects have equal texts.
[[nodiscard]] std::string KeptText(ProjectTables& tables);
/// The same text with the code that was typed on its forms, which are in the tables.
[[nodiscard]] std::string WithTypedCode(std::string kept_text, const ProjectTables& tables,
                                        const TypedCode& code);
/// The text with the time ahead of it, as it stands in a file.
[[nodiscard]] std::string KeptFileText(std::string_view when, std::string_view kept_text);
/// Reads a file's text back; nothing when it is none, or not whole.
[[nodiscard]] std::optional<KeptProject> ReadKeptFile(std::string_view text);

}  // namespace tarnwick::project
