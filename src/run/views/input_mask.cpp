#include "run/views/input_mask.h"

#include <string>
#include <vector>

#include "looks/text_bridge.h"

namespace tarnwick::run {
namespace {

struct LetterRow {
  char Mask;
  char Toolkit;
};
/// What can be typed at a place. Of the other letters that mean something to the toolkit each is
/// itself here.
constexpr LetterRow kLetters[] = {{'L', 'A'}, {'l', 'a'}, {'A', 'N'}, {'a', 'n'},
                                  {'C', 'X'}, {'c', 'x'}, {'0', '9'}, {'9', '0'},
                                  {'#', '#'}, {'>', '>'}, {'<', '<'}};
constexpr std::string_view kMeant = "AaNnXx90Dd#HhBb><!\\[]{}";

char ToolkitLetter(char letter) {
  for (const LetterRow& row : kLetters) {
    if (row.Mask == letter) return row.Toolkit;
  }
  return 0;
}

void AddLiteral(std::string& made, char letter) {
  if (kMeant.find(letter) != std::string_view::npos) made += '\\';
  made += letter;
}

}  // namespace

QString ToolkitMask(std::string_view mask) {
  std::string made;
  std::vector<std::string> rest;  // behind the pattern: what is kept, what stands for nothing
  for (std::size_t i = 0; i < mask.size(); ++i) {
    const char letter = mask[i];
    if (letter == ';') {
      rest.emplace_back();
    } else if (!rest.empty()) {
      rest.back() += letter;
    } else if (letter == '\\' && i + 1 < mask.size()) {
      AddLiteral(made, mask[++i]);
    } else if (mask.substr(i, 2) == "<>") {
      made += '!';
      ++i;
    } else if (const char meant = ToolkitLetter(letter)) {
      made += meant;
    } else if (letter == '_') {
      made += ' ';
    } else if (letter != '!') {
      AddLiteral(made, letter);
    }
  }
  if (made.empty()) return {};
  const bool given = rest.size() > 1 && !rest[1].empty();
  made += ';';
  made += given ? rest[1][0] : '_';
  return looks::ToQString(made);
}

}  // namespace tarnwick::run
