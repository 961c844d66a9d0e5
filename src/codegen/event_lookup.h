// Event code by the keys that the generator builds: form, kind and running number, or item name.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

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
  explicit OwnerCode(const EventCodeTable::Owner* owner) : owner_(owner) {}

  [[nodiscard]] std::string_view Of(Event event) const noexcept {
    const std::string* const code = owner_ == nullptr ? nullptr : owner_->Find(event);
    return code == nullptr ? std::string_view() : std::string_view(*code);
  }
  /// Calls `use(event, code)` for each of `events` that has code, in their order.
  template <class Use>
  void ForEach(std::span<const Event> events, Use use) const {
    if (owner_ == nullptr || !owner_->HasCode()) return;
    for (const Event event : events) {
      const std::string_view code = Of(event);
      if (!code.empty()) use(event, code);
    }
  }

 private:
  const EventCodeTable::Owner* owner_ = nullptr;
};

/// Looks up code for one form at a time. The table must not change meanwhile.
class EventLookup {
 public:
  explicit EventLookup(const EventCodeTable& table);
  void SetForm(int form) noexcept { form_ = form; }

  /// Code of the form itself.
  [[nodiscard]] OwnerCode OfForm() const;
  /// Code of the object with this running number in its kind.
  [[nodiscard]] OwnerCode OfObject(Kind kind, int ordinal);
  /// OnClick code of a menu or popup item.
  [[nodiscard]] std::string_view OnClickOf(std::string_view item) const;
  /// OnPopUp code of a popup menu: under its name or else under its array name and number, which
  /// is where editor and reader put it.
  [[nodiscard]] std::string_view OnPopUpOf(std::string_view name, int number);

 private:
  /// Code under a name of the user's choice.
  [[nodiscard]] OwnerCode OfName(std::string_view name) const;

  /// The owners of one kind that have code, by form and number. Most objects have none, and the
  /// walks over a form ask for its objects in their order.
  struct OwnersOfKind {
    struct Row {
      std::uint64_t Place;  ///< form number, then number of the object
      const EventCodeTable::Owner* Owner;
    };
    std::vector<Row> Rows;  ///< sorted by Place
    std::size_t Next = 0;   ///< the row behind the last one found
  };

  const EventCodeTable& table_;
  int form_ = 0;
  std::array<OwnersOfKind, kKindCount> owners_;
};

}  // namespace tarnwick
