#include "hosts/local_system.h"

#include <cstdlib>

#include "text/code_page.h"

namespace tarnwick::hosts {

std::string LocalSystem::Environment(std::string_view name) {
  const char* const value = std::getenv(CodePageToUtf8(name).c_str());
  return value == nullptr ? std::string() : Utf8ToCodePage(value);
}

bool LocalSystem::SetEnvironment(std::string_view name, std::string_view value) {
  if (name.empty() || name.find('=') != std::string_view::npos) return false;
  return ::setenv(CodePageToUtf8(name).c_str(), CodePageToUtf8(value).c_str(), 1) == 0;
}

std::int64_t LocalSystem::Start(std::string_view command, int) {
  return process_.StartHidden(std::string(command)) ? 1 : 0;
}

int LocalSystem::MessageBox(std::string_view text, std::string_view title, int flags) {
  const std::string line =
      CodePageToUtf8(title) + (title.empty() ? "" : ": ") + CodePageToUtf8(text) + "\n";
  std::fwrite(line.data(), 1, line.size(), messages_);
  // MB_OK, OKCANCEL, ABORTRETRYIGNORE, YESNOCANCEL, YESNO, RETRYCANCEL -> IDOK, IDABORT, IDYES,
  // IDRETRY.
  constexpr int kFirstButton[] = {1, 1, 3, 6, 6, 4, 1, 1};
  return kFirstButton[flags & 7];
}

void LocalSystem::Sound(double, double) {}

bool LocalSystem::PlayWave(std::string_view, int) {
  return false;
}

}  // namespace tarnwick::hosts
