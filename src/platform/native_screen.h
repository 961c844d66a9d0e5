// The screen of a program that has none.
#pragma once

#include "platform/ports.h"

namespace tarnwick {

/// For runs without windows: there is nothing to repaint.
class NativeScreen final : public ScreenPort {
 public:
  void Yield() override {}
};

}  // namespace tarnwick
