// Other programs, started and left alone.
#pragma once

#include <string>

#include "platform/ports.h"

namespace tarnwick {

/// Started programs have no input and no output, outlive this one, and leave no zombie behind.
/// A Windows program (it begins with "MZ") is started through `wine` found on the search path, any
/// other executable file directly; arguments are passed as the command line has them.
class NativeProcess final : public ProcessPort {
 public:
  /// Waits only until the program is loaded or has failed to load.
  bool StartHidden(const std::string& command_line) override;
  /// Through `xdg-open`; false for a document that does not exist.
  bool OpenDocument(const std::string& path) override;
};

}  // namespace tarnwick
