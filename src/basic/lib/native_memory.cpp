#include <algorithm>
#include <cstring>

#include "basic/lib/byte_memory.h"
#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"

namespace tarnwick::basic {
namespace {

void FailAddress(LibraryCall& call, const char* name) {
  call.Fail(std::string(name) +
            ": the address is not that of a variable, or too few bytes are there");
}

/// The third argument, a count of bytes; negative counts as 0.
std::size_t CountOf(const LibraryCall& call) {
  return static_cast<std::size_t>(std::max<std::int64_t>(WholeOr(call, 2, 0), 0));
}

std::optional<std::string> Bytes(LibraryCall& call, std::size_t argument, const char* name) {
  std::optional<std::string> bytes;
  if (call.State.Memory != nullptr && CountOf(call) <= call.TextLimit) {
    bytes = call.State.Memory->Read(WholeOr(call, argument, 0), CountOf(call));
  }
  if (!bytes) FailAddress(call, name);
  return bytes;
}

/// 0 when both pieces are equal, else the sign of the first difference.
void MemCmp(LibraryCall& call) {
  if (CountOf(call) == 0) {
    call.Result = Value::Integer(0);
    return;
  }
  const auto left = Bytes(call, 0, "MEMCMP");
  const auto right = left ? Bytes(call, 1, "MEMCMP") : std::nullopt;
  if (!right) return;
  const int order = left->compare(*right);
  call.Result = Value::Integer(order < 0 ? -1 : order > 0 ? 1 : 0);
}

void Write(LibraryCall& call, const char* name, std::string_view bytes) {
  if (call.State.Memory == nullptr || !call.State.Memory->Write(WholeOr(call, 0, 0), bytes)) {
    FailAddress(call, name);
  }
}

void MemCpy(LibraryCall& call) {
  if (CountOf(call) == 0) return;
  if (const auto bytes = Bytes(call, 1, "MEMCPY")) Write(call, "MEMCPY", *bytes);
}

void MemSet(LibraryCall& call) {
  const std::size_t count = CountOf(call);
  if (count == 0 || !FitsLimit(call, "MEMSET", count)) return;
  Write(call, "MEMSET", std::string(count, static_cast<char>(WholeOr(call, 1, 0) & 0xFF)));
}

/// Address 0 is that of nothing: "".
void VarPtrText(LibraryCall& call) {
  const std::int64_t address = WholeOr(call, 0, 0);
  if (address == 0) return ReturnText(call, "");
  std::optional<std::string> text;
  if (call.State.Memory != nullptr) text = call.State.Memory->TextAt(address);
  if (!text) return FailAddress(call, "VARPTR$");
  call.Result = Value::Text(std::move(*text));
}

constexpr NativeRow kRows[] = {
    {FunctionId::MemCmp, MemCmp},
    {FunctionId::MemCpy, MemCpy},
    {FunctionId::MemSet, MemSet},
    {FunctionId::VarPtrText, VarPtrText},
};

}  // namespace

std::span<const NativeRow> MemoryNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
