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
  explicit ObjectProgram(std::string text, std::map<std::string, std::string> includes = {})
      : sources_(std::move(includes)) {
    sources_["C:\\main.bas"] = std::move(text);
    checked_ = basic::CheckProgram("C:\\main.bas", *this, Classes, {});
    for (const basic::Message& message : checked_->Found.All()) {
      const bool error = message.Level == basic::Severity::Error;
      Faults += (error ? "" : "note: ") + std::to_string(message.At.Line) + ": " + message.Text +
                (message.Remedy.empty() ? "" : ". " + message.Remedy) + "\n";
    }
  }

  ObjectProgram(const ObjectProgram&) = delete;
  ObjectProgram& operator=(const ObjectProgram&) = delete;
  /// The objects go first: hooks hold records whose layouts are the code's.
  ~ObjectProgram() override { World.reset(); }

  std::optional<std::string> ReadSource(const std::string& path) override {
    const auto found = sources_.find(path);
    if (found == sources_.end()) return std::nullopt;
    return found->second;
  }

  /// Runs the program and returns what it printed; with an error in the check that one.
  std::string Run() {
    if (!checked_->Checked) return Faults;
    code_ = basic::Emit(*checked_->Checked);
    Faults += code_.Error;
    objects::ProgramFacts facts;
    facts.ExeName = "C:\\work\\demo.exe";
    facts.Title = "demo";
    for (const basic::Resource& resource : checked_->Checked->Resources) {
      facts.Resources.emplace_back(resource.File);
    }
    std::vector<std::string> resources = facts.Resources;
    World = std::make_unique<objects::ObjectWorld>(Widgets, &Files, std::move(facts));
    basic::Hosts hosts{&console_, World.get(), &Files, &clock_, &system_, nullptr};
    basic::RunOptions options;
    options.MaxSteps = 5'000'000;
    machine_ = std::make_unique<basic::Machine>(code_.Made, hosts, options);
    machine_->SetResources(std::move(resources));
    World->Connect(*machine_);
    if (Network != nullptr) World->UseNetwork(*Network);
    Result = machine_->Run();
    return Printed + (Result.Text.empty() ? "" : "error: " + Result.Text);
  }

  /// The object of a variable's name; null when there is none.
  [[nodiscard]] const objects::ObjectRecord* Object(std::string_view name) const {
    const objects::ObjectRecord* found = nullptr;
    World->ForEach([&](const objects::ObjectRecord& record) {
      if (record.FullName() == name) found = &record;
    });
    return found;
  }
  [[nodiscard]] basic::ObjectId Id(std::string_view name) const {
    const objects::ObjectRecord* const record = Object(name);
    return record == nullptr ? basic::ObjectId::None : record->Id;
  }
  /// What the user does while a form waits, in order.
  void Then(std::function<void()> step) { Widgets.Steps.push_back(std::move(step)); }
  void ThenClick(std::string name) {
    Then([this, name] { World->Click(Id(name)); });
  }

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
inline std::string PrintedBy(const std::string& text) {
  return ObjectProgram(text).Run();
}

}  // namespace tarnwick::test
