// The faults of a form file: what cannot be read in it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

enum class FaultSort : std::uint8_t {
  NoForm,    ///< the text holds no form record
  NoRecord,  ///< the line is no record, or one of an unknown kind
  Number,    ///< the object's number cannot be used
  Value,     ///< a value does not fit
};

/// A line of a form file that the reader skips, in whole or in part.
struct RecordFault {
  FaultSort Sort = FaultSort::NoRecord;
  std::size_t Line = 0;  ///< from 1
  std::string Kind;      ///< kind word of the line, "" when it has none
  std::string Name;      ///< name of the line, "" when it has none
  std::string What;      ///< what is wrong with it
};

/// The faults of a form file's text, in the order of its lines.
[[nodiscard]] std::vector<RecordFault> FaultsOfFormText(std::string_view text);

}  // namespace tarnwick
