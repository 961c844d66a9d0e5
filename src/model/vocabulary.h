// The closed vocabulary of events. Every word is written here once.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "text/enum_table.h"

namespace tarnwick {

/// Events, in the order in which generator and member list walk them; OnPopUp is not among them.
enum class Event : std::uint8_t {
  OnTimer,
  OnClick,
  OnClose,
  OnChange,
  OnEnter,
  OnDblClick,
  OnHint,
  OnKeyDown,
  OnKeyPress,
  OnKeyUp,
  OnMouseDown,
  OnMouseMove,
  OnMouseUp,
  OnPaint,
  OnResize,
  OnShow,
  OnPopUp,
};
inline constexpr std::size_t kEventCount = static_cast<std::size_t>(Event::OnPopUp) + 1;
/// The events from OnTimer to OnShow: those the generator walks.
inline constexpr std::size_t kWalkedEventCount = static_cast<std::size_t>(Event::OnPopUp);

struct EventInfo {
  Event Id;
  std::string_view Code;       ///< decimal text
  std::string_view Name;       ///< "OnClick"
  std::string_view Suffix;     ///< ".OnClick"
  std::string_view Signature;  ///< Sub header text, parameters included
};

/// All events by enumerator.
inline constexpr std::array<EventInfo, kEventCount> kEvents{{
    {Event::OnTimer, "160", "OnTimer", ".OnTimer", "OnTimer"},
    {Event::OnClick, "10", "OnClick", ".OnClick", "OnClick"},
    {Event::OnClose, "20", "OnClose", ".OnClose", "OnClose (Action As Integer)"},
    {Event::OnChange, "120", "OnChange", ".OnChange", "OnChange"},
    {Event::OnEnter, "100", "OnEnter", ".OnEnter", "OnEnter"},
    {Event::OnDblClick, "110", "OnDblClick", ".OnDblClick", "OnDblClick"},
    {Event::OnHint, "30", "OnHint", ".OnHint", "OnHint (Hint As String)"},
    {Event::OnKeyDown, "40", "OnKeyDown", ".OnKeyDown",
     "OnKeyDown (Key As Word, Shift As Integer)"},
    {Event::OnKeyPress, "50", "OnKeyPress", ".OnKeyPress", "OnKeyPress (Key As Byte)"},
    {Event::OnKeyUp, "60", "OnKeyUp", ".OnKeyUp", "OnKeyUp (Key As Word, Shift As Integer)"},
    {Event::OnMouseDown, "70", "OnMouseDown", ".OnMouseDown",
     "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)"},
    {Event::OnMouseMove, "80", "OnMouseMove", ".OnMouseMove",
     "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)"},
    {Event::OnMouseUp, "90", "OnMouseUp", ".OnMouseUp",
     "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)"},
    {Event::OnPaint, "130", "OnPaint", ".OnPaint", "OnPaint"},
    {Event::OnResize, "140", "OnResize", ".OnResize", "OnResize"},
    {Event::OnShow, "150", "OnShow", ".OnShow", "OnShow"},
    {Event::OnPopUp, "170", "OnPopUp", ".OnPopUp", "OnPopUp"},
}};
static_assert(HasRowOfEach(kEvents, kEventCount));

[[nodiscard]] constexpr const EventInfo& InfoOf(Event event) noexcept {
  return kEvents[static_cast<std::size_t>(event)];
}
[[nodiscard]] constexpr std::span<const EventInfo, kEventCount> AllEvents() noexcept {
  return kEvents;
}
/// The bit of an event in a set of them.
[[nodiscard]] constexpr unsigned long BitOf(Event event) noexcept {
  return 1UL << static_cast<unsigned>(event);
}
/// The event of a name without regard to case ("onclick").
[[nodiscard]] std::optional<Event> EventOfName(std::string_view name) noexcept;
/// The event of a code such as "120".
[[nodiscard]] std::optional<Event> EventOfCode(std::string_view code) noexcept;

enum class EventListId : std::uint8_t {
  None,
  Form,
  Button,
  Edit,
  Rich,
  Picture,
  List,
  Click,
  Combo,
  Timer,
  PopUp,
};
inline constexpr std::size_t kEventListCount = static_cast<std::size_t>(EventListId::PopUp) + 1;

/// An event list of a kind: its events, and in their order the signature texts and the codes, each
/// followed by "#".
struct EventList {
  EventListId Id;
  std::span<const Event> Events;
  std::string_view Signatures;
  std::string_view Codes;
};

namespace event_lists {

using enum Event;

inline constexpr std::array<Event, 0> kNone{};
inline constexpr std::array kForm{OnClick,    OnClose, OnHint,      OnKeyDown,
                                  OnKeyPress, OnKeyUp, OnMouseDown, OnMouseMove,
                                  OnMouseUp,  OnPaint, OnResize,    OnShow};
inline constexpr std::array kButton{OnClick,     OnKeyDown,   OnKeyPress, OnKeyUp,
                                    OnMouseDown, OnMouseMove, OnMouseUp};
inline constexpr std::array kEdit{OnChange, OnKeyDown, OnKeyPress, OnKeyUp};
inline constexpr std::array kRich{OnChange,    OnKeyDown,   OnKeyPress, OnKeyUp,
                                  OnMouseDown, OnMouseMove, OnMouseUp};
inline constexpr std::array kPicture{OnClick, OnDblClick, OnMouseDown, OnMouseMove, OnMouseUp};
inline constexpr std::array kList{OnClick, OnDblClick, OnEnter};
inline constexpr std::array kClick{OnClick};
inline constexpr std::array kCombo{OnChange};
inline constexpr std::array kTimer{OnTimer};
inline constexpr std::array kPopUp{OnPopUp};

/// The events of the generator's walk, and those of a form without OnKeyPress.
inline constexpr std::array kWalked = [] {
  std::array<Event, kWalkedEventCount> events{};
  for (std::size_t i = 0; i < events.size(); ++i) events[i] = kEvents[i].Id;
  return events;
}();
inline constexpr std::array kShortForm = [] {
  std::array<Event, kForm.size() - 1> events{};
  std::copy_if(kForm.begin(), kForm.end(), events.begin(),
               [](Event event) { return event != OnKeyPress; });
  return events;
}();

/// The texts of some events, each followed by "#".
template <const auto& events, std::string_view EventInfo::*text>
inline constexpr auto kJoined = [] {
  constexpr std::size_t size = [] {
    std::size_t sum = 0;
    for (const Event event : events) sum += (InfoOf(event).*text).size() + 1;
    return sum;
  }();
  std::array<char, size> joined{};
  auto at = joined.begin();
  for (const Event event : events) {
    at = std::copy((InfoOf(event).*text).begin(), (InfoOf(event).*text).end(), at);
    *at++ = '#';
  }
  return joined;
}();
template <const auto& events, std::string_view EventInfo::*text>
inline constexpr std::string_view kTextOf{kJoined<events, text>.data(),
                                          kJoined<events, text>.size()};

template <const auto& events>
constexpr EventList List(EventListId id) noexcept {
  return {id, events, kTextOf<events, &EventInfo::Signature>, kTextOf<events, &EventInfo::Code>};
}

/// The same without the last "#".
template <const auto& events>
inline constexpr std::string_view kNames = [] {
  std::string_view names = kTextOf<events, &EventInfo::Name>;
  names.remove_suffix(1);
  return names;
}();

/// The lists by enumerator.
inline constexpr std::array<EventList, kEventListCount> kLists{{
    List<kNone>(EventListId::None),
    List<kForm>(EventListId::Form),
    List<kButton>(EventListId::Button),
    List<kEdit>(EventListId::Edit),
    List<kRich>(EventListId::Rich),
    List<kPicture>(EventListId::Picture),
    List<kList>(EventListId::List),
    List<kClick>(EventListId::Click),
    List<kCombo>(EventListId::Combo),
    List<kTimer>(EventListId::Timer),
    List<kPopUp>(EventListId::PopUp),
}};
static_assert(HasRowOfEach(kLists, kEventListCount));

}  // namespace event_lists

[[nodiscard]] constexpr const EventList& ListOf(EventListId id) noexcept {
  return event_lists::kLists[static_cast<std::size_t>(id)];
}

/// Events of the member list of the code editor, OnTimer first, no OnPopUp.
inline constexpr std::string_view kMemberEventNames =
    event_lists::kTextOf<event_lists::kWalked, &EventInfo::Name>;
/// Short list for forms; OnKeyPress is missing in it.
inline constexpr std::string_view kShortFormEventNames =
    event_lists::kNames<event_lists::kShortForm>;
/// Short list for objects.
inline constexpr std::string_view kShortObjectEventNames =
    event_lists::kNames<event_lists::kButton>;

/// The events whose entries a new form gets, in the order of adding. OnTimer is among them though
/// no form ever raises it.
[[nodiscard]] std::span<const Event> NewFormEvents() noexcept;
/// The events whose entries a new object of any kind gets.
[[nodiscard]] std::span<const Event> NewObjectEvents() noexcept;

}  // namespace tarnwick
