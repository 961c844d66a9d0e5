// What the generator keeps from one compilation to the next.
#pragma once

#include <array>
#include <cstdint>
#include <limits>

#include "model/kinds.h"

namespace tarnwick {

/// A running number of 16 bits. A step past its range fails, and the number stays.
inline void StepOrdinal(std::int16_t& ordinal) noexcept {
  if (ordinal < std::numeric_limits<std::int16_t>::max()) ++ordinal;
}

/// The running number of the object visited last, for each kind.
class KindCounters {
 public:
  [[nodiscard]] std::int16_t Of(Kind kind) const noexcept { return counts_[Slot(kind)]; }
  /// Raises a kind's number by one and returns it.
  std::int16_t Step(Kind kind) noexcept {
    StepOrdinal(counts_[Slot(kind)]);
    return counts_[Slot(kind)];
  }
  void Set(Kind kind, std::int16_t count) noexcept { counts_[Slot(kind)] = count; }
  /// Sets to 0 the numbers that live no longer than `life`.
  void Reset(CounterLife life) noexcept {
    for (const KindInfo& kind : ObjectKinds()) {
      if (kind.Program.Counter <= life) counts_[Slot(kind.Id)] = 0;
    }
  }

 private:
  static std::size_t Slot(Kind kind) noexcept { return static_cast<std::size_t>(kind); }
  std::array<std::int16_t, kKindCount> counts_{};
};

/// State of the generator that the section writers share. One instance lives as long as the
/// process: the WinSock number goes on from compilation to compilation, and `CurrentOrdinal` is
/// never set back by anyone.
struct GeneratorState {
  tarnwick::KindCounters KindCounters;
  /// Ordinal of the object being visited. A kind whose counter does not step in a walk leaves the
  /// number of the object before it here, and keys are built with that.
  std::int16_t CurrentOrdinal = 0;
  bool DefaultIconDone = false;  ///< the line of the default icon has been written
  std::int16_t i = 0;            ///< the form the section writers work on
};

}  // namespace tarnwick
