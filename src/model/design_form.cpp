#include "model/design_form.h"

#include <algorithm>
#include <memory_resource>
#include <string_view>

#include "model/units.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::int32_t kFaceColor = 12632256;
constexpr std::int32_t kPaperColor = 16777215;
constexpr int kHandleCount = 8;

struct TemplateInfo {
  Kind Id;
  int Width;   ///< pixels
  int Height;  ///< pixels
  std::int32_t BackColor;
};

/// The templates in the order of the collection.
constexpr std::array<TemplateInfo, 19> kTemplates{{
    {Kind::Button, 75, 25, kFaceColor},        {Kind::Label, 65, 17, kFaceColor},
    {Kind::Image, 105, 105, kFaceColor},       {Kind::CheckBox, 97, 17, kFaceColor},
    {Kind::OptionButton, 97, 17, kFaceColor},  {Kind::TextBox, 121, 21, kPaperColor},
    {Kind::RichTextBox, 185, 89, kPaperColor}, {Kind::ListBox, 121, 97, kPaperColor},
    {Kind::ComboBox, 145, 21, kPaperColor},    {Kind::Time, 28, 28, kFaceColor},
    {Kind::OpenDialog, 28, 28, kFaceColor},    {Kind::SaveDialog, 28, 28, kFaceColor},
    {Kind::FileStream, 28, 28, kFaceColor},    {Kind::TransparentFrame, 105, 105, kFaceColor},
    {Kind::HtmlViewer, 185, 120, kPaperColor}, {Kind::WinSock, 28, 28, kFaceColor},
    {Kind::PopUpMenu, 28, 28, kFaceColor},     {Kind::Menu, 0, 0, kFaceColor},
    {Kind::MenuItem, 0, 0, kFaceColor},
}};

/// Controls stand side by side in memory: a walk over a large form meets them in their order. The
/// pool outlives them all, whoever holds the last of them.
std::pmr::polymorphic_allocator<DesignControl> ControlPool() {
  static auto* const pool = new std::pmr::unsynchronized_pool_resource(
      std::pmr::pool_options{.max_blocks_per_chunk = 256, .largest_required_pool_block = 512});
  return pool;
}

ControlRef MakeElement(Kind kind, int index, int width, int height, std::int32_t back_color) {
  auto control = std::allocate_shared<DesignControl>(ControlPool());
  control->Id = kind;
  control->Index = index;
  control->Width = static_cast<float>(width * kTwipsPerPixel);
  control->Height = static_cast<float>(height * kTwipsPerPixel);
  control->FontName = "MS Sans Serif";
  control->BackColor = back_color;
  return control;
}

}  // namespace

DesignForm::DesignForm() {
  const auto add = [this](const ControlRef& control) {
    controls_.push_back(control);
    arrays_[static_cast<std::size_t>(control->Id)].push_back(control);
  };
  for (const TemplateInfo& t : kTemplates) {
    add(MakeElement(t.Id, 0, t.Width, t.Height, t.BackColor));
  }
  add(MakeElement(Kind::Numero, 0, 0, 0, kFaceColor));
  add(MakeElement(Kind::Frame, 0, 105, 105, kFaceColor));
  for (int i = 0; i < kHandleCount; ++i) add(MakeElement(Kind::Handle, i, 7, 7, 0));
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
  auto control = std::allocate_shared<DesignControl>(ControlPool(), *elements.front());
  control->Index = static_cast<int>(elements.size());
  control->Visible = false;
  elements.push_back(control);
  draw_order_.push_back(control);
  return controls_.emplace_back(std::move(control));
}

void DesignForm::Unload(const ControlRef& control) {
  if (!control || control->Index == 0) return;
  // The caller's reference may be one of those erased below, and the last: by then only the place
  // of the control is asked for.
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
    if (control->Index > 0 && static_cast<std::size_t>(control->Id) < kObjectKindCount &&
        control->Tag == tag) {
      return control;
    }
  }
  return nullptr;
}

void DesignForm::ZOrder(const ControlRef& control, bool to_front) {
  const auto place = std::find(draw_order_.begin(), draw_order_.end(), control);
  if (place == draw_order_.end()) return;
  if (to_front) {
    std::rotate(place, place + 1, draw_order_.end());
  } else {
    std::rotate(draw_order_.begin(), place, place + 1);
  }
}

}  // namespace tarnwick
