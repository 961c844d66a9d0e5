// Help texts composed from the sources: lines of UTF-8, not yet in the form of the files.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "build/support_sources.h"

namespace tarnwick::support {

using HelpLines = std::vector<std::string>;

/// Syntax, description and example of a function.
[[nodiscard]] HelpLines HelpOf(const FunctionEntry& function);
/// Component, description and example of a kind.
[[nodiscard]] HelpLines HelpOf(const KindEntry& kind);
/// The help under one key: all members that share it, those that differ in nothing but their kind
/// listed once. The members keep their order.
[[nodiscard]] HelpLines HelpOf(std::span<const MemberEntry* const> members);

}  // namespace tarnwick::support
