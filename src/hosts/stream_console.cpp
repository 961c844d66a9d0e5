#include "hosts/stream_console.h"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include "text/code_page.h"

namespace tarnwick::hosts {
namespace {

/// Colours of the language as numbers of the terminal: red and blue change places.
int TerminalColor(int colour) {
  constexpr int kOrder[] = {0, 4, 2, 6, 1, 5, 3, 7};
  return kOrder[colour & 7];
}

bool HasInput(std::FILE* in) {
  pollfd waiting{::fileno(in), POLLIN, 0};
  return ::poll(&waiting, 1, 0) > 0;
}

}  // namespace

class StreamConsole::RawTerminal {
 public:
  explicit RawTerminal(int file) : file_(file) {
    if (::tcgetattr(file_, &before_) != 0) return;
    termios raw = before_;
    raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
    changed_ = ::tcsetattr(file_, TCSANOW, &raw) == 0;
  }
  ~RawTerminal() {
    if (changed_) ::tcsetattr(file_, TCSANOW, &before_);
  }
  RawTerminal(const RawTerminal&) = delete;
  RawTerminal& operator=(const RawTerminal&) = delete;

 private:
  int file_;
  termios before_{};
  bool changed_ = false;
};

StreamConsole::StreamConsole(std::FILE* in, std::FILE* out)
    : in_(in), out_(out), terminal_(::isatty(::fileno(out)) == 1) {}

StreamConsole::~StreamConsole() {
  std::fflush(out_);
}

void StreamConsole::Control(const std::string& sequence) {
  if (terminal_) std::fwrite(sequence.data(), 1, sequence.size(), out_);
}

void StreamConsole::Printed(std::string_view text) {
  const std::string utf8 = CodePageToUtf8(text);
  std::fwrite(utf8.data(), 1, utf8.size(), out_);
  if (terminal_) std::fflush(out_);
}

int StreamConsole::NextByte() {
  const int first = std::fgetc(in_);
  if (first < 0x80) return first == EOF ? -1 : first;
  // The bytes of one character of UTF-8.
  std::string utf8(1, static_cast<char>(first));
  const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  for (int i = 0; i < more; ++i) {
    const int next = std::fgetc(in_);
    if (next == EOF) break;
    utf8 += static_cast<char>(next);
  }
  return static_cast<unsigned char>(Utf8ToCodePage(utf8)[0]);
}

std::optional<std::string> StreamConsole::ReadLine() {
  raw_.reset();
  std::fflush(out_);
  std::string line;
  int byte = NextByte();
  if (byte < 0) return std::nullopt;
  for (; byte >= 0 && byte != '\n'; byte = NextByte()) line += static_cast<char>(byte);
  if (line.ends_with('\r')) line.pop_back();
  // On a terminal the user has written the line and its end.
  if (terminal_) Visible().Write(line + "\n");
  return line;
}

std::string StreamConsole::ReadBytes(std::size_t count) {
  std::fflush(out_);
  if (terminal_ && raw_ == nullptr) raw_ = std::make_unique<RawTerminal>(::fileno(in_));
  std::string bytes;
  while (bytes.size() < count) {
    const int byte = NextByte();
    if (byte < 0) break;
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

std::string StreamConsole::Key() {
  std::fflush(out_);
  if (::isatty(::fileno(in_)) == 1) {
    if (raw_ == nullptr) raw_ = std::make_unique<RawTerminal>(::fileno(in_));
    if (!HasInput(in_)) return {};
  }
  const int byte = NextByte();
  return byte < 0 ? std::string() : std::string(1, static_cast<char>(byte));
}

void StreamConsole::Cleared() {
  Control("\x1B[2J\x1B[H");
}

void StreamConsole::Located() {
  Control("\x1B[" + std::to_string(Visible().Row()) + ";" + std::to_string(Visible().Column()) +
          "H");
}

void StreamConsole::Colored(int text, int back) {
  if (text >= 0 && text <= 15) {
    Control("\x1B[" + std::to_string((text < 8 ? 30 : 90) + TerminalColor(text)) + "m");
  }
  if (back >= 0 && back <= 15) {
    Control("\x1B[" + std::to_string((back < 8 ? 40 : 100) + TerminalColor(back)) + "m");
  }
}

void StreamConsole::Replaced() {
  std::string text;
  for (int row = 1; row <= ConsolePage::kRows; ++row) {
    std::string line;
    for (int column = 1; column <= ConsolePage::kColumns; ++column) {
      line += static_cast<char>(Visible().CharacterAt(row, column));
    }
    line.erase(line.find_last_not_of(' ') + 1);
    if (row < ConsolePage::kRows) line += '\n';
    text += line;
  }
  Control("\x1B[2J\x1B[H");
  if (!terminal_) text.erase(text.find_last_not_of('\n') + 1);
  if (!terminal_ && !text.empty()) text += '\n';
  const std::string utf8 = CodePageToUtf8(text);
  std::fwrite(utf8.data(), 1, utf8.size(), out_);
  Located();
}

void StreamConsole::Poked() {
  if (terminal_) Replaced();
}

void StreamConsole::SetTitle(std::string_view title) {
  std::string utf8 = CodePageToUtf8(title);
  std::erase_if(utf8, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
  Control("\x1B]2;" + utf8 + "\x07");
}

}  // namespace tarnwick::hosts
