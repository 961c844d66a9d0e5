// The system around a running program without windows.
#pragma once

#include <cstdio>

#include "basic/hosts/system_host.h"
#include "platform/native_process.h"

namespace tarnwick::hosts {

/// Message boxes go to a stream as text; their first button counts as pressed.
class LocalSystem : public basic::SystemHost {
 public:
  LocalSystem(std::vector<std::string> arguments, std::FILE* messages)
      : arguments_(std::move(arguments)), messages_(messages) {}

  const std::vector<std::string>& Arguments() override { return arguments_; }
  std::string Environment(std::string_view name) override;
  bool SetEnvironment(std::string_view name, std::string_view value) override;
  std::int64_t Start(std::string_view command, int show) override;
  int MessageBox(std::string_view text, std::string_view title, int flags) override;
  void Sound(double hertz, double milliseconds) override;
  bool PlayWave(std::string_view path, int flags) override;

 private:
  std::vector<std::string> arguments_;
  std::FILE* messages_;
  NativeProcess process_;
};

}  // namespace tarnwick::hosts
