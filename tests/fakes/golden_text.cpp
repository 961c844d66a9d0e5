#include "fakes/golden_text.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "fakes/temporary_folder.h"

namespace tarnwick::test {

namespace {

/// The text with a line end behind each line, and every byte that a screen does not print as
/// "\xNN": a CR that is missing shows.
std::string Printable(std::string_view text) {
  std::string out;
  for (const char byte : text) {
    const auto code = static_cast<unsigned char>(byte);
    if (byte == '\n' || (code >= 0x20 && code < 0x7F)) {
      out += byte;
      continue;
    }
    std::array<char, 5> digits{};
    std::snprintf(digits.data(), digits.size(), "\\x%02X", static_cast<unsigned>(code));
    out += digits.data();
  }
  return out;
}

}  // namespace

std::string UnifiedDiff(std::string_view expected, std::string_view result) {
  if (expected == result) return "";
  const TemporaryFolder folder;
  const std::string before = folder.Native() + "/expected";
  const std::string after = folder.Native() + "/result";
  std::ofstream(before, std::ios::binary) << Printable(expected);
  std::ofstream(after, std::ios::binary) << Printable(result);
  const std::string command = "diff -u '" + before + "' '" + after + "'";
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(popen(command.c_str(), "r"), pclose);
  std::string diff;
  std::array<char, 4096> piece{};
  while (out != nullptr) {
    const std::size_t read = std::fread(piece.data(), 1, piece.size(), out.get());
    if (read == 0) break;
    diff.append(piece.data(), read);
  }
  return diff;
}

void ExpectSameText(const std::string& name, std::string_view result, std::string_view expected) {
  if (result == expected) return;
  ADD_FAILURE() << name << " is not as expected (-expected, +result)\n"
                << UnifiedDiff(expected, result);
}

}  // namespace tarnwick::test
