// The console of a program that was started without a terminal.
#pragma once

#include <QString>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "hosts/paged_console.h"

namespace tarnwick::run {

/// What is printed goes out at once as UTF-8. A window with the console's page opens when the
/// program asks for keys or lines, or works with places and colours of the page. While it waits for
/// them its other windows stay alive. Where nobody reads what goes out the first text opens it.
class WindowConsole final : public hosts::PagedConsole {
 public:
  WindowConsole(QString title, std::FILE* out);
  WindowConsole(const WindowConsole&) = delete;
  WindowConsole& operator=(const WindowConsole&) = delete;
  ~WindowConsole() override;

  /// Asked while the program waits for input: true ends the waiting.
  std::function<bool()> Ending;
  /// The user closed the window.
  std::function<void()> Closed;
  /// Nobody reads what goes out: text is shown in the window.
  bool ShowsText = false;

  /// Keeps the window of a program that has ended until the user closes it or `ending` returns
  /// true; nothing when there is none.
  void WaitClosed(const std::function<bool()>& ending);

  std::optional<std::string> ReadLine() override;
  std::string ReadBytes(std::size_t count) override;
  std::string Key() override;
  void SetTitle(std::string_view title) override;

 private:
  class Window;

  void Printed(std::string_view text) override;
  void Cleared() override;
  void Located() override;
  void Colored(int text, int back) override;
  void Replaced() override;
  void Poked() override;

  Window& Open();
  /// Waits for a key; 0 when there will be none.
  char NextKey();
  /// Sends text to the output.
  void Send(std::string_view text);
  /// Paints the page, though not for each of many changes in a moment.
  void PageChanged();

  QString title_;
  std::FILE* out_;
  std::string keys_;  ///< pressed and not read yet
  bool closed_ = false;
  std::chrono::steady_clock::time_point painted_;
  std::unique_ptr<Window> window_;  ///< null until the program needs it
};

}  // namespace tarnwick::run
