#include "model/design_form.h"

#include <algorithm>
#include <string_view>

#include "model/units.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

ControlRef MakeElement(const KindInfo& kind, int index) {
  auto control = std::make_shared<DesignControl>();
  control->Id = kind.Id;
  control->Index = index;
  control->Width = static_cast<float>(kind.Template.Width * kTwipsPerPixel);
  control->Height = static_cast<float>(kind.Template.Height * kTwipsPerPixel);
  control->FontName = "MS Sans Serif";
  control->BackColor = kind.Template.BackColor;
  return control;
}

}  // namespace

DesignForm::~DesignForm() = default;

DesignForm::DesignForm() {
  for (const KindInfo& kind : AllKinds()) {
    for (int i = 0; i < kind.Template.Elements; ++i) {
      const ControlRef& control = controls_.emplace_back(MakeElement(kind, i));
      arrays_[static_cast<std::size_t>(kind.Id)].push_back(control);
    }
  }
  part_count_ = controls_.size();
}

int DesignForm::Number() const noexcept {
  const ControlRef& label = arrays_[static_cast<std::size_t>(Kind::Numero)].front();
  return ToInt16(Val(Trim(label->Caption))).value_or(0);
}

void DesignForm::SetNumber(int number) {
  arrays_[static_cast<std::size_t>(Kind::Numero)].front()->Caption =
      NumberText(std::int64_t{number});
}

std::string DesignForm::KeyPrefix() const {
  return "Form" + NumberText(std::int64_t{Number()});
}

const ControlRef& DesignForm::Load(Kind kind) {
  auto& elements = arrays_[static_cast<std::size_t>(kind)];
  auto control = std::make_shared<DesignControl>(*elements.front());
  control->Index = static_cast<int>(elements.size());
  control->Visible = false;
  elements.push_back(control);
  draw_order_.push_back(control);
  return controls_.emplace_back(std::move(control));
}

void DesignForm::Unload(const ControlRef& control) {
  if (!control || control->Index == 0) return;
  // The caller's reference may be one of those erased below, and the last: by then only the address
  // of the control is used.
  const DesignControl* const gone = control.get();
  const auto index = static_cast<std::size_t>(control->Index);
  auto& elements = arrays_[static_cast<std::size_t>(control->Id)];
  const auto is_gone = [gone](const ControlRef& c) { return c.get() == gone; };
  std::erase_if(controls_, is_gone);
  std::erase_if(draw_order_, is_gone);
  if (index < elements.size() && is_gone(elements[index])) elements[index] = nullptr;
  while (elements.size() > 1 && !elements.back()) elements.pop_back();
  if (is_gone(ControlSel)) ControlSel = nullptr;
}

void DesignForm::UnloadAll(Kind kind) {
  const auto of_kind = [kind](const ControlRef& c) { return c->Id == kind && c->Index > 0; };
  std::erase_if(controls_, of_kind);
  std::erase_if(draw_order_, of_kind);
  auto& elements = arrays_[static_cast<std::size_t>(kind)];
  elements.resize(1);
  if (ControlSel && of_kind(ControlSel)) ControlSel = nullptr;
}

void DesignForm::Arrange(std::vector<ControlRef> objects, std::vector<ControlRef> drawn) {
  controls_.resize(part_count_);
  for (auto& elements : arrays_) {
    if (!elements.empty() && elements.front()->Id != Kind::Handle) elements.resize(1);
  }
  for (ControlRef& object : objects) {
    auto& elements = arrays_[static_cast<std::size_t>(object->Id)];
    const auto index = static_cast<std::size_t>(object->Index);
    if (index >= elements.size()) elements.resize(index + 1);
    elements[index] = object;
    controls_.push_back(std::move(object));
  }
  draw_order_ = std::move(drawn);
  if (ControlSel && Element(ControlSel->Id, ControlSel->Index) != ControlSel) ControlSel = nullptr;
}

void DesignForm::CloseGap(Kind kind, int index) {
  auto& elements = arrays_[static_cast<std::size_t>(kind)];
  const auto gap = static_cast<std::size_t>(index);
  if (index < 1 || gap >= elements.size() || elements[gap]) return;
  elements.erase(elements.begin() + index);
  for (std::size_t i = gap; i < elements.size(); ++i) {
    if (elements[i]) elements[i]->Index = static_cast<int>(i);
  }
}

ControlRef DesignForm::Element(Kind kind, int index) const noexcept {
  const auto& elements = arrays_[static_cast<std::size_t>(kind)];
  if (index < 0 || static_cast<std::size_t>(index) >= elements.size()) return nullptr;
  return elements[static_cast<std::size_t>(index)];
}

int DesignForm::UBound(Kind kind) const noexcept {
  const auto& elements = arrays_[static_cast<std::size_t>(kind)];
  return elements.empty() ? 0 : static_cast<int>(elements.size()) - 1;
}

ControlRef DesignForm::FirstOf(Kind kind) const noexcept {
  const auto& elements = arrays_[static_cast<std::size_t>(kind)];
  for (std::size_t i = 1; i < elements.size(); ++i) {
    if (elements[i]) return elements[i];
  }
  return nullptr;
}

bool DesignForm::MenuBarVisible() const noexcept {
  const auto& titles = arrays_[static_cast<std::size_t>(Kind::Menu)];
  return std::any_of(titles.begin() + 1, titles.end(),
                     [](const ControlRef& c) { return c && c->Visible; });
}

ControlRef DesignForm::FindByTag(std::string_view tag) const noexcept {
  for (const ControlRef& control : controls_) {
    if (control->Index > 0 && IsObjectKind(control->Id) && control->Tag == tag) {
      return control;
    }
  }
  return nullptr;
}

void DesignForm::ZOrder(const ControlRef& control, bool to_front) {
  const auto found = std::find(draw_order_.begin(), draw_order_.end(), control);
  if (found == draw_order_.end()) return;
  if (to_front) {
    std::rotate(found, found + 1, draw_order_.end());
  } else {
    std::rotate(draw_order_.begin(), found, found + 1);
  }
}

}  // namespace tarnwick
