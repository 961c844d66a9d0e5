// Settling a form: after a deletion the numbers of a kind run from 1 without a gap.
#pragma once

#include <string_view>

#include "model/project_records.h"

namespace tarnwick {

/// Closes the gap that a deleted object left: the later objects of its kind move down by one, each
/// with its record, its event entries and its button on the events bar; their names stay. So every
/// object keeps its own values and code when the form is saved, read again or generated, where
/// objects are numbered by their order alone. Returns false, and changes nothing, when no object
/// stood behind the deleted one, whose record and entries then stay for the next of that number.
bool SettleForm(ProjectTables& tables, DesignForm& form, Kind kind, int index);

/// The number behind a word at the end of a name, "Button3"; 0 for a name of anything else.
[[nodiscard]] int NumberBehind(std::string_view name, std::string_view word);

}  // namespace tarnwick
