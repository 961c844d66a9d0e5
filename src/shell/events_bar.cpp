#include "shell/events_bar.h"

#include <algorithm>
#include <unordered_set>

#include "shell/design_surfaces.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kDefaultCaption = "Procedures...";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The menu control that an item's name stands for; null for an item of a popup menu.
ControlRef MenuControlOf(const DesignForm& form, std::string_view name) {
  for (const Kind kind : {Kind::MenuItem, Kind::Menu}) {
    for (const ControlRef& control : form.Elements(kind)) {
      const bool shown = control != nullptr && control->Index > 0 && control->Visible;
      if (shown && EqualsFolded(control->Tag, name)) return control;
    }
  }
  return nullptr;
}

bool HoldsItem(const PopUpFormRec& popup, std::string_view name) {
  const auto named = [&](const auto& row) { return EqualsFolded(row.Name, name); };
  return std::any_of(popup.Items.begin(), popup.Items.end(), [&](const PopUpMenuRec& row) {
    return named(row) || std::any_of(row.Entries.begin(), row.Entries.end(), named);
  });
}

}  // namespace

BarPlace SpotOnBar(int number, int bar_width, int side) noexcept {
  const int in_a_row = std::max(1, bar_width / std::max(1, side));
  return {number % in_a_row * side, number / in_a_row * side};
}

EventsBar::Target EventsBar::TargetOf(std::string_view name) {
  if (EqualsFolded(name, InfoOf(Kind::Form).Name)) return {Kind::Form, 0, "Form"};
  const auto digits = static_cast<std::size_t>(
      std::find_if_not(name.rbegin(), name.rend(), IsDigit) - name.rbegin());
  const std::string_view word = name.substr(0, name.size() - digits);
  const std::optional<Kind> kind = KindOfTag(Lower(word));
  const auto index = ToInt16(Val(name.substr(word.size())));
  const bool object = kind && IsObjectKind(*kind) && InfoOf(*kind).Events != EventListId::None &&
                      digits > 0 && index;
  if (!object) return {std::nullopt, 0, std::string(name)};
  Target target{kind, *index, std::string(InfoOf(*kind).Array)};
  AppendNumber(target.Tag, std::int64_t{*index});
  return target;
}

std::vector<Event> EventsBar::EventsOf(const Target& target) {
  if (!target.Id) return {Event::OnClick};
  if (*target.Id != Kind::Form) {
    const auto& events = ListOf(InfoOf(*target.Id).Events).Events;
    return {events.begin(), events.end()};
  }
  std::vector<Event> events;
  for (const std::string_view name : Split(kShortFormEventNames, "#")) {
    if (const auto event = EventOfName(name)) events.push_back(*event);
  }
  return events;
}

std::string EventsBar::KeyPrefix(int form, const Target& target) {
  std::string prefix = "Form";
  AppendNumber(prefix, std::int64_t{form});
  if (target.Id != Kind::Form) prefix.append(".").append(target.Tag);
  return prefix;
}

std::string EventsBar::TipOf(int form, const Target& target) const {
  if (target.Id == Kind::Form) {
    const FormRec* record = state_.Tables.Form(form);
    return record != nullptr ? record->Name : target.Tag;
  }
  const DesignForm* window = state_.Tables.UserIfAny(form);
  if (!target.Id || window == nullptr) return target.Tag;
  const ControlRef control = window->Element(*target.Id, target.Index);
  return control != nullptr ? control->Tag : target.Tag;
}

int EventsBar::CurrentForm() const {
  const DesignForm* form = state_.Tables.CurrentForm;
  return form == nullptr ? 0 : form->Number();
}

std::string EventsBar::Caption(int form) const {
  const FrmBarra* bar = state_.Tables.Bar(form);
  return bar == nullptr || bar->Caption.empty() ? std::string(kDefaultCaption) : bar->Caption;
}

std::vector<BarButton> EventsBar::btncodigo(int form) const {
  std::vector<BarButton> buttons;
  const FrmBarra* bar = state_.Tables.Bar(form);
  if (bar == nullptr) return buttons;
  std::unordered_set<std::string_view, FoldedHash, FoldedEqual> met;
  for (const FrmBarra::Entry& entry : bar->Entries) {
    if (!met.insert(entry.Name).second) continue;
    Target target = TargetOf(entry.Name);
    std::string tip = TipOf(form, target);
    buttons.push_back({std::move(target.Tag), std::move(tip), target.Id.value_or(Kind::Menu)});
  }
  return buttons;
}

void EventsBar::PopBoockMarck(int form, std::string_view name) {
  FrmBarra* bar = state_.Tables.Bar(form);
  if (bar == nullptr) return;
  const Target target = TargetOf(name);
  for (const FrmBarra::Entry& entry : bar->Entries) {
    if (EqualsFolded(entry.Name, target.Tag)) return;
  }
  std::vector<std::string> events = EventsWithCode(form, target);
  bar->Entries.push_back({target.Tag, events.empty() ? std::string() : std::move(events.front())});
  state_.Observer.EventsBarChanged(form);
}

void EventsBar::DelBoockMarck(int form, std::string_view name) {
  const Target target = TargetOf(name);
  if (EventsWithCode(form, target).empty()) RemoveButton(form, target);
}

void EventsBar::RemoveButton(int form, const Target& target) {
  FrmBarra* bar = state_.Tables.Bar(form);
  if (bar == nullptr) return;
  const auto gone = std::erase_if(bar->Entries, [&](const FrmBarra::Entry& entry) {
    return EqualsFolded(entry.Name, target.Tag);
  });
  if (gone > 0) state_.Observer.EventsBarChanged(form);
}

std::vector<std::string> EventsBar::EventsWithCode(int form, const Target& target) const {
  std::vector<std::string> names;
  const auto* owner = state_.Tables.EventTable.OwnerOf(KeyPrefix(form, target));
  if (owner == nullptr) return names;
  for (const Event event : EventsOf(target)) {
    const std::string* code = owner->Find(event);
    if (code != nullptr && !code->empty()) names.emplace_back(InfoOf(event).Name);
  }
  return names;
}

void EventsBar::btncodigo_Click(std::string_view tag) {
  rows_.clear();
  const DesignForm* form = state_.Tables.CurrentForm;
  if (form == nullptr || state_.RaiseOpenCode()) return;
  const Target target = TargetOf(tag);
  pressed_ = target.Tag;
  if (Select(form->Number(), target)) rows_ = EventsWithCode(form->Number(), target);
}

bool EventsBar::Select(int form, const Target& target) {
  FormUser* surface = surfaces_.Of(form);
  if (surface == nullptr) return false;
  jumps_by_key_ = false;
  if (target.Id == Kind::Form) {
    surface->SelectForm();
    return true;
  }
  if (target.Id) {
    const ControlRef control = surface->Form().Element(*target.Id, target.Index);
    if (control == nullptr || !control->Visible) {
      jumps_by_key_ = true;
      surface->SelectForm();
      return true;
    }
    surface->SelectObject(control);
    return surface->Form().ControlSel == control;
  }
  if (const ControlRef item = MenuControlOf(surface->Form(), target.Tag)) {
    surface->SelectMenuItem(item);
  } else {
    jumps_by_key_ = true;
    SelectOwnerOf(form, target.Tag);
  }
  return true;
}

void EventsBar::SelectOwnerOf(int form, std::string_view popup_item) {
  FormUser& surface = *surfaces_.Of(form);
  for (const ControlRef& control : surface.Form().Elements(Kind::PopUpMenu)) {
    if (control == nullptr || control->Index == 0) continue;
    const PopUpFormRec* popup = state_.Tables.PopUpMenus.At(control->Index);
    if (popup == nullptr || !HoldsItem(*popup, popup_item)) continue;
    surface.SelectObject(control);
    return;
  }
  surface.SelectForm();
}

void EventsBar::btnCDeclare_Click() {
  rows_.assign(1, std::string(kPublicDeclarations));
}

void EventsBar::ProssItem_Click(int row) {
  if (row < 0 || static_cast<std::size_t>(row) >= rows_.size()) return;
  const std::string caption = rows_[static_cast<std::size_t>(row)];
  if (caption == kPublicDeclarations) {
    state_.Run(Command::PublicDeclarations);
    return;
  }
  const DesignForm* form = state_.Tables.CurrentForm;
  const std::optional<Event> event = EventOfName(caption);
  if (form == nullptr || !event) return;
  const Target target = TargetOf(pressed_);
  const std::string prefix = KeyPrefix(form->Number(), target);
  if (target.Id && jumps_by_key_) {
    state_.Tables.JumpKey = prefix + std::string(InfoOf(*event).Suffix);
    state_.Run(Command::Code);
    return;
  }
  // A popup menu has no other event than OnPopUp, so there is nothing to remember or to jump to.
  if (*event != Event::OnPopUp) {
    const EventInfo& info = InfoOf(*event);
    state_.Settings.WriteEventIndex("EventsIndex", prefix, info.Code);
    state_.Settings.WriteEventIndex("Events", prefix, info.Suffix);
    state_.Tables.JumpKey = jumps_by_key_ ? prefix : std::string(info.Name);
  }
  state_.Run(Command::Code);
}

}  // namespace tarnwick
