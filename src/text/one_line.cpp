#include "text/one_line.h"

#include "text/strings.h"

namespace tarnwick {

std::string OneLineText(std::string_view text) {
  constexpr unsigned char kBlank = ' ';
  constexpr unsigned char kDelete = 0x7F;
  std::string line = ReplaceAll(text, kLineEnd, " ");
  for (char& c : line) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < kBlank || byte == kDelete) c = ' ';
  }
  return line;
}

}  // namespace tarnwick
