// The console pages of a running program; derived classes show the visible one.
#pragma once

#include <array>
#include <string_view>

#include "basic/hosts/console_host.h"
#include "hosts/console_page.h"

namespace tarnwick::hosts {

/// Keeps the visible page 0 and the hidden pages 1 to 7. What happens to page 0 is handed on after
/// the page has changed. A page number outside does nothing; its row and column are 1.
class PagedConsole : public basic::ConsoleHost {
 public:
  void Write(int page, std::string_view text) final;
  int Column(int page) final;
  int Row(int page) final;
  void Clear() final;
  void Locate(int row, int column) final;
  void Color(int text, int back) final;
  void CopyPage(int from, int to) final;
  int CharacterAt(int row, int column) final;
  int Peek(std::int64_t address) final;
  void Poke(std::int64_t address, int byte) final;
  bool IsConsole() final { return true; }

 protected:
  [[nodiscard]] ConsolePage& Visible() { return pages_[0]; }

  virtual void Printed(std::string_view text) = 0;
  virtual void Cleared() = 0;
  virtual void Located() = 0;
  /// -1 where a colour stays as it was.
  virtual void Colored(int text, int back) = 0;
  /// Another page was copied to it.
  virtual void Replaced() = 0;
  virtual void Poked() = 0;

 private:
  [[nodiscard]] ConsolePage* Page(int page);

  std::array<ConsolePage, 8> pages_;
};

}  // namespace tarnwick::hosts
