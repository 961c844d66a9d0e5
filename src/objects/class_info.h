// The rows of the class table, as the build makes them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "basic/check/class_catalog.h"
#include "objects/class_words.h"

namespace tarnwick::objects {

/// What a class is; joined with `|`.
enum class ClassFlag : std::uint8_t {
  Plain = 0,
  Widget = 1,    ///< shown: it is realised with its form
  Window = 2,    ///< a window of its own
  Parent = 4,    ///< may be the Parent of others
  Values = 8,    ///< `x = y` copies the values
  BuiltIn = 16,  ///< there without a DIM, and only once
  AtOnce = 32    ///< realised as soon as it is made
};
[[nodiscard]] constexpr ClassFlag operator|(ClassFlag a, ClassFlag b) noexcept {
  return static_cast<ClassFlag>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

/// One member of a class.
struct MemberInfo {
  basic::MemberFacts Facts;
  Word Name;           ///< the same for the members of that name of all classes
  std::uint16_t Slot;  ///< of a property: its index in `ObjectRecord::Values`; of an event: in
                       ///< `ObjectRecord::Hooks`
  bool Truth;          ///< yes or no: any number other than 0 is stored as 1
  std::int64_t DefaultNumber;
  std::string_view DefaultText;
};

/// One class. Members are in the order of their ids.
struct ClassInfo {
  std::string_view Name;  ///< "QFORM"
  ClassFlag Flags;
  std::span<const MemberInfo> Members;
  std::span<const std::uint8_t> ByHash;  ///< member by the hash of its name; 255: none
  std::span<const std::uint8_t> ByWord;  ///< member by its `Word`; 255: none
  std::uint32_t Seed;
  std::uint16_t PropertyCount;
  std::uint16_t EventCount;
  std::string_view Note;  ///< what is to be known about running it; may be ""

  [[nodiscard]] bool Has(ClassFlag flag) const noexcept {
    return (static_cast<unsigned>(Flags) & static_cast<unsigned>(flag)) != 0;
  }
  /// The member of a name; null when there is none. Case does not count.
  [[nodiscard]] const MemberInfo* Find(std::string_view name) const noexcept;
  /// The member of a word; null when the class has none.
  [[nodiscard]] const MemberInfo* Find(Word word) const noexcept {
    const std::uint8_t index = ByWord[static_cast<std::size_t>(word)];
    return index == 255 ? nullptr : &Members[index];
  }
  [[nodiscard]] const MemberInfo& At(basic::MemberId id) const {
    return Members[static_cast<std::size_t>(id)];
  }
};

/// All classes; the row of a ClassId is at its number less one.
[[nodiscard]] std::span<const ClassInfo> ClassRows();

}  // namespace tarnwick::objects
