// Texts of forms, laid out once.
#pragma once

#include <QStaticText>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "looks/form_fonts.h"

namespace tarnwick::looks {

/// How a text is laid out.
enum class TextFlow : std::uint8_t {
  Line,     ///< one line, "&" marks the access key
  Wrapped,  ///< wrapped at the width, "&" marks the access key
  Plain,    ///< one line, every character as it stands
  Block,    ///< several lines, wrapped at the width, every character as it stands
};

struct LaidText {
  QStaticText Text;
  int Width = 0;
  int Height = 0;
  int KeyLeft = 0;  ///< underline of the access key; no width, no underline
  int KeyWidth = 0;
  int KeyTop = 0;
};

/// Laying out text is what painting a form costs most: fonts and layouts are kept, and thrown away
/// together when they become many.
class FormTexts {
 public:
  [[nodiscard]] const FormFont& FontOf(const FontWish& wanted) { return fonts_.At(wanted); }
  /// The layout of a text of the code page; `width` counts only where the text wraps.
  [[nodiscard]] const LaidText& Lay(std::string_view text, const FormFont& font, TextFlow flow,
                                    int width);

 private:
  FormFonts fonts_;
  std::unordered_map<std::string, LaidText> texts_;
  std::string key_;
};

}  // namespace tarnwick::looks
