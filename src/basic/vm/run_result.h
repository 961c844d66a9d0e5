// How a program is run, and how that ended.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "basic/source/source_place.h"

namespace tarnwick::basic {

/// Calls inside each other at most. Deep enough for recursion over a few thousand records, and a
/// runaway recursion ends with a message at once.
inline constexpr std::size_t kMostCalls = 10'000;
/// Procedures started by the outside (events, constructors) while others run: each takes a piece of
/// the process's own stack.
inline constexpr std::size_t kMostActivations = 200;
/// Registers of all running calls together.
inline constexpr std::size_t kMostStackSlots = std::size_t{1} << 22U;
/// GOSUBs without a RETURN.
inline constexpr std::size_t kMostGosubs = 100'000;
/// Elements of all arrays together: half a gigabyte.
inline constexpr std::size_t kMostArraySlots = std::size_t{1} << 26U;

enum class Dispatch : std::uint8_t {
  Threaded,  ///< a jump per instruction, where the compiler has it; else as Switch
  Switch,
};

struct RunOptions {
  std::uint64_t MaxSteps = 0;  ///< instructions; 0: no limit
  double MaxSeconds = 0;       ///< 0: no limit
  std::uint64_t Seed = 0;      ///< of RND
  Dispatch How = Dispatch::Threaded;
  std::size_t TextLimit = std::size_t{256} << 20U;
  std::size_t ArrayLimit = kMostArraySlots;
  std::size_t StackSlots = kMostStackSlots;
};

enum class RunEnd : std::uint8_t { Ended, Error, StepLimit, TimeLimit, Stopped };

/// One running call: the procedure ("" is the top level) and the text at which it is.
struct CallSite {
  std::string Procedure;
  SourcePlace At;
};

/// A note of the running program, such as a KILL of a file that is not there.
struct RunNote {
  SourcePlace At;
  std::string Text;
};

struct RunResult {
  RunEnd End = RunEnd::Ended;
  std::string Text;             ///< of an error
  std::vector<CallSite> Chain;  ///< innermost first; empty when the program ended by itself
  std::vector<RunNote> Notes;
  std::uint64_t Steps = 0;  ///< instructions run, when MaxSteps was set
};

}  // namespace tarnwick::basic
