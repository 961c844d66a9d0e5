// Reading a record as the program itself writes it.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "persistence/record_values.h"

namespace tarnwick {

/// Takes the record of an object with which a text begins if it stands as the program writes it:
/// all literals of the layout in their order, digits for a number, and no bracket in any value.
/// There the first brackets of the head are its own, and the first start and the first end of a tag
/// are those of its field. Answers the size of its line; nothing, and no value changed, for any
/// other line, for kinds without a number, and in a text that ends in no line end.
[[nodiscard]] std::optional<std::size_t> TakeWrittenRecord(std::string_view text,
                                                           RecordValues& values);

}  // namespace tarnwick
