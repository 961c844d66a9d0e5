// The code of the native functions.
#pragma once

#include <span>

#include "basic/lib/function_table.h"
#include "basic/vm/library_call.h"

namespace tarnwick::basic {

/// The code of a row; null for a row that is no native function, and for one that is left out.
[[nodiscard]] NativeFunction NativeOf(FunctionId id);

/// One native function of a group.
struct NativeRow {
  FunctionId Id;
  NativeFunction Code;
};

// The groups, a file each: native_strings.cpp and so on.
[[nodiscard]] std::span<const NativeRow> StringNatives();
[[nodiscard]] std::span<const NativeRow> NumberNatives();
[[nodiscard]] std::span<const NativeRow> ConversionNatives();
[[nodiscard]] std::span<const NativeRow> FileNatives();
[[nodiscard]] std::span<const NativeRow> TimeNatives();
[[nodiscard]] std::span<const NativeRow> ConsoleNatives();
[[nodiscard]] std::span<const NativeRow> SystemNatives();
[[nodiscard]] std::span<const NativeRow> MemoryNatives();

}  // namespace tarnwick::basic
