#include "platform/console_messages.h"

#include <iostream>

#include "text/code_page.h"

namespace tarnwick {

ConsoleMessages::ConsoleMessages() : out_(&std::cerr) {}

void ConsoleMessages::Show(std::string_view text, std::string_view title) {
  *out_ << CodePageToUtf8(title) << ": " << CodePageToUtf8(text) << '\n' << std::flush;
}

bool ConsoleMessages::AskYesNo(std::string_view text, std::string_view title,
                               MessageIcon /*icon*/) {
  Show(text, title);
  return false;
}

}  // namespace tarnwick
