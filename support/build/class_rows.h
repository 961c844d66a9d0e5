// The classes of a running program as records: what the member rows of the kinds and the rows that
// only a running program needs say together.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "build/faults.h"

namespace tarnwick::support {

/// A value of a member, an argument or an index.
enum class CellType : std::uint8_t { None, Whole, Truth, Byte, Word, Real, Text, Object, Variant };

struct ParameterRow {
  CellType Type = CellType::Whole;
  std::string Class;       ///< of an Object; "" for any
  bool Reference = false;  ///< the member writes into the argument
};

struct RunMember {
  std::string Name;
  std::string Category;  ///< "property", "method" or "event"
  CellType Type = CellType::None;
  std::string Class;  ///< of an Object; "" for any
  std::vector<ParameterRow> Parameters;
  std::size_t Required = 0;
  bool Repeats = false;
  bool Readable = true;
  bool Writable = true;
  std::string Level = "full";
  std::string Note;
  std::int64_t DefaultNumber = 0;
  std::string DefaultText;
  Place Where;
};

struct RunClass {
  std::string Name;   ///< "QFORM"
  std::string Label;  ///< "QForm", for the enumerator
  std::vector<std::string> Flags;
  std::string Note;
  std::vector<RunMember> Members;
  Place Where;
};

/// Reads the tables below `folder`. What does not fit is a fault.
[[nodiscard]] std::vector<RunClass> LoadClasses(const std::string& folder, Faults& faults);

}  // namespace tarnwick::support
