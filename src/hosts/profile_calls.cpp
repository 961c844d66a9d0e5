#include "hosts/profile_calls.h"

#include <algorithm>

#include "basic/lib/byte_memory.h"
#include "text/code_page.h"

namespace tarnwick::hosts {
namespace {

using basic::Value;

enum Entry { kReadEntry, kWriteEntry };

}  // namespace

std::optional<int> ProfileCalls::Find(std::string_view library, std::string_view entry) {
  if (!StartsWithFolded(library, "kernel32")) return std::nullopt;
  if (EqualsFolded(entry, "GetPrivateProfileStringA")) return kReadEntry;
  if (EqualsFolded(entry, "WritePrivateProfileStringA")) return kWriteEntry;
  return std::nullopt;
}

bool ProfileCalls::Call(int entry, std::span<Value> arguments, basic::ByteMemory* memory,
                        Value& result) {
  const std::size_t wanted = entry == kReadEntry ? 6 : 4;
  if (arguments.size() != wanted) {
    reason_ = "the entry takes " + std::to_string(wanted) + " arguments";
    return false;
  }
  return entry == kReadEntry ? Read(arguments, memory, result) : Write(arguments, result);
}

/// Section, key, what to give when the key is absent, buffer, its size, file. The buffer is the
/// address of a text, or a text handed over by reference.
bool ProfileCalls::Read(std::span<Value> arguments, basic::ByteMemory* memory, Value& result) {
  Value& buffer = arguments[3];
  const bool address = buffer.Kind() != basic::SlotKind::Text;
  std::int64_t size = std::max<std::int64_t>(arguments[4].AsInteger(), 0);
  if (!address) size = std::min(size, static_cast<std::int64_t>(buffer.View().size()) + 1);
  result = Value::Integer(0);
  if (size == 0) return true;
  const std::string path = arguments[5].AsText();
  const auto room = static_cast<std::size_t>(size);
  std::string text = profiles_.Read(path, arguments[0].View(), arguments[1].View(), room);
  if (text.empty()) text = std::string(arguments[2].View()).substr(0, room - 1);
  result = Value::Integer(static_cast<std::int64_t>(text.size()));
  // The zero behind the text counts, unless the variable ends before it.
  if (!address) {
    std::string whole(buffer.View());
    whole.replace(0, text.size(), text);
    if (text.size() < whole.size()) whole[text.size()] = '\0';
    buffer = Value::Text(std::move(whole));
    return true;
  }
  const std::int64_t target = buffer.AsInteger();
  const bool written = memory != nullptr && (memory->Write(target, text + std::string(1, '\0')) ||
                                             memory->Write(target, text));
  if (!written) reason_ = "the buffer is not a variable with room for the text";
  return written;
}

/// Section, key, value, file.
bool ProfileCalls::Write(std::span<Value> arguments, Value& result) {
  const bool done = profiles_.Write(arguments[3].AsText(), arguments[0].View(), arguments[1].View(),
                                    arguments[2].View());
  result = Value::Integer(done ? 1 : 0);
  return true;
}

}  // namespace tarnwick::hosts
