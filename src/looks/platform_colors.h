// The colour numbers of projects as colours of the screen.
#pragma once

#include <QColor>
#include <cstdint>

namespace tarnwick::looks {

/// The colour of a number: blue, green and red from the high byte down. With the top bit set the
/// low byte names a colour of the system; these are always the classic ones, so that a form looks
/// the same whatever the desktop. A number beyond the table is black.
[[nodiscard]] QColor ColorOf(std::int32_t number) noexcept;
[[nodiscard]] std::int32_t NumberOf(const QColor& color) noexcept;

}  // namespace tarnwick::looks
