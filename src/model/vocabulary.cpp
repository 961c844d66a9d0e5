#include "model/vocabulary.h"

#include "text/code_page.h"

namespace tarnwick {

namespace {

using enum Event;

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

std::span<const Event> NewFormEvents() noexcept {
  return kNewFormEvents;
}

std::span<const Event> NewObjectEvents() noexcept {
  return kNewObjectEvents;
}

}  // namespace tarnwick
