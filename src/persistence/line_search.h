// Reading a line whatever it is made of.
#pragma once

#include <string_view>

#include "persistence/record_values.h"

namespace tarnwick {

/// Takes the head of a line and the value of each tag, from behind its first "T<" to its first ">T"
/// anywhere in the line, without regard to case. One pass over the line serves all tags.
void SearchLine(std::string_view line, RecordValues& values);

}  // namespace tarnwick
