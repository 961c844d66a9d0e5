#include "platform/command_line.h"

namespace tarnwick {
namespace {

constexpr std::string_view kGap = " \t";

}  // namespace

std::vector<ProgramChoice> ProgramChoices(std::string_view command_line) {
  std::vector<ProgramChoice> choices;
  const std::size_t start = command_line.find_first_not_of(kGap);
  if (start == std::string_view::npos) return choices;
  const std::string_view text = command_line.substr(start);
  if (text.front() == '"') {
    const std::string_view quoted = text.substr(1);
    const std::size_t close = quoted.find('"');
    const std::string_view rest =
        close == std::string_view::npos ? std::string_view() : quoted.substr(close + 1);
    choices.push_back({std::string(quoted.substr(0, close)), rest});
    return choices;
  }
  for (std::size_t end = text.find_first_of(kGap);; end = text.find_first_of(kGap, end + 1)) {
    const bool last = end == std::string_view::npos;
    const std::size_t size = last ? text.size() : end;
    // Several blanks in a row separate as one does.
    if (kGap.find(text[size - 1]) == std::string_view::npos) {
      choices.push_back({std::string(text.substr(0, size)), text.substr(size)});
    }
    if (last) return choices;
  }
}

std::vector<std::string> SplitArguments(std::string_view rest) {
  std::vector<std::string> arguments;
  std::string current;
  bool open = false;    // An argument has begun, if only with a quote.
  bool quoted = false;  // Blanks belong to it.
  std::size_t at = 0;
  while (at < rest.size()) {
    const char c = rest[at];
    if (!quoted && kGap.find(c) != std::string_view::npos) {
      if (open) arguments.push_back(std::move(current));
      current.clear();
      open = false;
      ++at;
      continue;
    }
    open = true;
    std::size_t backslashes = 0;
    while (at < rest.size() && rest[at] == '\\') ++backslashes, ++at;
    const bool before_quote = at < rest.size() && rest[at] == '"';
    // Backslashes mean something only in front of a quote: two stand for one there.
    current.append(before_quote ? backslashes / 2 : backslashes, '\\');
    if (before_quote) {
      const bool doubled = quoted && rest.substr(at, 2) == "\"\"";
      if (backslashes % 2 != 0) {
        current += '"';
      } else if (doubled) {
        current += '"';
        ++at;
      } else {
        quoted = !quoted;
      }
      ++at;
    } else if (backslashes == 0) {
      current += c;
      ++at;
    }
  }
  if (open) arguments.push_back(std::move(current));
  return arguments;
}

}  // namespace tarnwick
