#include "basic/checked_text.h"

namespace tarnwick::basic::test {

CheckedText::CheckedText(std::string text, bool strict) {
  MemorySources sources;
  sources.Files["C:\\Work\\main.bas"] = std::move(text);
  Result = CheckProgram("C:\\Work\\main.bas", sources, Classes(), {{"C:\\Tarnwick"}, strict});
}

std::string CheckedText::Messages() const {
  return MessagesOf(Result);
}

std::string CheckedText::MessagesOf(const FrontEndResult& result) {
  std::string text;
  for (const Message& message : result.Found.All()) {
    text += std::to_string(message.At.Line) + ':' + std::to_string(message.At.Column) +
            (message.Level == Severity::Error ? ": error: " : ": note: ") + message.Text;
    if (!message.Remedy.empty()) text += " [" + message.Remedy + ']';
    text += '\n';
  }
  return text;
}

}  // namespace tarnwick::basic::test
