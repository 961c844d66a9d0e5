// Programs read, parsed and checked in memory, for tests.
#pragma once

#include <string>
#include <utility>

#include "basic/check/front_end.h"
#include "basic/table_catalog.h"
#include "fakes/source_text.h"

namespace tarnwick::basic::test {

/// The check of a text against the classes of the tables.
struct CheckedText {
  explicit CheckedText(std::string text, bool strict = false);
  /// Every message as "line:column: error: text", its remedy in brackets, one a line.
  [[nodiscard]] std::string Messages() const;
  [[nodiscard]] static std::string MessagesOf(const FrontEndResult& result);
  FrontEndResult Result;
};

}  // namespace tarnwick::basic::test
