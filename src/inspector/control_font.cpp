#include "inspector/control_font.h"

#include <optional>
#include <variant>

namespace tarnwick {

namespace {

template <class T>
void GetMember(const DesignControl& control, Member member, T& field) {
  const std::optional<MemberValue> value = control.Get(member);
  if (!value) return;
  if (const T* held = std::get_if<T>(&*value)) field = *held;
}

}  // namespace

FontChoice FontOf(const DesignControl& control) {
  FontChoice font;
  GetMember(control, Member::FontName, font.Name);
  GetMember(control, Member::FontSize, font.Size);
  GetMember(control, Member::FontBold, font.Bold);
  GetMember(control, Member::FontItalic, font.Italic);
  return font;
}

}  // namespace tarnwick
