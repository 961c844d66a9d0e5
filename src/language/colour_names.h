// The colours that have a name in the language.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tarnwick::language {

/// A constant of the language. Colours are numbers with red in the low byte and blue in the third;
/// negative ones stand for colours of the system.
struct ColourName {
  std::string_view Name;
  std::int32_t Value;
};

inline constexpr std::array kColourNames{
    ColourName{"clBlack", 0},
    ColourName{"clRed", 255},
    ColourName{"clGreen", 65280},
    ColourName{"clBlue", 16711680},
    ColourName{"clPurple", 16711935},
    ColourName{"clWhite", 16777215},
    ColourName{"clScrollBar", -2147483647 - 1},
    ColourName{"clBackGround", -2147483647},
    ColourName{"clMenu", -2147483644},
    ColourName{"clWindow", -2147483643},
    ColourName{"clWindowText", -2147483640},
    ColourName{"clHilightText", -2147483634},
    ColourName{"clBtnFace", -2147483633},
    ColourName{"clBtnShadow", -2147483632},
    ColourName{"clGrayText", -2147483631},
    ColourName{"clBtnText", -2147483630},
};

/// The colour of a name in any case; nothing for an unknown one.
[[nodiscard]] std::optional<std::int32_t> ColourOfName(std::string_view name) noexcept;
/// The name of a colour; "" for one without.
[[nodiscard]] std::string_view NameOfColour(std::int32_t colour) noexcept;

}  // namespace tarnwick::language
