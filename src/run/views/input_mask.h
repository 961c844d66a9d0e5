// Patterns that typed text has to follow.
#pragma once

#include <QString>
#include <string_view>

namespace tarnwick::run {

/// The pattern of an edit's InputMask ("!99/99/00;1;_") as the toolkit writes it. L, A, C, 0, # and
/// the small letters stand for what can be typed, ">" and "<" for its case; the last part is what
/// stands where nothing is typed yet. Empty for an empty mask.
[[nodiscard]] QString ToolkitMask(std::string_view mask);

}  // namespace tarnwick::run
