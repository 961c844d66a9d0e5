// A command line taken apart as Windows programs take it apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// One way to read the head of a command line as a program.
struct ProgramChoice {
  std::string Program;
  std::string_view Rest;  ///< the text behind it, a view of the command line
};

/// The programs that a command line can mean; the first one that exists is the one to start. A
/// quoted path is the only choice; without quotes a path may contain blanks, so there is one choice
/// for each blank.
[[nodiscard]] std::vector<ProgramChoice> ProgramChoices(std::string_view command_line);

/// The arguments behind the program. Blanks and tabs separate them; quotes keep blanks together; a
/// quote behind an odd number of backslashes, or doubled within quotes, is a character.
[[nodiscard]] std::vector<std::string> SplitArguments(std::string_view rest);

}  // namespace tarnwick
