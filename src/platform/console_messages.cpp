#include "platform/console_messages.h"

#include <string>

#include "text/code_page.h"

namespace tarnwick {

void ConsoleMessages::Show(std::string_view text, std::string_view title) {
  const std::string line = CodePageToUtf8(title) + ": " + CodePageToUtf8(text) + "\n";
  std::fwrite(line.data(), 1, line.size(), out_);
  std::fflush(out_);
}

bool ConsoleMessages::AskYesNo(std::string_view text, std::string_view title,
                               MessageIcon /*icon*/) {
  Show(text, title);
  return false;
}

}  // namespace tarnwick
