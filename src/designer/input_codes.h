// Mouse buttons, shift bits and keys as the handlers of a design window take them.
#pragma once

namespace tarnwick {

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kShiftBit = 1;
inline constexpr int kCtrlBit = 2;
inline constexpr int kAltBit = 4;

namespace keys {
inline constexpr int kTab = 9;
inline constexpr int kReturn = 13;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kDelete = 46;
inline constexpr int kC = 67;
inline constexpr int kV = 86;
inline constexpr int kX = 88;
inline constexpr int kF5 = 116;
inline constexpr int kF7 = 118;
}  // namespace keys

}  // namespace tarnwick
