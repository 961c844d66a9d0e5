#include "designer/selection.h"

#include <algorithm>

#include "text/numbers.h"

namespace tarnwick {

bool IsObject(const DesignControl& control) noexcept {
  return InfoOf(control.Id).Placed && control.Index > 0;
}

std::string NameObjetOf(const DesignControl& control) {
  if (control.Class() == ControlClass::Menu) return control.Tag;
  std::string name(InfoOf(control.Id).NameWord);
  if (!InfoOf(control.Id).OnePerForm) AppendNumber(name, std::int64_t{control.Index});
  return name;
}

void Select(DesignForm& form, const ControlRef& control) {
  if (!control) {
    form.ControlSel = nullptr;
    form.NameObjet = InfoOf(Kind::Form).NameWord;
    form.IndexObjet = 0;
    return;
  }
  form.ControlSel = IsObject(*control) ? control : nullptr;
  form.NameObjet = NameObjetOf(*control);
  form.IndexObjet = static_cast<std::int16_t>(control->Index);
}

ControlRef NeighbourOf(const DesignForm& form, const ControlRef& control, bool forward) {
  ControlRef first;
  ControlRef last;
  ControlRef before;
  ControlRef after;
  bool passed = false;
  for (const ControlRef& candidate : form.Controls()) {
    if (candidate == control) {
      passed = true;
      continue;
    }
    if (!candidate->Visible || !IsObject(*candidate)) continue;
    if (!first) first = candidate;
    last = candidate;
    if (!passed) before = candidate;
    if (passed && !after) after = candidate;
  }
  if (!passed || !control) return forward ? first : last;
  if (forward) return after ? after : (first ? first : control);
  return before ? before : (last ? last : control);
}

bool HasTransparentFrame(const DesignForm& form) noexcept {
  return form.HasObjects(Kind::TransparentFrame);
}

}  // namespace tarnwick
