// The entries of DLLs that the runner has versions of its own of.
#pragma once

#include <string>

#include "basic/hosts/native_calls.h"
#include "platform/ports.h"

namespace tarnwick::hosts {

/// GetPrivateProfileStringA and WritePrivateProfileStringA of kernel32, over the files of the
/// machine. No DLL is loaded.
class ProfileCalls final : public basic::NativeCalls {
 public:
  /// `profiles` outlives it.
  explicit ProfileCalls(ProfilePort& profiles) : profiles_(profiles) {}

  [[nodiscard]] std::optional<int> Find(std::string_view library, std::string_view entry) override;
  bool Call(int entry, std::span<basic::Value> arguments, basic::ByteMemory* memory,
            basic::Value& result) override;
  [[nodiscard]] std::string_view Reason() const override { return reason_; }

 private:
  bool Read(std::span<basic::Value> arguments, basic::ByteMemory* memory, basic::Value& result);
  bool Write(std::span<basic::Value> arguments, basic::Value& result);

  ProfilePort& profiles_;
  std::string reason_;
};

}  // namespace tarnwick::hosts
