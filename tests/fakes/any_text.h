// Any text in any field of a project, and what saving and reading may change for it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/fake_project.h"
#include "model/project_records.h"
#include "text/strings.h"

namespace tarnwick::test {

/// A text of a form that a user can type.
struct TextField {
  std::string* Text;
  std::string Line;  ///< start of the record line that carries it
};

/// All texts of form 1: those of the form, of its objects and of their records. Code is not among
/// them: the key of a code is the object's, and its text may hold anything.
std::vector<TextField> TextFieldsOf(FakeProject& project);

/// The lines of a form file that are not empty.
std::vector<std::string> RecordLines(std::string_view text);

/// The first record of `before` that is missing from `after`, apart from at most one that the text
/// was set in; "" when every other record is still there, to the byte and in its order. A record
/// that was torn by a line break may have become several lines.
std::string LostRecord(const std::string& before, const std::string& after,
                       std::string_view changed);

}  // namespace tarnwick::test
