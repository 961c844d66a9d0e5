// The functions and statements of the language with their descriptions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "language/keyed.h"

namespace tarnwick::language {

/// One function; the lines of its help end in CR LF.
struct FunctionHelp {
  std::string Name;
  std::string Help;

  friend bool operator==(const FunctionHelp&, const FunctionHelp&) = default;
};

/// The functions in the order of the support file.
class FunctionList {
 public:
  /// A name may be empty or occur twice; the row stands all the same.
  void Add(std::string name, std::string help) {
    if (!name.empty()) rows_by_name_.Add(name, rows_.size());
    rows_.push_back({std::move(name), std::move(help)});
  }
  [[nodiscard]] const std::vector<FunctionHelp>& Rows() const noexcept { return rows_; }
  /// The first function of a name, in any case and in constant time; null for an unknown name.
  [[nodiscard]] const FunctionHelp* Find(std::string_view name) const {
    const std::size_t* row = rows_by_name_.Find(name);
    return row == nullptr ? nullptr : &rows_[*row];
  }

 private:
  std::vector<FunctionHelp> rows_;
  Keyed<std::size_t> rows_by_name_;
};

}  // namespace tarnwick::language
