// Fonts of forms: the same on the design form and in the running program.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarnwick::looks {

/// A font as the generated program's screen has it: points at 96 to the inch, so that a form looks
/// the same on every screen.
struct FormFont {
  QFont Font;
  QFontMetrics Metrics;
  int Id = 0;
};

/// What a font is asked for by; the size is in points.
struct FontWish {
  std::string_view Name;
  float Points = 8;
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool StrikeOut = false;
};

/// Makes each font once. A family that the system lacks is replaced by one of like shape, and a
/// size that is no number by 8 points. References stay valid for the life of the object.
class FormFonts {
 public:
  [[nodiscard]] const FormFont& At(const FontWish& wanted);

 private:
  std::unordered_map<std::string, std::unique_ptr<FormFont>> fonts_;
  std::string key_;
};

}  // namespace tarnwick::looks
