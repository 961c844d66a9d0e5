// The console of a running program over the process's own streams.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "hosts/paged_console.h"

namespace tarnwick::hosts {

/// Text goes out as UTF-8 and comes in as UTF-8. On a terminal, CLS, LOCATE and COLOR are control
/// sequences and INKEY$ sees single keys; elsewhere only the text itself is written, and INKEY$
/// takes the next byte of the input.
class StreamConsole final : public PagedConsole {
 public:
  StreamConsole(std::FILE* in, std::FILE* out);
  ~StreamConsole() override;
  StreamConsole(const StreamConsole&) = delete;
  StreamConsole& operator=(const StreamConsole&) = delete;

  std::optional<std::string> ReadLine() override;
  std::string ReadBytes(std::size_t count) override;
  std::string Key() override;
  void SetTitle(std::string_view title) override;

 private:
  void Printed(std::string_view text) override;
  void Cleared() override;
  void Located() override;
  void Colored(int text, int back) override;
  void Replaced() override;
  void Poked() override;

  /// A terminal that hands single keys over; the destructor brings its lines back.
  class RawTerminal;

  /// Control characters for the terminal; nothing elsewhere.
  void Control(const std::string& sequence);
  /// The next byte as the program sees it; -1 at the end.
  int NextByte();

  std::FILE* in_;
  std::FILE* out_;
  bool terminal_;
  std::unique_ptr<RawTerminal> raw_;
};

}  // namespace tarnwick::hosts
