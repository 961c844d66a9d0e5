// The console of a running program over the process's own streams.
#pragma once

#include <array>
#include <cstdio>
#include <memory>
#include <string>

#include "basic/hosts/console_host.h"
#include "hosts/console_page.h"

namespace tarnwick::hosts {

/// Text goes out as UTF-8 and comes in as UTF-8. On a terminal, CLS, LOCATE and COLOR are control
/// sequences and INKEY$ sees single keys; elsewhere only the text itself is written, and INKEY$
/// takes the next byte of the input.
class StreamConsole final : public basic::ConsoleHost {
 public:
  StreamConsole(std::FILE* in, std::FILE* out);
  ~StreamConsole() override;
  StreamConsole(const StreamConsole&) = delete;
  StreamConsole& operator=(const StreamConsole&) = delete;

  void Write(int page, std::string_view text) override;
  int Column(int page) override;
  int Row(int page) override;
  std::optional<std::string> ReadLine() override;
  std::string ReadBytes(std::size_t count) override;
  std::string Key() override;
  void Clear() override;
  void Locate(int row, int column) override;
  void Color(int text, int back) override;
  void CopyPage(int from, int to) override;
  int CharacterAt(int row, int column) override;
  int Peek(std::int64_t address) override;
  void Poke(std::int64_t address, int byte) override;
  void SetTitle(std::string_view title) override;
  bool IsConsole() override { return true; }

 private:
  /// A terminal that hands single keys over; the destructor brings its lines back.
  class RawTerminal;

  /// Control characters for the terminal; nothing elsewhere.
  void Control(const std::string& sequence);
  void Redraw();
  [[nodiscard]] ConsolePage* Page(int page);
  /// The next byte as the program sees it; -1 at the end.
  int NextByte();

  std::FILE* in_;
  std::FILE* out_;
  bool terminal_;
  std::array<ConsolePage, 8> pages_;
  std::unique_ptr<RawTerminal> raw_;
};

}  // namespace tarnwick::hosts
