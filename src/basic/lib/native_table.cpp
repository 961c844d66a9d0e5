#include "basic/lib/native_table.h"

#include <vector>

namespace tarnwick::basic {
namespace {

std::vector<NativeFunction> MakeTable() {
  std::vector<NativeFunction> table(Functions().size(), nullptr);
  for (const auto group : {StringNatives(), NumberNatives(), ConversionNatives(), FileNatives(),
                           TimeNatives(), ConsoleNatives(), SystemNatives(), MemoryNatives()}) {
    for (const NativeRow& row : group) table[static_cast<std::size_t>(row.Id)] = row.Code;
  }
  return table;
}

}  // namespace

NativeFunction NativeOf(FunctionId id) {
  static const std::vector<NativeFunction> kTable = MakeTable();
  return kTable[static_cast<std::size_t>(id)];
}

}  // namespace tarnwick::basic
