// Fonts and laid-out texts of design forms.
#pragma once

#include "looks/form_texts.h"
#include "model/design_control.h"

namespace tarnwick {

using looks::FormFont;
using looks::LaidText;
using looks::TextFlow;

/// The texts of the open forms, by what their controls say.
class TextCache : public looks::FormTexts {
 public:
  using looks::FormTexts::FontOf;
  [[nodiscard]] const FormFont& FontOf(const DesignControl& control) {
    return FontOf(looks::FontWish{control.FontName, control.FontSize, control.FontBold,
                                  control.FontItalic, control.FontUnderline,
                                  control.FontStrikethru});
  }
};

}  // namespace tarnwick
