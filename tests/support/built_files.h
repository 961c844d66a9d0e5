// The support files as they are delivered, read by the program's own reader, and their sources.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "build/files.h"
#include "build/support_sources.h"
#include "fakes/build_paths.h"
#include "persistence/support_files.h"
#include "text/strings.h"

namespace tarnwick::support {

/// The bytes of a delivered file; a missing one fails the test.
std::string Delivered(const std::string& name);

using language::SupportTables;

const SupportTables& DeliveredTables();

const SupportSources& Sources();

/// The rows of a list; one that is not there has none.
inline std::vector<std::string> RowsOf(const std::vector<std::string>* list) {
  return list == nullptr ? std::vector<std::string>{} : *list;
}
/// The names of the members of a list.
std::vector<std::string> RowsOf(const std::vector<language::KindMember>* list);

}  // namespace tarnwick::support
