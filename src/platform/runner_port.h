// The program that runs generated sources beside the IDE.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

/// What is to be run.
struct RunRequest {
  std::string Source;         ///< full path of the generated text
  std::string ProgramFolder;  ///< without a closing "\"
  std::string ExeName;        ///< path of the program that the source would become
};

enum class RunSeverity : std::uint8_t { Note, Error };

/// A message about the running program. Line, column and length are 0 where they are not known.
struct RunMessage {
  RunSeverity Severity = RunSeverity::Note;
  std::string File;  ///< as the runner names it, in the code page
  int Line = 0;      ///< from 1
  int Column = 0;    ///< from 1
  int Length = 0;    ///< in bytes
  std::string Text;
};

/// How a run ended, by the numbers that the runner exits with.
enum class RunnerEnd : std::uint8_t {
  Ended = 0,
  SourceFaulty = 1,
  BadUsage = 2,
  RunTimeError = 3,
  Limit = 4,
  Stopped = 5,
  RunnerFault = 6,  ///< also a runner that died
};

/// Hears of a run, between two events of the window's own loop; never from within Start or Stop.
class RunListener {
 public:
  virtual ~RunListener() = default;
  /// The program's first line is about to run: its source has no errors.
  virtual void RunStarted() = 0;
  /// What the program printed, in pieces of any size.
  virtual void RunOutput(std::string_view text) = 0;
  virtual void RunMessaged(const RunMessage& message) = 0;
  /// The user asked the running program to show this place in the IDE.
  virtual void RunShows(const RunMessage& place) = 0;
  /// The last call of a run.
  virtual void RunEnded(RunnerEnd how) = 0;
};

/// Starts and stops the runner, one program at a time.
class RunnerPort {
 public:
  virtual ~RunnerPort() = default;
  /// Starts a program; false when there is no runner, it cannot be started, or one runs. The
  /// program goes on when the IDE ends. The listener outlives the run or the port.
  virtual bool Start(const RunRequest& request, RunListener& listener) = 0;
  /// Asks the program to end, and ends it after two seconds when it has not.
  virtual void Stop() = 0;
  [[nodiscard]] virtual bool Running() const = 0;
};

}  // namespace tarnwick
