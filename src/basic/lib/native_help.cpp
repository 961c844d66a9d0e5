#include "basic/lib/native_help.h"

#include <algorithm>
#include <limits>

namespace tarnwick::basic {
namespace {

template <class Host>
Host* Need(LibraryCall& call, Host* host, const char* what) {
  if (host == nullptr) call.Fail(std::string("this program has no ") + what);
  return host;
}

bool Given(const LibraryCall& call, std::size_t index) {
  return index < call.Count() && call.At(index).Kind() != SlotKind::Empty;
}

}  // namespace

bool FitsLimit(LibraryCall& call, std::string_view name, std::size_t length) {
  if (length <= call.TextLimit) return true;
  call.Fail(std::string(name) + " would make a string of " + std::to_string(length) +
            " characters; the limit is " + std::to_string(call.TextLimit));
  return false;
}

void ReturnText(LibraryCall& call, std::string_view text) {
  call.Result = Value::Text(std::string(text));
}

std::int64_t WholeOr(const LibraryCall& call, std::size_t index, std::int64_t otherwise) {
  return Given(call, index) ? call.At(index).AsInteger() : otherwise;
}

int IntAt(const LibraryCall& call, std::size_t index, int otherwise) {
  const std::int64_t number = WholeOr(call, index, otherwise);
  return static_cast<int>(std::clamp<std::int64_t>(number, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

std::string_view TextAt(const LibraryCall& call, std::size_t index) {
  return index < call.Count() ? call.At(index).View() : std::string_view();
}

ConsoleHost* NeedConsole(LibraryCall& call) {
  return Need(call, call.Host.Console, "console");
}
FileHost* NeedFiles(LibraryCall& call) {
  return Need(call, call.Host.Files, "access to files");
}
ClockHost* NeedClock(LibraryCall& call) {
  return Need(call, call.Host.Clock, "clock");
}
SystemHost* NeedSystem(LibraryCall& call) {
  return Need(call, call.Host.System, "access to the system");
}

}  // namespace tarnwick::basic
