// What the names of a program stand for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

#include "basic/source/source_place.h"
#include "basic/syntax/name_table.h"

namespace tarnwick::basic {

struct Expression;

/// What a name stands for.
struct Symbol {
  enum class Sort : std::uint8_t { Global, Local, Constant, Procedure, Dll, Resource } Kind{};
  std::uint32_t Index = 0;               ///< slot, procedure, entry or resource
  const Expression* Constant = nullptr;  ///< the value of a constant
  SourcePlace At;
  std::string_view Name;  ///< as it is declared
};

/// The symbols of the whole program. Looked up for every name in it, so that a look-up is one step.
/// Pointers to symbols stay valid.
class SymbolTable {
 public:
  /// Null when the name stands for nothing.
  [[nodiscard]] const Symbol* Find(NameId name) const noexcept {
    const auto number = static_cast<std::size_t>(name);
    return number < by_name_.size() ? by_name_[number] : nullptr;
  }
  /// Gives the name this meaning, in place of any other.
  void Set(NameId name, const Symbol& symbol) {
    const auto number = static_cast<std::size_t>(name);
    if (number >= by_name_.size()) by_name_.resize(number + 1 + number / 2);
    if (by_name_[number] == nullptr) by_name_[number] = &symbols_.emplace_back();
    *by_name_[number] = symbol;
  }
  /// In the order in which the names came.
  [[nodiscard]] const std::deque<Symbol>& All() const noexcept { return symbols_; }

 private:
  std::vector<Symbol*> by_name_;
  std::deque<Symbol> symbols_;
};

}  // namespace tarnwick::basic
