// Every native function with the values at the edges of its parameters' kinds.
#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "basic/lib/native_table.h"
#include "fakes/program_world.h"

namespace tarnwick::basic {
namespace {

Value EdgeValue(ParameterKind kind, std::mt19937& random) {
  const std::array<std::int64_t, 10> wholes = {0,   1,   -1,        2,         36,
                                               255, 300, INT32_MIN, INT64_MIN, INT64_MAX};
  const std::array<double, 10> numbers = {0,     -0.0,   0.5,      -1.5,      1e15,
                                          1e300, -1e300, INFINITY, -INFINITY, std::nan("")};
  const std::array<std::string, 8> texts = {
      "", " ", "a", "ab,c", std::string(1, '\0'), "&HFF", std::string(900, 'x'), "%d%s%.9f%"};
  switch (kind) {
    case ParameterKind::String:
      return Value::Text(texts.at(random() % texts.size()));
    case ParameterKind::Whole:
      return Value::Integer(wholes.at(random() % wholes.size()));
    case ParameterKind::Number:
      return Value::Number(numbers.at(random() % numbers.size()));
    default:
      break;
  }
  switch (random() % 3) {
    case 0:
      return EdgeValue(ParameterKind::String, random);
    case 1:
      return EdgeValue(ParameterKind::Whole, random);
    default:
      return EdgeValue(ParameterKind::Number, random);
  }
}

SlotKind KindOfResult(FunctionType type) {
  switch (type) {
    case FunctionType::Whole:
      return SlotKind::Integer;
    case FunctionType::Number:
      return SlotKind::Number;
    case FunctionType::String:
      return SlotKind::Text;
    default:
      return SlotKind::Empty;
  }
}

TEST(NativeValues, AnyArgumentsGiveAResultOfTheRowsTypeOrAnError) {
  std::mt19937 random(13);
  for (const FunctionInfo& row : Functions()) {
    const NativeFunction code = NativeOf(row.Id);
    if (code == nullptr) continue;
    for (int round = 0; round < 200; ++round) {
      const std::size_t most = row.MaxArguments == kAnyNumber ? 4 : row.MaxArguments;
      std::vector<Value> arguments;
      const std::size_t count = row.MinArguments + random() % (most - row.MinArguments + 1);
      for (std::size_t i = 0; i < count; ++i) {
        const Parameter& parameter = row.ParameterOf(i);
        const bool none = parameter.Optional && random() % 4 == 0;
        arguments.push_back(none ? Value() : EdgeValue(parameter.Kind, random));
      }
      ProgramWorld world;
      LibraryState state;
      LibraryCall call{arguments, world.Host, state, kTableTextLimit, Value(), ""};
      code(call);
      if (!call.Error.empty()) continue;
      EXPECT_EQ(call.Result.Kind(), KindOfResult(row.Result)) << row.Name;
      EXPECT_LE(call.Result.View().size(), 2 * kTableTextLimit) << row.Name;
    }
  }
}

TEST(NativeValues, WithoutHostsEveryFunctionGivesAResultOrAnError) {
  std::mt19937 random(17);
  for (const FunctionInfo& row : Functions()) {
    const NativeFunction code = NativeOf(row.Id);
    if (code == nullptr) continue;
    std::vector<Value> arguments;
    for (std::size_t i = 0; i < row.MinArguments; ++i) {
      arguments.push_back(EdgeValue(row.ParameterOf(i).Kind, random));
    }
    const Hosts none;
    LibraryState state;
    LibraryCall call{arguments, none, state, kTableTextLimit, Value(), ""};
    code(call);
    if (row.Form == FunctionForm::Procedure || !call.Error.empty()) continue;
    EXPECT_EQ(call.Result.Kind(), KindOfResult(row.Result)) << row.Name;
  }
}

TEST(NativeValues, EveryNativeRowHasItsCodeOrIsLeftOut) {
  for (const FunctionInfo& row : Functions()) {
    const bool runs = row.IsNative() && FindLeftOut(row.Name) == nullptr;
    EXPECT_EQ(NativeOf(row.Id) != nullptr, runs) << row.Name;
  }
}

}  // namespace
}  // namespace tarnwick::basic
