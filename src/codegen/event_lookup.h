// Event code by the keys that the generator builds: form, kind and running number, or item name.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <string>
#include <string_view>

#include "model/event_table.h"
#include "model/kinds.h"

namespace tarnwick {

/// Events of a form that become a Sub.
inline constexpr std::array kFormSubEvents{Event::OnClick,     Event::OnClose,     Event::OnHint,
                                           Event::OnKeyDown,   Event::OnKeyPress,  Event::OnKeyUp,
                                           Event::OnMouseDown, Event::OnMouseMove, Event::OnMouseUp,
                                           Event::OnPaint,     Event::OnResize,    Event::OnShow};
/// Events of a form that get a hook. OnTimer is among them though it has no Sub.
inline constexpr std::array kFormHookEvents{
    Event::OnTimer,    Event::OnClick,  Event::OnClose,     Event::OnHint,      Event::OnKeyDown,
    Event::OnKeyPress, Event::OnKeyUp,  Event::OnMouseDown, Event::OnMouseMove, Event::OnMouseUp,
    Event::OnPaint,    Event::OnResize, Event::OnShow};
/// Events of an object, for Subs and hooks alike.
inline constexpr std::array kObjectEvents{Event::OnTimer,     Event::OnClick,    Event::OnChange,
                                          Event::OnEnter,     Event::OnDblClick, Event::OnKeyDown,
                                          Event::OnKeyPress,  Event::OnKeyUp,    Event::OnMouseDown,
                                          Event::OnMouseMove, Event::OnMouseUp};

/// The code of an owner's events. No entry reads as empty code.
class OwnerCode {
 public:
  OwnerCode() = default;
  explicit OwnerCode(const EventCodeTable::Owner* owner) : owner_(owner) {
    if (owner != nullptr) filled_ = owner->FilledEvents();
  }
  [[nodiscard]] std::string_view Of(Event event) const noexcept {
    if (!filled_.test(static_cast<std::size_t>(event))) return {};
    return *owner_->Find(event);
  }
  /// Calls `use(event, code)` for each of `events` that has code, in their order.
  template <const auto& events, class Use>
  void ForEach(Use use) const {
    static_assert(std::is_sorted(events.begin(), events.end()));
    constexpr unsigned long wanted = [] {
      unsigned long bits = 0;
      for (const Event event : events) bits |= BitOf(event);
      return bits;
    }();
    for (unsigned long left = filled_.to_ulong() & wanted; left != 0; left &= left - 1) {
      const auto event = static_cast<Event>(std::countr_zero(left));
      use(event, std::string_view(*owner_->Find(event)));
    }
  }

 private:
  const EventCodeTable::Owner* owner_ = nullptr;
  EventSet filled_;
};

/// Looks code up for one form at a time. Keys are built in one buffer that is used again.
class EventLookup {
 public:
  explicit EventLookup(const EventCodeTable& table) noexcept : table_(table) {}
  void SetForm(int form);

  /// Code of the form itself.
  [[nodiscard]] OwnerCode OfForm();
  /// Code of the object with this running number in its kind.
  [[nodiscard]] OwnerCode OfObject(Kind kind, int ordinal);
  /// OnClick code of a menu or popup item.
  [[nodiscard]] std::string_view OnClickOf(std::string_view item);
  /// OnPopUp code of a popup menu: under its name or else under its array name and number, which
  /// is where editor and reader put it.
  [[nodiscard]] std::string_view OnPopUpOf(std::string_view name, int number);

 private:
  [[nodiscard]] const EventCodeTable::Owner* OwnerBehindDot(std::string_view name);
  [[nodiscard]] static std::string_view CodeOf(const EventCodeTable::Owner* owner, Event event);

  const EventCodeTable& table_;
  int form_ = 0;
  std::string key_;
  std::size_t form_size_ = 0;  ///< length of "Form3" at the head of the buffer
};

}  // namespace tarnwick
