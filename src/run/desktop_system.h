// The system around a running program with windows.
#pragma once

#include "hosts/local_system.h"

namespace tarnwick::run {

/// Message boxes are windows; what else is asked for is as without them.
class DesktopSystem final : public hosts::LocalSystem {
 public:
  using hosts::LocalSystem::LocalSystem;

  int MessageBox(std::string_view text, std::string_view title, int flags) override;
  void Sound(double hertz, double milliseconds) override;
};

}  // namespace tarnwick::run
