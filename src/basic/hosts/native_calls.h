// Entries of DLLs that a program declares.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "basic/vm/value.h"

namespace tarnwick::basic {

class ByteMemory;

class NativeCalls {
 public:
  virtual ~NativeCalls() = default;
  /// The entry's number for `Call`; nothing when there is no such entry here.
  [[nodiscard]] virtual std::optional<int> Find(std::string_view library,
                                                std::string_view entry) = 0;
  /// Calls an entry; arguments passed by reference flow back. `memory` has the bytes behind the
  /// numbers of VARPTR (null: there are none). False: see `Reason`.
  virtual bool Call(int entry, std::span<Value> arguments, ByteMemory* memory, Value& result) = 0;
  [[nodiscard]] virtual std::string_view Reason() const = 0;
};

}  // namespace tarnwick::basic
