// The loop with a switch, for every compiler.
#include "basic/vm/loop_includes.h"

namespace tarnwick::basic {
namespace {

#define BASIC_LOOP SwitchLoop
#define BASIC_THREADED 0
#include "basic/vm/loop.inc"
#undef BASIC_LOOP
#undef BASIC_THREADED

}  // namespace

void RunSwitch(MachineState& state) {
  SwitchLoop<false>(state);
}

void RunSwitchCounting(MachineState& state) {
  SwitchLoop<true>(state);
}

}  // namespace tarnwick::basic
