// `EventTable`: the code of every event of every form, object and menu item.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/vocabulary.h"
#include "text/code_page.h"

namespace tarnwick {

/// Events by enumerator.
using EventSet = std::bitset<kEventCount>;

/// An object by what its key is made of: "Form1.Button2".
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
 public:
  /// All entries of one owner.
  class Owner {
   public:
    /// The code of an event; null when there is no entry.
    [[nodiscard]] const std::string* Find(Event event) const noexcept;
    /// The events with an entry that is not empty, for callers that ask for many of one owner.
    [[nodiscard]] EventSet FilledEvents() const noexcept;
    [[nodiscard]] bool Empty() const noexcept { return present_.none(); }

   private:
    friend class EventCodeTable;
    using Code = std::pair<std::uint8_t, std::string>;
    [[nodiscard]] const std::string* FindSlot(std::size_t slot) const noexcept;
    [[nodiscard]] std::vector<Code>::iterator SpotOf(std::size_t slot) noexcept;

    std::string key_;
    // Nearly all entries are empty, so those are bits alone.
    std::bitset<kEventCount + 1> present_;
    std::vector<Code> codes_;  ///< of the entries that are not empty
  };

  /// The entry of a key; null when there is none. Valid until the table changes.
  [[nodiscard]] const std::string* Find(std::string_view key) const noexcept;
  /// All entries under an owner's key; null when there never was one.
  [[nodiscard]] const Owner* OwnerOf(std::string_view owner) const noexcept;
  /// All entries under an owner's key, for adding several; the owner is made where it is missing.
  /// Stays valid until Clear.
  Owner& OwnerFor(std::string_view key);
  /// The same for an object. One that was made here is found without a search while the objects of
  /// its kind came in the order of their numbers, as they do in reading.
  [[nodiscard]] const Owner* OwnerOf(const ObjectPlace& object) const noexcept;
  Owner& OwnerFor(const ObjectPlace& object);
  /// Adds an entry of an owner of this table; false, and nothing changed, when it is there.
  bool Add(Owner& owner, Event event, std::string_view value) {
    return Add(owner, static_cast<std::uint8_t>(event), value);
  }
  /// Adds an entry; false, and nothing changed, when the key is there already.
  bool Add(std::string_view key, std::string_view value);
  /// The same for an owner and an event, without building the key.
  bool Add(std::string_view owner, Event event, std::string_view value);
  /// Removes the key if it is there, then adds it.
  void Replace(std::string_view key, std::string value);
  void Replace(std::string_view owner, Event event, std::string value);
  /// False when there was no such key.
  bool Remove(std::string_view key) noexcept;
  void Clear() noexcept;
  [[nodiscard]] std::size_t Size() const noexcept { return size_; }

  /// Calls `visit(key, value)` for every entry: owners in the order in which they first came, the
  /// entries of each by enumerator.
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const Owner& owner : owners_) {
      for (std::uint8_t slot = 0; slot <= kNoEvent; ++slot) {
        const std::string* const value = owner.FindSlot(slot);
        if (value != nullptr) visit(owner.key_ + SuffixOf(slot), *value);
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
  [[nodiscard]] static std::uint32_t HashOf(std::string_view key) noexcept;
  [[nodiscard]] static std::string SuffixOf(std::uint8_t slot);
  bool Add(Owner& owner, std::uint8_t slot, std::string_view value) {
    if (owner.present_[slot]) return false;
    owner.present_.set(slot);
    ++size_;
    if (!value.empty()) owner.codes_.emplace_back(slot, value);
    return true;
  }
  void Replace(Owner& owner, std::uint8_t slot, std::string&& value);
  [[nodiscard]] std::uint32_t NumberOf(std::string_view key) const noexcept;
  std::uint32_t NumberFor(std::string_view key);
  [[nodiscard]] std::size_t SlotOf(std::uint32_t hash, std::string_view key) const noexcept;
  void GrowIndex();

  /// A place of the index: the number of an owner from 1 and a part of its key's hash; 0 for
  /// nobody.
  struct Slot {
    std::uint32_t Hash = 0;
    std::uint32_t Number = 0;
  };

  std::deque<Owner> owners_;
  // Owners by key, open to probing from the hash's place on. Generating asks it several times for
  // every object, mostly in vain, so a miss must cost one look at a small place. Its size is a
  // power of two and it is never more than half full; owners never leave but all at once.
  std::vector<Slot> index_;
  // Owners' numbers by form, kind and number from 1, as far as they came in that order.
  std::vector<std::array<std::vector<std::uint32_t>, kKindCount>> places_;
  std::size_t size_ = 0;
};

}  // namespace tarnwick
