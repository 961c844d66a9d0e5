// Fonts and laid-out texts of design forms.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QStaticText>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "model/design_control.h"

namespace tarnwick {

/// A font as the generated program's screen has it: points at 96 to the inch, so that a form looks
/// the same on every screen.
struct FormFont {
  QFont Font;
  QFontMetrics Metrics;
  int Id = 0;
};

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
class TextCache {
 public:
  [[nodiscard]] const FormFont& FontOf(const DesignControl& control);
  [[nodiscard]] const FormFont& FontOf(std::string_view name, float points, bool bold, bool italic,
                                       bool underline, bool strikethru);
  /// The layout of a text of the code page; `width` counts only where the text wraps.
  [[nodiscard]] const LaidText& Lay(std::string_view text, const FormFont& font, TextFlow flow,
                                    int width);

 private:
  std::unordered_map<std::string, std::unique_ptr<FormFont>> fonts_;
  std::unordered_map<std::string, LaidText> texts_;
  std::string key_;
};

}  // namespace tarnwick
