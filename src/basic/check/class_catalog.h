// What the checker asks about the classes of objects.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "basic/check/types.h"

namespace tarnwick::basic {

enum class MemberKind : std::uint8_t { Property, ArrayProperty, Method, Event };

/// How far a member is supported: works; keeps its value without effect; is passed over with a
/// note.
enum class SupportLevel : std::uint8_t { Full, Stored, None };

/// One parameter of a method or event, or one index of an array property.
struct MemberParameter {
  Type Kind = kWholeType;  ///< `Variant`: takes a number, a text or an object as it comes
  /// The argument is a variable into which the member writes (Read of a stream, for instance).
  bool Reference = false;
};

/// The facts of one member. The views live as long as the catalog.
struct MemberFacts {
  MemberId Id{};
  std::string_view Name;  ///< as it is written in messages
  MemberKind Kind = MemberKind::Property;
  Type Value = kNoType;  ///< of a property; the result of a method; None for an event or a SUB
  std::span<const MemberParameter> Parameters;  ///< indexes of an array property included
  /// Arguments needed at least; at most as many as there are parameters, unless `Repeats`.
  int Required = 0;
  bool Repeats = false;  ///< the last parameter may come any number of times (AddItems)
  bool Readable = true;
  bool Writable = true;
  SupportLevel Level = SupportLevel::Full;
  std::string_view Note;  ///< what to use instead, when not fully supported; may be ""
};

/// The classes of objects with their members. Names compare without case.
class ClassCatalog {
 public:
  virtual ~ClassCatalog() = default;
  /// The class of a name such as "QFORM"; nothing when there is none.
  [[nodiscard]] virtual std::optional<ClassId> FindClass(std::string_view name) const = 0;
  /// The name of a class as it is written in messages.
  [[nodiscard]] virtual std::string_view ClassName(ClassId kind) const = 0;
  /// The member of a class; null when it has none of that name.
  [[nodiscard]] virtual const MemberFacts* FindMember(ClassId kind,
                                                      std::string_view name) const = 0;
  /// The class of an object that is there without a DIM (Application, Screen, Clipboard, Printer);
  /// nothing when the name is none.
  [[nodiscard]] virtual std::optional<ClassId> FindBuiltInObject(std::string_view name) const = 0;
  /// True when `x = y` copies the values of objects of this class (QFONT, QRECT).
  [[nodiscard]] virtual bool CopiesValues(ClassId kind) const = 0;
  /// True when an object of the class can be the Parent of objects made inside its CREATE.
  [[nodiscard]] virtual bool IsParent(ClassId kind) const = 0;
  /// All names of classes, for "Did you mean".
  [[nodiscard]] virtual std::vector<std::string_view> ClassNames() const = 0;
  /// All names of members of a class, for "Did you mean".
  [[nodiscard]] virtual std::vector<std::string_view> MemberNames(ClassId kind) const = 0;
};

}  // namespace tarnwick::basic
