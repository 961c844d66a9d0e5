// Any bytes as a RapidQ program with objects, run within limits under both ways of dispatching: the
// same text comes out, the same happens to its windows, and it ends alike. What stands behind a
// line of three apostrophes is what the user does.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "basic/check/front_end.h"
#include "basic/code/dump.h"
#include "basic/code/emitter.h"
#include "basic/vm/machine.h"
#include "fakes/program_world.h"
#include "fakes/source_text.h"
#include "objects/object_world.h"
#include "objects/scripted_widgets.h"
#include "objects/traced_widgets.h"

namespace {

using namespace tarnwick;

std::string Run(const basic::Code& code, const std::string& script, basic::Dispatch how) {
  basic::ProgramWorld world;
  std::string trace;
  objects::ScriptedWidgets widgets(script);
  widgets.Played = [&](std::string_view line) { trace += std::string(line) + "\n"; };
  objects::TracedWidgets traced(widgets, widgets.Played);
  objects::ObjectWorld objects(traced, &world.Files, {"C:\\Work\\main.exe", "main", {}});
  traced.Connect(objects);
  widgets.Play(objects);
  world.Host.Objects = &objects;
  basic::RunOptions options;
  options.MaxSteps = 20'000;
  options.How = how;
  options.TextLimit = 10'000;
  options.ArrayLimit = 20'000;
  options.StackSlots = 20'000;
  basic::Machine machine(code, world.Host, options);
  objects.Connect(machine);
  const basic::RunResult result = machine.Run();
  return world.Log + "\n" + trace + std::to_string(static_cast<int>(result.End)) + result.Text +
         "\n" + std::to_string(result.Steps);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  basic::test::MemorySources sources;
  sources.Files["C:\\Work\\main.bas"] = std::string(reinterpret_cast<const char*>(data), size);
  const std::string& text = sources.Files["C:\\Work\\main.bas"];
  constexpr std::string_view kScript = "'''\n";
  const std::size_t at = text.find(kScript);
  const std::string script = at == std::string::npos ? "" : text.substr(at + kScript.size());
  const objects::ClassTable classes;
  const basic::FrontEndResult checked =
      basic::CheckProgram("C:\\Work\\main.bas", sources, classes, {});
  if (!checked.Checked) return 0;
  const basic::EmitResult emitted = basic::Emit(*checked.Checked);
  if (!emitted.Error.empty()) return 0;
  if (basic::DumpCode(emitted.Made).empty()) std::abort();
  if (Run(emitted.Made, script, basic::Dispatch::Threaded) !=
      Run(emitted.Made, script, basic::Dispatch::Switch)) {
    std::abort();
  }
  return 0;
}
