// Opening: the index and the forms that it names.
#pragma once

#include <string>
#include <string_view>

#include "persistence/form_reader.h"
#include "project/project_context.h"

namespace tarnwick::project {

/// Empties the project and reads the index at `path` with all its forms. `ProjectFile` must be
/// set before. Missing form files are named in a message and passed over; a project without a
/// form gets an empty one. False when the index itself could not be read.
bool LoadProject(ProjectContext& context, const std::string& path);

/// Appends the form in the file at `path` as a new form. A message names a form that is in the
/// project already.
FormReadResult ReadFormFile(ProjectContext& context, const std::string& path);

/// The same for a form's text that lies in no file of its own; `path` becomes its file.
FormReadResult ReadFormText(ProjectContext& context, std::string_view text,
                            const std::string& path);

/// Reads a form's text back into the number it has already: no test of the list and no new line,
/// and the file's name stays. Its records and design window are replaced.
FormReadResult ReadFormTextInto(ProjectContext& context, std::string_view text, int form);

}  // namespace tarnwick::project
