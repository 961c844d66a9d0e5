// The console of a program that was started without a terminal.
#pragma once

#include <QString>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "basic/hosts/console_host.h"
#include "hosts/console_page.h"

namespace tarnwick::run {

/// What is printed goes out at once as UTF-8. A window with the console's page opens when the
/// program asks for keys or lines, or works with places and colours of the page. While it waits for
/// them its other windows stay alive.
class WindowConsole final : public basic::ConsoleHost {
 public:
  WindowConsole(QString title, std::FILE* out);
  WindowConsole(const WindowConsole&) = delete;
  WindowConsole& operator=(const WindowConsole&) = delete;
  ~WindowConsole() override;

  /// Asked while the program waits for input: true ends the waiting.
  std::function<bool()> Ending;
  /// The user closed the window.
  std::function<void()> Closed;

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
  class Window;

  [[nodiscard]] hosts::ConsolePage* Page(int page);
  Window& Open();
  /// Waits for a key; 0 when there will be none.
  char NextKey();
  void Print(std::string_view text);
  /// Paints the page, though not for each of many changes in a moment.
  void PageChanged();

  QString title_;
  std::FILE* out_;
  std::array<hosts::ConsolePage, 8> pages_;
  std::string keys_;  ///< pressed and not read yet
  bool closed_ = false;
  std::chrono::steady_clock::time_point painted_;
  std::unique_ptr<Window> window_;  ///< null until the program needs it
};

}  // namespace tarnwick::run
