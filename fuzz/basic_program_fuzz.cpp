// Any bytes as a RapidQ program, run within limits under both ways of dispatching: the same text
// comes out, and the same end.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "basic/check/front_end.h"
#include "basic/code/dump.h"
#include "basic/code/emitter.h"
#include "basic/program_world.h"
#include "basic/source_text.h"
#include "basic/vm/machine.h"
#include "cli/no_classes.h"

namespace {

using namespace tarnwick;

std::string Run(const basic::Code& code, basic::Dispatch how) {
  basic::ProgramWorld world;
  basic::RunOptions options;
  options.MaxSteps = 20'000;
  options.How = how;
  options.TextLimit = 10'000;
  options.ArrayLimit = 20'000;
  options.StackSlots = 20'000;
  basic::Machine machine(code, world.Host, options);
  const basic::RunResult result = machine.Run();
  return world.Log + "\n" + std::to_string(static_cast<int>(result.End)) + result.Text + "\n" +
         std::to_string(result.Steps);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  basic::test::MemorySources sources;
  sources.Files["C:\\Work\\main.bas"] = std::string(reinterpret_cast<const char*>(data), size);
  const NoClasses classes;
  const basic::FrontEndResult checked =
      basic::CheckProgram("C:\\Work\\main.bas", sources, classes, {});
  if (!checked.Checked) return 0;
  const basic::EmitResult emitted = basic::Emit(*checked.Checked);
  if (!emitted.Error.empty()) return 0;
  if (basic::DumpCode(emitted.Made).empty()) std::abort();
  if (Run(emitted.Made, basic::Dispatch::Threaded) != Run(emitted.Made, basic::Dispatch::Switch)) {
    std::abort();
  }
  return 0;
}
