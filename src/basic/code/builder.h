// Puts the parts of a program's code together: instructions with their places, constants, shapes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory_resource>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "basic/check/program.h"
#include "basic/code/code.h"

namespace tarnwick::basic {

/// A position in the code that jumps may name before it is known.
struct CodeLabel {
  std::int64_t Position = -1;
  std::vector<std::size_t> Waiting;  ///< words to fill in once the position is known
};

/// A variable's name and its type as a number.
struct LayoutKey {
  std::string_view Name;
  std::uint64_t Type;
  friend bool operator==(const LayoutKey&, const LayoutKey&) = default;
};
struct LayoutHash {
  std::size_t operator()(const LayoutKey& key) const {
    return std::hash<std::string_view>()(key.Name) ^ (key.Type * 0x9E3779B97F4A7C15U);
  }
};

struct ShapeHash {
  std::size_t operator()(const CallShape& shape) const;
};

class CodeBuilder {
 public:
  explicit CodeBuilder(const Program& program);

  /// Appends an instruction that belongs to the current place; returns its index.
  std::size_t Add(Op op, std::size_t a = 0, std::size_t b = 0, std::size_t c = 0);
  /// A jump with the word of its target.
  void Jump(Op op, CodeLabel& target, std::size_t a = 0, std::size_t b = 0, std::size_t c = 0);
  /// The shape's word and the words of argument registers behind a call.
  void Arguments(const CallShape& shape, const std::vector<std::uint16_t>& registers);
  /// The label stands before the next instruction.
  void Place(CodeLabel& label);
  /// From now on instructions belong to this place.
  void At(SourcePlace at);
  [[nodiscard]] SourcePlace Current() const { return at_; }
  [[nodiscard]] std::size_t Size() const { return code_.Instructions.size(); }

  /// The slot of a text constant; equal texts share one body.
  [[nodiscard]] Slot TextConstant(std::string_view text);
  /// The number of a constant for CONSTANT.
  [[nodiscard]] std::size_t ConstantNumber(Slot constant);
  /// Number of what a MAKE_... instruction makes for a variable.
  [[nodiscard]] std::size_t LayoutNumber(std::string_view name, const Type& type);

  /// True for a parameter that takes the object when an event calls the procedure.
  [[nodiscard]] bool TakesSender(const Type& type) const;

  [[nodiscard]] const Program& Source() const { return program_; }
  [[nodiscard]] Code& Made() { return code_; }

 private:
  void FillRecords();
  [[nodiscard]] FieldLayout LayoutOf(std::string_view name, const Type& type) const;

  const Program& program_;
  Code code_;
  SourcePlace at_;
  /// Of the tables below: what is in them goes all at once.
  std::pmr::monotonic_buffer_resource memory_;
  std::pmr::unordered_map<std::string_view, Slot> texts_{&memory_};
  std::pmr::unordered_map<std::int64_t, std::size_t> constants_{&memory_};
  std::pmr::unordered_map<LayoutKey, std::size_t, LayoutHash> layouts_{&memory_};
  std::unordered_map<CallShape, std::size_t, ShapeHash> shapes_;
};

}  // namespace tarnwick::basic
