// What running programs show: the generated texts of the examples, and the programs of traces/,
// each run with the events of traces/<name>.events (none without such a file) and compared with
// traces/<name>.trace. The folders are listed, so a new case is a new file; scripts/update-golden
// writes the traces again.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include <gtest/gtest.h>

#include "basic/check/front_end.h"
#include "basic/code/emitter.h"
#include "basic/vm/machine.h"
#include "fakes/build_paths.h"
#include "fakes/golden_text.h"
#include "fakes/memory_files.h"
#include "fakes/program_hosts.h"
#include "hosts/profile_calls.h"
#include "objects/scripted_widgets.h"
#include "objects/traced_widgets.h"
#include "platform/profile_files.h"

namespace tarnwick::objects {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = test::SourceFolder();
const fs::path kTraces = kSource / "tests/objects/traces";

std::string BytesOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// The program itself under any path; the include file under the one that generated texts name.
class Sources : public basic::SourceReader {
 public:
  explicit Sources(std::string text) : text_(std::move(text)) {}
  std::optional<std::string> ReadSource(const std::string& path) override {
    if (path.ends_with("Tarnwick1.lib")) return BytesOf(kSource / "support/Tarnwick1.lib");
    return text_;
  }

 private:
  std::string text_;
};

/// Everything that a program with a user who follows the script prints and shows.
std::string TraceOf(const fs::path& program, const std::string& script) {
  std::string trace;
  Sources sources(BytesOf(program));
  const basic::FrontEndResult checked =
      basic::CheckProgram("C:\\work\\program.bas", sources, ClassTable(), {});
  for (const basic::Message& message : checked.Found.All()) {
    trace += "line " + std::to_string(message.At.Line) + ": " + message.Text + "\n";
  }
  if (!checked.Checked) return trace;
  const basic::EmitResult emitted = basic::Emit(*checked.Checked);
  test::LogConsole console(trace);
  test::StillClock clock(trace);
  test::LogSystem system(trace);
  system.ProgramArguments.clear();
  test::ProgramFiles files;
  CallLog calls;
  MemoryFiles disk(calls);
  ProfileFiles profiles(disk);
  hosts::ProfileCalls natives(profiles);
  ScriptedWidgets widgets(script);
  widgets.Played = [&](std::string_view line) { trace += std::string(line) + "\n"; };
  TracedWidgets traced(widgets, widgets.Played);
  ProgramFacts facts{"C:\\work\\program.exe", "program", {}};
  for (const basic::Resource& resource : checked.Checked->Resources) {
    facts.Resources.emplace_back(resource.File);
  }
  ObjectWorld world(traced, &files, facts);
  traced.Connect(world);
  widgets.Play(world);
  basic::RunOptions options;
  options.MaxSteps = 10'000'000;
  basic::Machine machine(emitted.Made, {&console, &world, &files, &clock, &system, &natives},
                         options);
  machine.SetResources(facts.Resources);
  world.Connect(machine);
  const basic::RunResult result = machine.Run();
  for (const basic::RunNote& note : result.Notes) trace += "note: " + note.Text + "\n";
  for (const std::string& fault : widgets.Faults) trace += "fault: " + fault + "\n";
  return trace + (result.Text.empty() ? "" : "error: " + result.Text + "\n");
}

std::vector<fs::path> Programs() {
  std::vector<fs::path> programs;
  for (const fs::path& folder : {kSource / "tests/examples/expected", kTraces}) {
    for (const auto& entry : fs::directory_iterator(folder)) {
      const fs::path& path = entry.path();
      if (path.extension() == ".com" || path.extension() == ".bas") programs.push_back(path);
    }
  }
  std::sort(programs.begin(), programs.end());
  return programs;
}

TEST(Traces, ProgramsShowWhatTheirFilesSay) {
  int count = 0;
  for (const fs::path& program : Programs()) {
    const std::string name = program.stem().string();
    const fs::path events = kTraces / (name + ".events");
    const std::string trace = TraceOf(program, fs::exists(events) ? BytesOf(events) : "");
    const fs::path expected = kTraces / (name + ".trace");
    ++count;
    if (std::getenv("TARNWICK_UPDATE_GOLDEN") != nullptr) {
      std::ofstream(expected, std::ios::binary) << trace;
    } else {
      test::ExpectSameText(name + ".trace", trace, BytesOf(expected));
    }
  }
  EXPECT_GE(count, 5);
}

TEST(Traces, EveryFileBelongsToAProgram) {
  std::vector<std::string> names;
  for (const fs::path& program : Programs()) names.push_back(program.stem().string());
  for (const auto& entry : fs::directory_iterator(kTraces)) {
    EXPECT_NE(std::find(names.begin(), names.end(), entry.path().stem().string()), names.end())
        << entry.path().filename();
  }
}

}  // namespace
}  // namespace tarnwick::objects
