#include "persistence/tag_scanner.h"

#include <cstddef>

#include "persistence/line_search.h"
#include "persistence/stored_text.h"
#include "persistence/written_record.h"
#include "text/strings.h"

namespace tarnwick {

std::string_view TagScanner::Scan(std::string_view text) {
  if (text.starts_with(kLineEnd)) return {};
  const std::optional<std::size_t> written = TakeWrittenRecord(text, values_);
  const std::string_view line = text.substr(0, written ? *written : text.find(kLineEnd));
  if (!written && !line.empty()) SearchLine(line, values_);
  ascii_ = TopBits(values_.Seen) == 0;
  return line;
}

std::string_view TagScanner::Restored(std::string_view stored, Restore how) {
  switch (how) {
    case Restore::Plain:
      return stored;
    case Restore::Lines:
      return RestoredLines(stored, restored_);
    case Restore::Commas:
      return RestoredCommas(stored, restored_);
    case Restore::Items:
      return RestoredListCommas(stored, restored_);
    case Restore::Code:
      return Trim(RestoredLines(stored, restored_));
  }
  return stored;
}

}  // namespace tarnwick
