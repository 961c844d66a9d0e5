// tarnwick-cli: the project's logic with no display.
#include <cstdio>
#include <cstdlib>
#include <memory_resource>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "platform/large_pages.h"

int main(int argc, char** argv) {
  using namespace tarnwick;
  LargePages pages;
  std::pmr::set_default_resource(&pages);
  const ParsedArguments parsed =
      ParseArguments(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
  if (const auto* const print = std::get_if<PrintAndLeave>(&parsed)) {
    std::fputs(print->Text.c_str(), stdout);
    return 0;
  }
  if (const auto* const wrong = std::get_if<WrongUsage>(&parsed)) {
    std::fputs(wrong->Text.c_str(), stderr);
    return 2;
  }
  CommandRun run(std::get<Arguments>(parsed), stdout, stderr);
  const int code = run.Run();
  // The system takes the memory of a large project back at once, where freeing it record by record
  // takes a while.
  std::fflush(nullptr);
  std::_Exit(code);
}
