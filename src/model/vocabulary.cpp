#include "model/vocabulary.h"

#include <algorithm>

#include "text/code_page.h"

namespace tarnwick {

namespace {

using enum Event;

constexpr std::array kFormEvents{OnClick,    OnClose, OnHint,      OnKeyDown,
                                 OnKeyPress, OnKeyUp, OnMouseDown, OnMouseMove,
                                 OnMouseUp,  OnPaint, OnResize,    OnShow};
constexpr std::array kButtonEvents{OnClick,     OnKeyDown,   OnKeyPress, OnKeyUp,
                                   OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kEditEvents{OnChange, OnKeyDown, OnKeyPress, OnKeyUp};
constexpr std::array kRichEvents{OnChange,    OnKeyDown,   OnKeyPress, OnKeyUp,
                                 OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kPictureEvents{OnClick, OnDblClick, OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kListEvents{OnClick, OnDblClick, OnEnter};
constexpr std::array kClickEvents{OnClick};
constexpr std::array kComboEvents{OnChange};
constexpr std::array kTimerEvents{OnTimer};
constexpr std::array kPopUpEvents{OnPopUp};

#define TARNWICK_KEY_ROWS                                                                     \
  "OnKeyDown (Key As Word, Shift As Integer)#OnKeyPress (Key As Byte)#OnKeyUp (Key As Word, " \
  "Shift As Integer)#"
#define TARNWICK_MOUSE_ROWS                                                        \
  "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)#" \
  "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)#"                 \
  "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)#"

constexpr std::size_t kEventListCount = 11;

const std::array<EventList, kEventListCount> kLists{{
    {{}, "", ""},
    {kFormEvents,
     "OnClick#OnClose (Action As Integer)#OnHint (Hint As String)#" TARNWICK_KEY_ROWS
         TARNWICK_MOUSE_ROWS "OnPaint#OnResize#OnShow#",
     "10#20#30#40#50#60#70#80#90#130#140#150#"},
    {kButtonEvents, "OnClick#" TARNWICK_KEY_ROWS TARNWICK_MOUSE_ROWS, "10#40#50#60#70#80#90#"},
    {kEditEvents, "OnChange#" TARNWICK_KEY_ROWS, "120#40#50#60#"},
    {kRichEvents, "OnChange#" TARNWICK_KEY_ROWS TARNWICK_MOUSE_ROWS, "120#40#50#60#70#80#90#"},
    {kPictureEvents, "OnClick#OnDblClick#" TARNWICK_MOUSE_ROWS, "10#110#70#80#90#"},
    {kListEvents, "OnClick#OnDblClick#OnEnter#", "10#110#100#"},
    {kClickEvents, "OnClick#", "10#"},
    {kComboEvents, "OnChange#", "120#"},
    {kTimerEvents, "OnTimer#", "160#"},
    {kPopUpEvents, "OnPopUp#", "170#"},
}};

#undef TARNWICK_KEY_ROWS
#undef TARNWICK_MOUSE_ROWS

constexpr std::array kNewFormEvents{OnTimer,     OnClick,     OnClose,   OnHint,     OnPaint,
                                    OnResize,    OnShow,      OnKeyDown, OnKeyPress, OnKeyUp,
                                    OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kNewObjectEvents{OnTimer,    OnClick, OnDblClick,  OnKeyDown,
                                      OnKeyPress, OnKeyUp, OnMouseDown, OnMouseMove,
                                      OnMouseUp,  OnEnter, OnChange};

}  // namespace

std::optional<Event> EventOfName(std::string_view name) noexcept {
  for (const EventInfo& info : kEvents) {
    if (EqualsFolded(info.Name, name)) return info.Id;
  }
  return std::nullopt;
}

std::optional<Event> EventOfCode(std::string_view code) noexcept {
  for (const EventInfo& info : kEvents) {
    if (info.Code == code) return info.Id;
  }
  return std::nullopt;
}

std::optional<Kind> KindOfTag(std::string_view tag) noexcept {
  if (tag.empty()) return std::nullopt;
  if (tag == "image") return Kind::Image;
  if (tag == "popupmenu") return Kind::PopUpMenu;
  const auto* const found =
      std::find_if(kKinds.begin(), kKinds.end(), [&](const KindInfo& k) { return k.Tag == tag; });
  if (found == kKinds.end()) return std::nullopt;
  return found->Id;
}

std::optional<Kind> KindOfFileWord(std::string_view word) noexcept {
  for (std::size_t i = 0; i < kObjectKindCount; ++i) {
    if (EqualsFolded(kKinds[i].Name, word)) return kKinds[i].Id;
  }
  return std::nullopt;
}

const EventList& ListOf(EventListId id) noexcept {
  return kLists[static_cast<std::size_t>(id)];
}

const EventList& EventListOfTag(std::string_view tag) noexcept {
  const std::optional<Kind> kind = KindOfTag(tag);
  return ListOf(kind ? InfoOf(*kind).Events : EventListId::None);
}

std::span<const Event> NewFormEvents() noexcept {
  return kNewFormEvents;
}

std::span<const Event> NewObjectEvents() noexcept {
  return kNewObjectEvents;
}

}  // namespace tarnwick
