// Which event code becomes a Sub of the generated program.
#pragma once

#include <string>
#include <unordered_set>

#include "model/project_records.h"

namespace tarnwick {

/// The entries of `EventTable` that the generator writes out. Valid until the table changes.
class EmittedCode {
 public:
  /// True for a text of the table that becomes a Sub. Compares addresses: a copy of it is no such
  /// text.
  [[nodiscard]] bool Holds(const std::string& code) const { return texts_.contains(code.data()); }

 private:
  friend EmittedCode FindEmittedCode(ProjectTables& tables);
  std::unordered_set<const char*> texts_;
};

/// Walks the project as the generator does and keeps what it writes bodies for.
[[nodiscard]] EmittedCode FindEmittedCode(ProjectTables& tables);

}  // namespace tarnwick
