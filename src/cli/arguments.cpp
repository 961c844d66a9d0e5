#include "cli/arguments.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "text/code_page.h"

namespace tarnwick {

namespace {

struct CommandInfo {
  Command What;
  std::string_view Word;
  std::size_t Operands;
  std::string_view Usage;
  std::string_view Purpose;
};

constexpr std::array<CommandInfo, 5> kCommands{{
    {Command::Generate, "generate", 1, "generate PROJECT.tnp [-o FILE]",
     "write the RapidQ source of a project to FILE or to standard output"},
    {Command::Resave, "resave", 2, "resave PROJECT.tnp OUTDIR",
     "read a project and save it into another folder"},
    {Command::Convert, "convert", 1, "convert OLD.ptn",
     "turn a project of the former version into a .tnp and a .ftn beside it"},
    {Command::Check, "check", 1, "check PROJECT.tnp",
     "name what is wrong in a project and what to do, a line each; 1 when there is anything"},
    {Command::Run, "run", 0, "run [OPTIONS] PROGRAM [ARGUMENTS]",
     "run a RapidQ program without showing its windows"},
}};

constexpr std::string_view kProgram = "tarnwick-cli";

std::string Help() {
  std::string text = "Usage:\n";
  for (const CommandInfo& info : kCommands) {
    text.append("  ").append(kProgram).append(" ").append(info.Usage).append("\n");
    text.append("      ").append(info.Purpose).append("\n");
  }
  text +=
      "\nOptions:\n"
      "  -o, --output FILE       where `generate` puts the source\n"
      "  --program-folder TEXT   the program folder, such as C:\\Tarnwick; the real one without "
      "it\n"
      "  --help                  this text\n"
      "  --version               the version\n";
  text += RunOptionsHelp();
  return text;
}

WrongUsage Wrong(std::string_view what, const CommandInfo* command) {
  std::string text(kProgram);
  text.append(": ").append(what).append("; usage: ").append(kProgram).append(" ");
  text += command == nullptr ? std::string_view("generate|resave|convert|check|run FILE (--help)")
                             : command->Usage;
  return {text + "\n"};
}

/// Takes the value of an option written "--name VALUE" or "--name=VALUE".
class OptionValue {
 public:
  OptionValue(const std::vector<std::string>& words, std::size_t& at) : words_(words), at_(at) {}

  /// True when the present word is the option; its value, if it has one, is then in Value.
  bool Is(std::string_view name) {
    const std::string_view word = words_[at_];
    if (word == name) {
      if (at_ + 1 < words_.size()) Value = words_[++at_];
      return true;
    }
    if (name.starts_with("--") && word.starts_with(name) && word.substr(name.size(), 1) == "=") {
      Value = word.substr(name.size() + 1);
      return true;
    }
    return false;
  }

  std::optional<std::string> Value;

 private:
  const std::vector<std::string>& words_;
  std::size_t& at_;
};

}  // namespace

ParsedArguments ParseArguments(const std::vector<std::string>& words) {
  if (words.empty()) return Wrong("a command is missing", nullptr);
  if (words[0] == "--help" || words[0] == "-h") return PrintAndLeave{Help()};
  if (words[0] == "--version") return PrintAndLeave{"tarnwick-cli " TARNWICK_VERSION "\n"};
  const auto* const command =
      std::find_if(kCommands.begin(), kCommands.end(),
                   [&](const CommandInfo& info) { return info.Word == words[0]; });
  if (command == kCommands.end()) return Wrong("unknown command \"" + words[0] + "\"", nullptr);

  Arguments arguments;
  arguments.What = command->What;
  if (command->What == Command::Run) {
    // What stands behind the program is the program's own, whatever it looks like.
    std::string wrong;
    auto run = ParseRunArguments({words.begin() + 1, words.end()}, wrong);
    if (!run && words.size() > 1 && (words[1] == "--help" || words[1] == "-h")) {
      return PrintAndLeave{Help()};
    }
    if (!run) return Wrong(wrong, command);
    arguments.Run = *std::move(run);
    return arguments;
  }
  std::vector<std::string> operands;
  bool options_end = false;
  for (std::size_t at = 1; at < words.size(); ++at) {
    const std::string& word = words[at];
    OptionValue option(words, at);
    if (options_end || word.size() < 2 || word[0] != '-') {
      operands.push_back(word);
    } else if (word == "--") {
      options_end = true;
    } else if (word == "--help" || word == "-h") {
      return PrintAndLeave{Help()};
    } else if (command->What == Command::Generate && (option.Is("-o") || option.Is("--output"))) {
      if (!option.Value || option.Value->empty()) return Wrong("-o wants a file", command);
      arguments.OutputFile = option.Value;
    } else if (option.Is("--program-folder")) {
      if (!option.Value) return Wrong("--program-folder wants a text", command);
      arguments.ProgramFolder = Utf8ToCodePage(*option.Value);
    } else {
      return Wrong("unknown option \"" + word + "\"", command);
    }
  }
  if (operands.size() != command->Operands) {
    return Wrong(
        operands.size() < command->Operands ? "an argument is missing" : "too many arguments",
        command);
  }
  arguments.Input = operands[0];
  if (operands.size() > 1) arguments.OutputFolder = operands[1];
  return arguments;
}

}  // namespace tarnwick
