// `EventTable`: the code of every event of every form, object and menu item.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/kinds.h"
#include "text/code_page.h"

namespace tarnwick {

/// Events by enumerator.
using EventSet = std::bitset<kEventCount>;

/// An object by what its key is made of: "Form1.Button2". No number is negative.
struct ObjectPlace {
  int Form = 0;
  Kind Id = Kind::Button;
  int Number = 0;
};

/// A keyed collection of texts; keys are unique and compare without regard to case. A key is an
/// owner ("Form1.Button2") and an event suffix (".OnClick"). The entries of one owner stand
/// together, so a walk over all events of an object costs one look-up:
///
///   if (const auto* owner = table.OwnerOf("Form1.Button2"))
///     if (const std::string* code = owner->Find(Event::OnClick)) ...
class EventCodeTable {
  /// The places of an owner's entries: its events, and one for a key that ends in no event.
  using SlotSet = std::bitset<kEventCount + 1>;
  /// The text of an entry that is not empty, or once was, and the one its owner got before.
  struct Code {
    std::string Text;
    Code* Before;
    std::size_t Slot;
  };

 public:
  /// All entries of one owner.
  class Owner {
   public:
    /// The code of an event; null when there is no entry.
    [[nodiscard]] const std::string* Find(Event event) const noexcept;
    /// The events with an entry that is not empty, for callers that ask for many of one owner.
    [[nodiscard]] EventSet FilledEvents() const noexcept { return {filled_.to_ulong()}; }

   private:
    friend class EventCodeTable;
    [[nodiscard]] Code* CodeOf(std::size_t slot) const noexcept;
    [[nodiscard]] const std::string* FindSlot(std::size_t slot) const noexcept;

    ObjectPlace place_;                  ///< of an object; of no meaning where there is a name
    const std::string* name_ = nullptr;  ///< the key of any other owner
    // Nearly all entries are empty, so those are bits alone.
    SlotSet present_;
    SlotSet filled_;
    Code* last_code_ = nullptr;
  };

  EventCodeTable() = default;
  EventCodeTable(const EventCodeTable&) = delete;
  EventCodeTable& operator=(const EventCodeTable&) = delete;
  EventCodeTable(EventCodeTable&&) noexcept = default;
  EventCodeTable& operator=(EventCodeTable&&) noexcept = default;
  ~EventCodeTable() = default;

  /// The entry of a key; null when there is none. Valid until the table changes.
  [[nodiscard]] const std::string* Find(std::string_view key) const noexcept;
  /// All entries under an owner's key; null when there never was one.
  [[nodiscard]] const Owner* OwnerOf(std::string_view owner) const noexcept {
    return OwnerAt(NumberOf(owner));
  }
  /// All entries under an owner's key, for adding several; the owner is made where it is missing.
  /// Stays valid until another one is made.
  Owner& OwnerFor(std::string_view key);
  /// The same for an object.
  [[nodiscard]] const Owner* OwnerOf(const ObjectPlace& object) const noexcept {
    return OwnerAt(NumberOf(object));
  }
  Owner& OwnerFor(const ObjectPlace& object);
  /// Adds an entry of an owner of this table; false, and nothing changed, when it is there.
  bool Add(Owner& owner, Event event, std::string_view value) {
    return Add(owner, static_cast<std::uint8_t>(event), value);
  }
  /// Adds an empty entry for each of `events` that has none yet.
  static void AddEmpty(Owner& owner, EventSet events);
  /// Adds an entry; false, and nothing changed, when the key is there already.
  bool Add(std::string_view key, std::string_view value);
  /// The same for an owner and an event, without building the key.
  bool Add(std::string_view owner, Event event, std::string_view value);
  /// Removes the key if it is there, then adds it.
  void Replace(std::string_view key, std::string_view value);
  void Replace(std::string_view owner, Event event, std::string_view value);
  /// False when there was no such key.
  bool Remove(std::string_view key) noexcept;
  void Clear() noexcept;
  /// The number of entries, counted anew each time.
  [[nodiscard]] std::size_t Size() const noexcept;

  /// Calls `visit(key, value)` for every entry: owners in the order in which they first came, the
  /// entries of each by enumerator.
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const Owner& owner : owners_) {
      for (std::uint8_t slot = 0; slot <= kNoEvent; ++slot) {
        const std::string* const value = owner.FindSlot(slot);
        if (value != nullptr) visit(KeyOf(owner) + SuffixOf(slot), *value);
      }
    }
  }

 private:
  static constexpr std::uint8_t kNoEvent = kEventCount;

  struct Place {
    std::string_view Owner;
    std::uint8_t Slot;
  };
  [[nodiscard]] static Place PositionOf(std::string_view key) noexcept;
  [[nodiscard]] static std::string KeyOf(const Owner& owner);
  [[nodiscard]] static std::string SuffixOf(std::uint8_t slot);
  bool Add(Owner& owner, std::uint8_t slot, std::string_view value);
  void Set(Owner& owner, std::uint8_t slot, std::string_view value);
  void Replace(Owner& owner, std::uint8_t slot, std::string_view value);

  /// The numbers of owners: their places in the table from 1, and 0 for nobody.
  using Number = std::uint32_t;
  [[nodiscard]] Number NumberOf(std::string_view key) const noexcept;
  [[nodiscard]] Number NumberOf(const ObjectPlace& object) const noexcept;
  [[nodiscard]] Number NumberOfName(std::string_view key) const noexcept;
  [[nodiscard]] const Owner* OwnerAt(Number number) const noexcept {
    return number == 0 ? nullptr : &owners_[number - 1];
  }
  Owner& MakeOwner(Number& number);
  Owner& OwnerNamed(std::string_view key);
  /// Where the number of an object's owner is noted; null for an object whose own number is far
  /// ahead of the others.
  [[nodiscard]] Number* SpotFor(const ObjectPlace& object);

  // None of these leaves but all at once.
  std::vector<Owner> owners_;
  std::deque<Code> codes_;
  // Generating asks for every object several times, mostly in vain, so objects are found by their
  // form, kind and number.
  std::vector<std::array<std::vector<Number>, kKindCount>> places_;
  // All others by key: forms, menu items, and objects with a number far ahead or a key in letters
  // of its own.
  std::unordered_map<std::string, Number, FoldedHash, FoldedEqual> named_;
  bool objects_named_ = false;  ///< there are such objects
};

}  // namespace tarnwick
