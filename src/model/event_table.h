// `EventTable`: the code of every event of every form, object and menu item.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <forward_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/kinds.h"
#include "text/code_page.h"

namespace tarnwick {

/// An object by what its key is made of.
struct ObjectPlace {
  int Form = 0;
  Kind Id = Kind::Button;
  int Number = 0;
  friend bool operator==(const ObjectPlace&, const ObjectPlace&) = default;
};

/// The owner key of an object: "Form1.Button2".
[[nodiscard]] std::string ObjectKey(int form, Kind kind, int number);
/// Appends the same.
void AppendObjectKey(std::string& out, int form, Kind kind, int number);

/// A keyed collection of texts; keys are unique and compare without regard to case. A key is an
/// owner ("Form1.Button2") and an event suffix (".OnClick"). The entries of one owner lie together,
/// so a loop over all events of an object costs one look-up:
///
///   if (const auto* owner = table.OwnerOf("Form1.Button2"))
///     if (const std::string* code = owner->Find(Event::OnClick)) ...
///
/// Owners stay where they are until Clear(), and an entry until it is removed: adding and replacing
/// other entries leaves every pointer and reference valid.
class EventCodeTable {
 public:
  /// The entries of one owner as a value: event, or kEventCount for a key that ends in none, and
  /// code.
  using Entries = std::vector<std::pair<std::size_t, std::string>>;
  /// What happened to the table since changes were last taken.
  struct Changes {
    struct Owner {
      std::string Key;
      EventCodeTable::Entries Before;
    };
    struct Removed {
      ObjectPlace Object;
      int Last = 0;                     ///< the highest number of the kind before
      EventCodeTable::Entries Entries;  ///< those that stood under the number
    };
    std::vector<Owner> Owners;     ///< each owner once, by its key behind all removals
    std::vector<Removed> Numbers;  ///< calls of RemoveNumber, in their order
  };

  /// All entries of one owner.
  class Owner {
   public:
    /// The code of an event; null when there is no entry.
    [[nodiscard]] const std::string* Find(Event event) const noexcept {
      return FindSlot(static_cast<std::size_t>(event));
    }
    /// True when an entry has code: most owners have none.
    [[nodiscard]] bool HasCode() const noexcept { return !codes_.empty(); }
    /// Adds an entry; false, and nothing changed, when there is one.
    bool Add(Event event, std::string_view code) {
      return AddSlot(static_cast<std::size_t>(event), code);
    }

   private:
    friend class EventCodeTable;
    [[nodiscard]] const std::string* FindSlot(std::size_t slot) const noexcept;
    bool AddSlot(std::size_t slot, std::string_view code);
    void SetSlot(std::size_t slot, std::string_view code);
    void DropCode(std::size_t slot) {
      codes_.remove_if([slot](const Code& code) { return code.Slot == slot; });
    }

    // A slot is an event; the last one is for a key that ends in no event.
    struct Code {
      std::size_t Slot;
      std::string Text;
    };
    std::bitset<kEventCount + 1> present_;
    std::forward_list<Code> codes_;  ///< of the entries that are not empty: few, mostly none
  };

  EventCodeTable();
  EventCodeTable(const EventCodeTable&) = delete;
  EventCodeTable& operator=(const EventCodeTable&) = delete;
  EventCodeTable(EventCodeTable&& other) noexcept;
  EventCodeTable& operator=(EventCodeTable&& other) noexcept;
  ~EventCodeTable();

  /// The entry of a key; null when there is none.
  [[nodiscard]] const std::string* Find(std::string_view key) const;
  /// All entries under an owner's key; null when there never was one.
  [[nodiscard]] const Owner* OwnerOf(std::string_view owner) const;
  /// The same for adding several entries; makes the owner where it is missing.
  Owner& OwnerFor(std::string_view owner);
  /// Both for the owner whose key is the ObjectKey of these.
  [[nodiscard]] const Owner* OwnerOf(const ObjectPlace& object) const;
  Owner& OwnerFor(const ObjectPlace& object);

  /// Adds an entry; false, and nothing changed, when the key is there already.
  bool Add(std::string_view key, std::string_view value);
  bool Add(std::string_view owner, Event event, std::string_view value);
  /// Removes the key if it is there, then adds it.
  void Replace(std::string_view key, std::string_view value);
  void Replace(std::string_view owner, Event event, std::string_view value);
  /// False when there was no such key.
  bool Remove(std::string_view key);
  void Clear() noexcept;

  /// Takes the number of an object out of its kind: the entries under it go, and those of the
  /// objects behind it, up to number `last`, move down by one.
  void RemoveNumber(const ObjectPlace& object, int last);
  /// The way back.
  void InsertNumber(const Changes::Removed& removed);
  [[nodiscard]] Entries EntriesOf(std::string_view owner) const;
  /// Replaces all entries of an owner.
  void SetEntries(std::string_view owner, const Entries& entries);
  /// From now on changes are kept for TakeChanges.
  void Watch() noexcept { watched_ = true; }
  /// The changes since the last call, or since Watch.
  [[nodiscard]] Changes TakeChanges();

  /// The number of entries; counts them all.
  [[nodiscard]] std::size_t Size() const noexcept;

  /// Calls `visit(object, owner)` for every owner that is an object with form and number from 1 on,
  /// in the order in which they were made.
  template <class Visit>
  void ForEachObject(Visit visit) const {
    for (const Row& row : rows_) {
      if (row.Object != kNoObject) visit(row.Object, row.Entries);
    }
  }
  /// Calls `visit(key, value)` for every entry: owners in the order in which they were made, the
  /// entries of each by enumerator.
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const Row& row : rows_) {
      const std::string key = KeyOf(row);
      for (std::size_t slot = 0; slot <= kEventCount; ++slot) {
        const std::string* const value = row.Entries.FindSlot(slot);
        if (value != nullptr) visit(key + SuffixOf(slot), *value);
      }
    }
  }

 private:
  /// A key in its two parts.
  struct KeyParts {
    std::string_view Owner;
    std::size_t Slot;
  };
  [[nodiscard]] static KeyParts PartsOf(std::string_view key) noexcept;
  [[nodiscard]] static std::string SuffixOf(std::size_t slot);

  /// An owner. One that is an object is found by form, kind and number: neighbours in a file are
  /// neighbours in memory, and most keys need no text.
  struct Row {
    ObjectPlace Object;  ///< kNoObject for a form, a menu item and all other keys
    std::string Key;     ///< as it was first written; "" when that is ObjectKey of the object
    Owner Entries;
  };
  static constexpr ObjectPlace kNoObject{};
  static constexpr int kBlock = 8;
  using Block = std::array<Row*, kBlock>;

  /// The object that an owner's key names, in any case; kNoObject for all other keys, and for
  /// numbers with a sign or leading zeros, or too long ones.
  [[nodiscard]] static ObjectPlace PlaceOf(std::string_view key);
  [[nodiscard]] static std::uint64_t BlockOf(const ObjectPlace& object) noexcept;
  [[nodiscard]] static std::string KeyOf(const Row& row);
  [[nodiscard]] Row* FindRow(const ObjectPlace& object) const;
  [[nodiscard]] Row* FindRow(std::string_view key) const;
  /// A new row for an object that has none.
  Row& AddRow(const ObjectPlace& object);
  [[nodiscard]] static Entries EntriesOf(const Owner& owner);
  /// Keeps an owner's entries as they are before their first change since TakeChanges.
  Owner& Noted(Row& row);
  /// Has what is noted of an owner under another key.
  void MoveNote(const std::string& from, const std::string& to);

  std::deque<Row> rows_;                              ///< as they were made
  std::unordered_map<std::uint64_t, Block> objects_;  ///< by BlockOf
  std::unordered_map<std::string_view, Row*, FoldedHash, FoldedEqual> others_;  ///< by key
  bool watched_ = false;
  std::unordered_map<std::string, Entries, FoldedHash, FoldedEqual> noted_;  ///< by key
  std::vector<Changes::Removed> removed_;
};

}  // namespace tarnwick
