// Programs read, parsed and checked in memory, for tests.
#pragma once

#include <string>
#include <utility>

#include "basic/check/front_end.h"
#include "basic/source_text.h"
#include "basic/table_catalog.h"

namespace tarnwick::basic::test {

/// The check of a text against the classes of the tables.
struct CheckedText {
  explicit CheckedText(std::string text, bool strict = false) {
    MemorySources sources;
    sources.Files["C:\\Work\\main.bas"] = std::move(text);
    Result = CheckProgram("C:\\Work\\main.bas", sources, Classes(), {{"C:\\Tarnwick"}, strict});
  }
  /// Every message as "line:column: error: text", its remedy in brackets, one a line.
  [[nodiscard]] std::string Messages() const { return MessagesOf(Result); }
  [[nodiscard]] static std::string MessagesOf(const FrontEndResult& result) {
    std::string text;
    for (const Message& message : result.Found.All()) {
      text += std::to_string(message.At.Line) + ':' + std::to_string(message.At.Column) +
              (message.Level == Severity::Error ? ": error: " : ": note: ") + message.Text;
      if (!message.Remedy.empty()) text += " [" + message.Remedy + ']';
      text += '\n';
    }
    return text;
  }
  FrontEndResult Result;
};

}  // namespace tarnwick::basic::test
