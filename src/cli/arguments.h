// The command line of tarnwick-cli.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "cli/run_program.h"

namespace tarnwick {

enum class Command { Generate, Resave, Convert, Check, Run };

struct Arguments {
  Command What = Command::Check;
  std::string Input;                         ///< path of this machine
  std::string OutputFolder;                  ///< of resave
  std::optional<std::string> OutputFile;     ///< of generate; standard output without it
  std::optional<std::string> ProgramFolder;  ///< Windows-style text, Windows-1252
  RunArguments Run;                          ///< of run
};

/// Text to print on standard output before leaving with success: --help and --version.
struct PrintAndLeave {
  std::string Text;
};

/// What is wrong with the command line, and how to call it.
struct WrongUsage {
  std::string Text;
};

using ParsedArguments = std::variant<Arguments, PrintAndLeave, WrongUsage>;

/// Reads the words behind the program's name, UTF-8.
[[nodiscard]] ParsedArguments ParseArguments(const std::vector<std::string>& words);

}  // namespace tarnwick
