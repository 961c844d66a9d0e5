// The layouts of the records in a form file. One table drives the writing, with its exact blanks,
// and names for the reader the tag of each value of a kind.
#pragma once

#include <span>
#include <string_view>

#include "model/kinds.h"
#include "persistence/record_sources.h"
#include "persistence/record_tags.h"

namespace tarnwick {

/// A piece of a record: literal text, then a value. `In` is the tag of the value; None for the
/// number and the name in the head.
struct LayoutField {
  std::string_view Before;
  Source Value;
  Tag In = Tag::None;
};

struct RecordLayout {
  std::span<const LayoutField> Fields;
  std::string_view End;  ///< literal text behind the last value
};

/// The layout of an object kind or of the form itself (Kind::Form); an empty one for kinds without
/// a record.
[[nodiscard]] const RecordLayout& LayoutOf(Kind kind) noexcept;

/// A control member that reading sets beside what the layout names: from a tag of another field,
/// or from one that the kind's own record does not carry, whose value an earlier line left behind.
struct InheritedMember {
  Member Target;
  Tag In;
};
[[nodiscard]] std::span<const InheritedMember> InheritedMembersOf(Kind kind) noexcept;

}  // namespace tarnwick
