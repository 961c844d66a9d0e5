// The registers of one procedure while its code is made.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

#include "basic/code/code.h"

namespace tarnwick::basic {

/// Hands out registers. Plain and counted ones never change roles, so that whatever path the
/// program takes a counted register holds nothing or a counted body.
class Registers {
 public:
  /// At most `constants` constants get a register of their own: a frame is copied at each call.
  explicit Registers(std::size_t constants) : most_constants_(constants) {}

  /// A register for a variable.
  std::uint16_t Variable(bool counted) { return New(counted); }
  /// A register for a value in between; `Return` makes it free again.
  std::uint16_t Temporary(bool counted) {
    std::vector<std::uint16_t>& free = counted ? free_counted_ : free_plain_;
    if (free.empty()) return New(counted);
    const std::uint16_t number = free.back();
    free.pop_back();
    return number;
  }
  void Return(std::uint16_t number, bool counted) {
    (counted ? free_counted_ : free_plain_).push_back(number);
  }
  /// The register that holds a constant from the start; nothing when there are too many of them.
  /// A number and a text never share one: bodies do not stand at addresses that are constants.
  [[nodiscard]] bool Constant(Slot value, std::uint16_t& number) {
    const auto found = constants_.find(value.I);
    if (found != constants_.end()) {
      number = found->second;
      return true;
    }
    if (constants_.size() >= most_constants_) return false;
    number = New(false);
    if (Overflow()) return false;
    start_[number] = value;
    constants_.emplace(value.I, number);
    return true;
  }
  /// True when the procedure needs more registers than an instruction can name.
  [[nodiscard]] bool Overflow() const { return start_.size() >= kMaxRegisters; }

  [[nodiscard]] const std::vector<Slot>& Start() const { return start_; }
  [[nodiscard]] const std::vector<std::uint16_t>& Counted() const { return counted_; }

 private:
  std::uint16_t New(bool counted) {
    if (Overflow()) return 0;
    const auto number = static_cast<std::uint16_t>(start_.size());
    start_.push_back(Slot{0});
    if (counted) counted_.push_back(number);
    return number;
  }

  std::size_t most_constants_;
  std::vector<Slot> start_;
  std::vector<std::uint16_t> counted_;
  std::vector<std::uint16_t> free_plain_;
  std::vector<std::uint16_t> free_counted_;
  std::unordered_map<std::int64_t, std::uint16_t> constants_;
};

}  // namespace tarnwick::basic
