#include "shell/local_time.h"

#include <array>
#include <ctime>

namespace tarnwick {

std::string LocalTime() {
  const std::time_t now = std::time(nullptr);
  const std::tm* const parts = std::localtime(&now);
  std::array<char, 32> text{};
  if (parts == nullptr) return {};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", parts)};
}

}  // namespace tarnwick
