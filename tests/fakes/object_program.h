// A program with objects, run in memory on recording widgets.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "basic/check/front_end.h"
#include "basic/code/emitter.h"
#include "basic/vm/machine.h"
#include "fakes/program_hosts.h"
#include "fakes/recording_widgets.h"
#include "objects/object_world.h"

namespace tarnwick::test {

/// Checks a program at once; `Run` runs it. Records and widgets stay until this goes.
class ObjectProgram : public basic::SourceReader {
 public:
  explicit ObjectProgram(std::string text, std::map<std::string, std::string> includes = {});

  ObjectProgram(const ObjectProgram&) = delete;
  ObjectProgram& operator=(const ObjectProgram&) = delete;
  /// The objects go first: hooks hold records whose layouts are the code's.
  ~ObjectProgram() override;

  std::optional<std::string> ReadSource(const std::string& path) override;

  /// Runs the program and returns what it printed; with an error in the check that one.
  std::string Run();

  /// The object of a variable's name; null when there is none.
  [[nodiscard]] const objects::ObjectRecord* Object(std::string_view name) const;
  [[nodiscard]] basic::ObjectId Id(std::string_view name) const;
  /// What the user does while a form waits, in order.
  void Then(std::function<void()> step);
  void ThenClick(std::string name);

  static inline const objects::ClassTable Classes;
  std::string Faults;   ///< of the check, a line each
  std::string Printed;  ///< with other calls of the system in angle brackets
  basic::RunResult Result;
  RecordingWidgets Widgets;
  ProgramFiles Files;
  std::unique_ptr<objects::ObjectWorld> World;
  objects::NetworkPort* Network = nullptr;  ///< null: the program has no connections

 private:
  std::map<std::string, std::string> sources_;
  std::optional<basic::FrontEndResult> checked_;
  basic::EmitResult code_;
  LogConsole console_{Printed};
  StillClock clock_{Printed};
  LogSystem system_{Printed};
  std::unique_ptr<basic::Machine> machine_;
};

/// What a program prints.
std::string PrintedBy(const std::string& text);

}  // namespace tarnwick::test
