// The bytes of left_out.tsv.
#pragma once

#include <string_view>

namespace tarnwick::basic {

/// A line of column names, then a line per word; a tab between the columns.
extern const std::string_view kLeftOutText;

}  // namespace tarnwick::basic
