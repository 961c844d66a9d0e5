// How the machine calls a function of the library.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "basic/hosts/file_host.h"
#include "basic/hosts/hosts.h"
#include "basic/vm/value.h"

namespace tarnwick::basic {

/// Random numbers of RND: the same series for the same seed on every system.
class RandomSeries {
 public:
  void Restart(std::uint64_t seed) { state_ = seed; }
  /// 0 <= x < 1, 53 bits.
  [[nodiscard]] double Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    mixed ^= mixed >> 31U;
    return static_cast<double>(mixed >> 11U) * 0x1p-53;
  }

 private:
  std::uint64_t state_ = 0;
};

class ByteMemory;

/// What library functions keep between two calls in one run.
struct LibraryState {
  RandomSeries Random;
  std::vector<std::string> Resources;  ///< files of $RESOURCE, in order; set before the start
  ByteMemory* Memory = nullptr;        ///< what VARPTR gives addresses of; null: nothing
  std::vector<FileEntry> Found;        ///< of the last DIR$ with a mask
  std::size_t NextFound = 0;           ///< what DIR$("") returns next; FILEREC is the one before
  std::vector<std::string> Notes;  ///< for the user, such as a KILL that failed; the machine takes
                                   ///< them after the call and adds the position
};

/// Longest string of a running program, in bytes.
inline constexpr std::size_t kLongestText = std::size_t{256} << 20U;

/// One call of a library function.
struct LibraryCall {
  /// In order, already brought to the kinds of the function's row: a parameter for whole numbers
  /// holds an Integer, one for numbers a Number, one for strings a Text. What an optional parameter
  /// did not get is not in the span; an argument left out between two others is Empty.
  std::span<const Value> Arguments;
  const Hosts& Host;
  LibraryState& State;
  std::size_t TextLimit = kLongestText;  ///< longest string a result may be
  Value Result;                          ///< stays Empty for a statement
  std::string Error;                     ///< text of the run-time error; "" when all went well

  [[nodiscard]] const Value& At(std::size_t index) const { return Arguments[index]; }
  [[nodiscard]] std::size_t Count() const { return Arguments.size(); }
  void Fail(std::string text) { Error = std::move(text); }
};

/// A native function; `NativeOf` gives that of a row. It must not call back into the machine.
using NativeFunction = void (*)(LibraryCall& call);

}  // namespace tarnwick::basic
