// The dialogs that fill a row of the grid.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/project_records.h"
#include "platform/ports.h"

namespace tarnwick {

/// Asks the user by a dialog; each method gives nothing when it was cancelled.
class ValuePickers {
 public:
  ValuePickers(const ProjectTables& tables, Ports& ports) : tables_(tables), ports_(ports) {}

  /// A file of the sort that the mark of a row stands for; the folder is remembered for the next
  /// time. Nothing for a mark without a file dialog.
  [[nodiscard]] std::optional<std::string> File(int mark, Kind kind);
  /// A folder of at most 260 characters.
  [[nodiscard]] std::optional<std::string> Folder(const std::string& start);
  [[nodiscard]] std::optional<std::int32_t> Color(std::int32_t start);
  [[nodiscard]] std::optional<FontChoice> Font(const FontChoice& start);

 private:
  const ProjectTables& tables_;
  Ports& ports_;
};

}  // namespace tarnwick
