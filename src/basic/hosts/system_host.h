// What a running program asks of the system around it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::basic {

class SystemHost {
 public:
  virtual ~SystemHost() = default;
  /// The arguments of the program, without its name.
  [[nodiscard]] virtual const std::vector<std::string>& Arguments() = 0;
  /// Value of an environment variable; "" when there is none.
  [[nodiscard]] virtual std::string Environment(std::string_view name) = 0;
  /// Sets an environment variable for this program and those it starts; false when it cannot.
  virtual bool SetEnvironment(std::string_view name, std::string_view value) = 0;
  /// Starts a program with a window state and goes on. Its number; 0 when it did not start.
  virtual std::int64_t Start(std::string_view command, int show) = 0;
  /// Windows message box with MB_* flags. Returns the ID* of the button; without a window system
  /// the text goes to the console and the result is that of the box's first button.
  virtual int MessageBox(std::string_view text, std::string_view title, int flags) = 0;
  /// A tone; nothing on systems without one.
  virtual void Sound(double hertz, double milliseconds) = 0;
  /// Plays a sound file; false when that cannot be done.
  virtual bool PlayWave(std::string_view path, int flags) = 0;
};

}  // namespace tarnwick::basic
