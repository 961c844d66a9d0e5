// A command line taken apart as Windows programs take it apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// One way to read the head of a command line as a program.
struct ProgramChoice {
  std::string Program;
  std::string_view Rest;  ///< what stands behind it; lives as long as the command line
};

/// The programs a command line can mean, the first that is there being the one meant: a quoted
/// path is one; without quotes a path may itself hold blanks, so it ends at each blank in turn.
[[nodiscard]] std::vector<ProgramChoice> ProgramChoices(std::string_view command_line);

/// The arguments behind the program. Blanks and tabs part them; quotes keep blanks together; a
/// quote behind an odd number of backslashes, or doubled within quotes, is a character.
[[nodiscard]] std::vector<std::string> SplitArguments(std::string_view rest);

}  // namespace tarnwick
