// A program with real windows, driven step by step.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "basic/vm/machine.h"
#include "fakes/program_hosts.h"
#include "fakes/temporary_folder.h"
#include "hosts/disk_files.h"
#include "hosts/local_clock.h"
#include "hosts/prepared_program.h"
#include "hosts/profile_calls.h"
#include "objects/object_world.h"
#include "platform/native_files.h"
#include "platform/profile_files.h"
#include "run/desktop_system.h"
#include "run/line_printer.h"
#include "run/stage.h"
#include "run/tcp_network.h"

namespace tarnwick::test {

/// Runs a program offscreen. The steps are what the user does: each runs when the program waits for
/// events, also while it waits within the step before. Behind the last one the program is ended.
class LiveProgram {
 public:
  /// A text, or with an empty one the file of this path of the machine.
  explicit LiveProgram(const std::string& text, const std::string& path = {},
                       std::vector<std::string> words = {});
  ~LiveProgram();

  LiveProgram& Then(std::function<void()> step) {
    steps_.push_back(std::move(step));
    return *this;
  }
  /// Pauses between the steps, milliseconds.
  LiveProgram& Pause(int milliseconds) {
    pause_ = milliseconds;
    return *this;
  }
  /// Runs to the end; what was printed is in `Printed`.
  void Run();

  /// The widget of an object; null when there is none.
  [[nodiscard]] QWidget* Widget(std::string_view name) const;
  /// The widget of an object as one of the toolkit; the test fails when it is none.
  template <class Kind>
  [[nodiscard]] Kind& The(std::string_view name) const {
    auto* const widget = qobject_cast<Kind*>(Widget(name));
    if (widget == nullptr) throw std::runtime_error("no widget " + std::string(name));
    return *widget;
  }
  [[nodiscard]] const objects::ObjectRecord& Object(std::string_view name) const;
  /// A property as text, as the program would read it.
  [[nodiscard]] std::string Get(std::string_view object, std::string_view property) const;

  std::string Faults;   ///< of the check, a line each
  std::string Printed;  ///< by the program, other calls of the console in angle brackets
  basic::RunResult Result;
  TemporaryFolder Folder;
  hosts::PreparedProgram Program;
  run::Stage Stage;
  run::TcpNetwork Network{[this](int wait_ms) { Stage.Rest(wait_ms); }};
  run::LinePrinter Lines{Stage};
  std::unique_ptr<objects::ObjectWorld> World;
  std::string ExeName;

 private:
  void Step();

  LogConsole console_{Printed};
  hosts::DiskFiles files_;
  hosts::LocalClock clock_;
  run::DesktopSystem system_;
  NativeFiles disk_;
  ProfileFiles profiles_{disk_};
  hosts::ProfileCalls natives_{profiles_};
  std::unique_ptr<basic::Machine> machine_;
  std::vector<std::function<void()>> steps_;
  std::size_t next_ = 0;
  int waited_ = 0;
  int left_open_ = 0;
  int depth_ = 0;
  int pause_ = 20;
  QObject context_;
};

/// A program with the form F and the lines of its objects, which shows it at the end.
[[nodiscard]] std::string FormWith(const std::string& objects, const std::string& code = {});

}  // namespace tarnwick::test
