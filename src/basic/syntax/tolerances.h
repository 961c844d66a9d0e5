// Irregular lines of generated text that are accepted.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick::basic {

/// One kind of irregular line. They are accepted only in a text that begins as generated text
/// does, and only when the user did not ask for a strict check.
enum class Tolerance : std::uint8_t {
  FrameHintRest,
  FrameModalRest,
  EmptyValue,
  LostPopup,
  EmptyMenuTitle,
  DeclaredTwice,
  EventWithoutSub,
  GrowingArray,
  ViewerNames,
  LoopName,
  SocketArray,
  BracketName,
  UnboundPicture,
};
inline constexpr std::size_t kToleranceCount =
    static_cast<std::size_t>(Tolerance::UnboundPicture) + 1;

/// What becomes of an accepted line.
enum class ToleranceEffect : std::uint8_t {
  Skip,     ///< what is irregular in it has no effect
  Call,     ///< it is a call of the routine that its name begins with
  Merge,    ///< two declarations, or the parts of a name, are one
  Declare,  ///< its name is declared by it
};

/// A row of tolerances.tsv.
struct ToleranceRow {
  Tolerance Which;
  std::string_view Name;  ///< a program of tests/basic/tolerances has the same
  std::string_view Line;  ///< an example
  ToleranceEffect Effect;
  std::string_view Note;    ///< to the user; "" for none
  std::string_view Remedy;  ///< what he can do; "" for nothing
};

/// By enumerator.
extern const std::array<ToleranceRow, kToleranceCount> kTolerances;

[[nodiscard]] inline const ToleranceRow& RowOf(Tolerance which) noexcept {
  return kTolerances[static_cast<std::size_t>(which)];
}

/// "is passed over", "runs as a call" and the like.
[[nodiscard]] std::string_view TextOf(ToleranceEffect effect) noexcept;

}  // namespace tarnwick::basic
