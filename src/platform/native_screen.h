// The screen of a program that has none.
#pragma once

#include "platform/ports.h"

namespace tarnwick {

/// For runs without windows: a screen of common height, and nothing to repaint.
class NativeScreen final : public ScreenPort {
 public:
  [[nodiscard]] int HeightPixels() override { return 768; }
  void Yield() override {}
};

}  // namespace tarnwick
