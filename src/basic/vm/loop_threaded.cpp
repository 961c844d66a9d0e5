// The loop with a jump from each instruction to the next, where the compiler has it. It predicts
// better than one switch for all: a sum in a loop takes half the time.
#include "basic/vm/loop_includes.h"
#include "basic/vm/machine.h"

namespace tarnwick::basic {

#if defined(__GNUC__)
namespace {

#define BASIC_LOOP ThreadedLoop
#define BASIC_THREADED 1
#include "basic/vm/loop.inc"
#undef BASIC_LOOP
#undef BASIC_THREADED

}  // namespace

void RunThreaded(MachineState& state) {
  ThreadedLoop<false>(state);
}

void RunThreadedCounting(MachineState& state) {
  ThreadedLoop<true>(state);
}

bool Machine::HasThreadedDispatch() {
  return true;
}
#else
void RunThreaded(MachineState& state) {
  RunSwitch(state);
}

void RunThreadedCounting(MachineState& state) {
  RunSwitchCounting(state);
}

bool Machine::HasThreadedDispatch() {
  return false;
}
#endif

}  // namespace tarnwick::basic
