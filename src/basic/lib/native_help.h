// What the native functions share: results with their limit, arguments with their default, hosts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "basic/vm/library_call.h"

namespace tarnwick::basic {

/// True when a text of `length` bytes may be made; otherwise sets the error, with the function's
/// name.
bool FitsLimit(LibraryCall& call, std::string_view name, std::size_t length);
/// Sets the result to a copy of the text.
void ReturnText(LibraryCall& call, std::string_view text);

/// A whole argument that may be missing, or be left out between commas.
[[nodiscard]] std::int64_t WholeOr(const LibraryCall& call, std::size_t index,
                                   std::int64_t otherwise);
/// A whole argument held within the range of int.
[[nodiscard]] int IntAt(const LibraryCall& call, std::size_t index, int otherwise = 0);
/// The bytes of a string argument; "" for one that is missing.
[[nodiscard]] std::string_view TextAt(const LibraryCall& call, std::size_t index);

/// The host, or null after setting the error that there is none.
ConsoleHost* NeedConsole(LibraryCall& call);
FileHost* NeedFiles(LibraryCall& call);
ClockHost* NeedClock(LibraryCall& call);
SystemHost* NeedSystem(LibraryCall& call);

}  // namespace tarnwick::basic
