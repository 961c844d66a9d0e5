// The machine alone, on bytecode put together by hand, under both ways of dispatching.
#include "basic/vm/machine.h"

#include <thread>

#include <gtest/gtest.h>

#include "basic/assembled.h"
#include "basic/code/dump.h"
#include "fakes/program_hosts.h"

namespace tarnwick::basic {
namespace {

class MachineTest : public testing::TestWithParam<Dispatch> {
 protected:
  RunResult Run(const Code& code) {
    Options.How = GetParam();
    Hosts hosts;
    hosts.Console = &console_;
    Machine machine(code, hosts, Options);
    return machine.Run();
  }
  /// Prints whole-number register `number`, by the text in register `text`; page in `page`.
  static std::vector<Instruction> PrintWhole(std::uint16_t text, std::uint16_t number,
                                             std::uint16_t page) {
    return {{Op::T_OF_I, text, number}, {Op::PRINT_TEXT, text, page}, {Op::PRINT_END, 0, page}};
  }

  RunOptions Options;
  std::string log_;

 private:
  test::LogConsole console_{log_};
};

std::vector<Instruction> operator+(std::vector<Instruction> a, const std::vector<Instruction>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// r0 sum, r1 i, r2 limit, r3 step, r4 page, r5 text
Code SumTo(std::int64_t limit) {
  Assembled program;
  program.Procedure("", {{0}, {1}, {limit}, {1}, {0}, {0}}, {5},
                    {{Op::FOR_I, 1, 2, 3},
                     Target(6),
                     {Op::ADD_I, 0, 0, 1},
                     {Op::NEXT_I, 1, 2, 3},
                     Target(2),
                     {Op::MOVE, 0, 0},
                     {Op::T_OF_I, 5, 0},
                     {Op::PRINT_TEXT, 5, 4},
                     {Op::RETURN}});
  return std::move(program.Made);
}

TEST_P(MachineTest, AForLoopSumsItsNumbers) {
  const RunResult result = Run(SumTo(100));
  EXPECT_EQ(result.End, RunEnd::Ended);
  EXPECT_EQ(log_, "5050");
}

TEST_P(MachineTest, AForLoopThatIsPastItsLimitIsNotEntered) {
  Run(SumTo(0));
  EXPECT_EQ(log_, "0");
}

TEST_P(MachineTest, TheStepLimitIsExact) {
  // Four instructions that are no loop, and two a turn.
  Options.MaxSteps = 4 + 2 * 10 + 1;
  RunResult result = Run(SumTo(10));
  EXPECT_EQ(result.End, RunEnd::Ended);
  EXPECT_EQ(result.Steps, Options.MaxSteps);
  Options.MaxSteps -= 1;
  result = Run(SumTo(10));
  EXPECT_EQ(result.End, RunEnd::StepLimit);
  EXPECT_EQ(result.Steps, Options.MaxSteps);
  ASSERT_EQ(result.Chain.size(), 1U);
}

Code Forever() {
  Assembled program;
  program.Procedure("", {}, {}, {{Op::JUMP}, Target(0)});
  return std::move(program.Made);
}

TEST_P(MachineTest, AnEndlessLoopEndsAtTheTimeLimit) {
  Options.MaxSeconds = 0.02;
  EXPECT_EQ(Run(Forever()).End, RunEnd::TimeLimit);
}

TEST_P(MachineTest, AnEndlessLoopCanBeStoppedFromAnotherThread) {
  const Code code = Forever();
  RunOptions options;
  options.How = GetParam();
  Machine machine(code, {}, options);
  std::thread stopper([&] { machine.Stop(); });
  EXPECT_EQ(machine.Run().End, RunEnd::Stopped);
  stopper.join();
}

TEST_P(MachineTest, DivisionByZeroNamesTheLine) {
  Assembled program;
  program.Procedure("", {{1}, {0}}, {}, {{Op::MOVE, 0, 0}, {Op::DIV_I, 0, 0, 1}, {Op::RETURN}});
  const RunResult result = Run(program.Made);
  EXPECT_EQ(result.End, RunEnd::Error);
  EXPECT_EQ(result.Text, "Division by zero");
  ASSERT_EQ(result.Chain.size(), 1U);
  EXPECT_EQ(result.Chain[0].At.Line, 2U);
}

/// SUB Deep: calls itself n times, where register 0 holds n.
Code Deep(std::int64_t calls) {
  Assembled program;
  const std::uint16_t shape =
      program.Shape({{SlotKind::Integer, Storage::Whole, false}}, SlotKind::Empty);
  const std::vector<Instruction> call = {
      {Op::CALL, kNoRegister, 1}, {Op::WORD, shape, 1}, {Op::WORD, 0}, {Op::RETURN}};
  program.Procedure("", {{calls}}, {}, call);
  ProcedureCode& deep = program.Procedure(
      "Deep", {{0}, {1}, {0}}, {},
      std::vector<Instruction>{{Op::JUMP_LE_I, 0, 1}, Target(6), {Op::SUB_I, 0, 0, 1}} + call);
  deep.ParameterCount = 1;
  deep.Parameters = {{SlotKind::Integer, Storage::Whole, false, false}};
  return std::move(program.Made);
}

TEST_P(MachineTest, CallsInsideEachOtherHaveALimit) {
  // The top level is a call of its own.
  const auto limit = static_cast<std::int64_t>(kMostCalls);
  EXPECT_EQ(Run(Deep(limit - 1)).End, RunEnd::Ended);
  const RunResult result = Run(Deep(limit));
  EXPECT_EQ(result.End, RunEnd::Error);
  EXPECT_EQ(result.Text, "More than 10000 calls inside each other");
  ASSERT_EQ(result.Chain.size(), kMostCalls);
  EXPECT_EQ(result.Chain.front().Procedure, "Deep");
  EXPECT_EQ(result.Chain.back().Procedure, "");
}

TEST_P(MachineTest, ATextThatGrowsStaysTheSameBody) {
  Assembled program;
  const Slot x = program.Text("xy");
  // r0 text, r1 "xy", r2 i, r3 limit, r4 step
  program.Procedure("", {{0}, x, {1}, {5}, {1}, {0}}, {0},
                    std::vector<Instruction>{{Op::JOIN, 0, 0, 1},
                                             {Op::NEXT_I, 2, 3, 4},
                                             Target(0),
                                             {Op::PRINT_TEXT, 0, 5},
                                             {Op::RETURN}});
  Run(program.Made);
  EXPECT_EQ(log_, "xyxyxyxyxy");
  EXPECT_EQ(x.B->Count, 1U) << "the constant is only the program's again";
}

TEST_P(MachineTest, ATextHasALimit) {
  Options.TextLimit = 9;
  Assembled program;
  const Slot x = program.Text("xyz");
  program.Procedure("", {{0}, x}, {0}, {{Op::JOIN, 0, 0, 1}, {Op::JUMP}, Target(0)});
  const RunResult result = Run(program.Made);
  EXPECT_EQ(result.End, RunEnd::Error);
  EXPECT_EQ(result.Text, "The text is longer than the limit");
}

TEST_P(MachineTest, GosubComesBackBehindItself) {
  Assembled program;
  const Slot a = program.Text("a");
  const Slot b = program.Text("b");
  program.Procedure("", {a, b, {0}}, {},
                    {{Op::GOSUB},
                     Target(7),
                     {Op::GOSUB},
                     Target(7),
                     {Op::PRINT_TEXT, 1, 2},
                     {Op::RETURN_GOSUB},
                     {Op::END},
                     {Op::PRINT_TEXT, 0, 2},
                     {Op::RETURN_GOSUB}});
  EXPECT_EQ(Run(program.Made).End, RunEnd::Ended);
  EXPECT_EQ(log_, "aab") << "without a GOSUB the RETURN ends the program";
}

TEST_P(MachineTest, GosubsWithoutReturnHaveALimit) {
  Assembled program;
  program.Procedure("", {}, {}, {{Op::GOSUB}, Target(0)});
  const RunResult result = Run(program.Made);
  EXPECT_EQ(result.Text, "Too many GOSUBs without RETURN");
}

TEST_P(MachineTest, AnArrayChecksItsIndexes) {
  Assembled program;
  program.Made.Variables.push_back(std::make_unique<FieldLayout>());
  program.Made.Variables[0]->Name = "Digits";
  program.Made.Variables[0]->Element = SlotKind::Integer;
  const ArgumentShape whole{SlotKind::Integer, Storage::Whole, false};
  const std::uint16_t shape = program.Shape({whole, whole}, SlotKind::Empty);
  // r0 array, r1 its address, r2 low, r3 high, r4 index
  program.Procedure("", {{0}, {0}, {1}, {3}, {4}, {0}, {0}}, {0, 6},
                    std::vector<Instruction>{{Op::REF_LOCAL, 1, 0},
                                             {Op::MAKE_ARRAY, 1, 0, 0},
                                             {Op::WORD, shape, 2},
                                             {Op::WORD, 2, 3},
                                             {Op::SET_ELEMENT, 0, 3, 4},
                                             {Op::GET_ELEMENT, 5, 0, 3}} +
                        PrintWhole(6, 5, 1) +
                        std::vector<Instruction>{{Op::GET_ELEMENT, 5, 0, 4}, {Op::RETURN}});
  const RunResult result = Run(program.Made);
  EXPECT_EQ(result.Text, "Index 4 of Digits is outside 1 TO 3");
}

TEST_P(MachineTest, AllArraysTogetherHaveALimit) {
  Options.ArrayLimit = 10;
  Assembled program;
  program.Made.Variables.push_back(std::make_unique<FieldLayout>());
  program.Made.Variables[0]->Element = SlotKind::Number;
  const ArgumentShape whole{SlotKind::Integer, Storage::Whole, false};
  const std::uint16_t shape = program.Shape({whole, whole}, SlotKind::Empty);
  program.Procedure("", {{0}, {0}, {0}, {0}, {5}}, {0, 1},
                    {{Op::REF_LOCAL, 2, 0},
                     {Op::MAKE_ARRAY, 2, 0, 0},
                     {Op::WORD, shape, 2},
                     {Op::WORD, 3, 4},
                     {Op::REF_LOCAL, 2, 1},
                     {Op::MAKE_ARRAY, 2, 0, 0},
                     {Op::WORD, shape, 2},
                     {Op::WORD, 3, 4},
                     {Op::RETURN}});
  EXPECT_EQ(Run(program.Made).Text, "The arrays have more than 10 elements");
  Options.ArrayLimit = 12;
  EXPECT_EQ(Run(program.Made).End, RunEnd::Ended);
}

INSTANTIATE_TEST_SUITE_P(Dispatchers, MachineTest,
                         testing::Values(Dispatch::Threaded, Dispatch::Switch),
                         [](const testing::TestParamInfo<Dispatch>& row) {
                           return row.param == Dispatch::Switch ? "Switch" : "Threaded";
                         });

TEST(CodeDumpTest, ShowsRegistersConstantsAndTargets) {
  EXPECT_EQ(DumpCode(SumTo(100)),
            "procedure 0 main: 6 registers, 1 counted\n"
            "  r1 = 1\n"
            "  r2 = 100\n"
            "  r3 = 1\n"
            "     0     1  FOR_I           r1 r2 r3 -> 6\n"
            "     2     3  ADD_I           r0 r0 r1\n"
            "     3     4  NEXT_I          r1 r2 r3 -> 2\n"
            "     5     6  MOVE            r0 r0\n"
            "     6     7  T_OF_I          r5 r0\n"
            "     7     8  PRINT_TEXT      r5 r4\n"
            "     8     9  RETURN\n");
}

}  // namespace
}  // namespace tarnwick::basic
