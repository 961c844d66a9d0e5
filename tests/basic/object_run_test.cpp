// What the machine does to objects, and what they raise in it.
#include <gtest/gtest.h>

#include "basic/object_world.h"

namespace tarnwick::basic::test {
namespace {

TEST(ObjectRunTest, PropertiesAndArrayPropertiesAreReadAndSet) {
  const BoxRun run = RunBoxes(
      "DIM b AS QBOX\nb.Size = 3\nb.Size = b.Size + 4\nb.Item(2) = \"two\"\n"
      "PRINT b.Size; b.Item(2); b.Item(1)\n");
  EXPECT_EQ(run.Faults, "");
  EXPECT_EQ(run.Printed, "7two\n");
  EXPECT_EQ(run.Log, "make b\n");
}

TEST(ObjectRunTest, AnArrayOfObjectsMakesAllOfThem) {
  const BoxRun run = RunBoxes("DIM b(2) AS QBOX\nb(1).Size = 5\nPRINT b(1).Size; b(2).Size\n");
  EXPECT_EQ(run.Log, "make b0\nmake b1\nmake b2\n");
  EXPECT_EQ(run.Printed, "50\n");
}

TEST(ObjectRunTest, AMethodFillsAVariableAndFitsItToItsWidth) {
  const BoxRun run =
      RunBoxes("DIM b AS QBOX, n AS BYTE\nb.Size = 258\nb.Fill(n)\nPRINT n; b.Twice(4)\n");
  EXPECT_EQ(run.Faults, "");
  EXPECT_EQ(run.Printed, "28\n");
}

TEST(ObjectRunTest, AnObjectOfAProcedureEndsWithIt) {
  const BoxRun run = RunBoxes("SUB Work\nDIM b AS QBOX\nb.Size = 1\nEND SUB\nWork\nWork\n");
  EXPECT_EQ(run.Log, "make b\nfree b\nmake b\nfree b\n");
}

TEST(ObjectRunTest, WhatAHandlerLeavesInItsParameterFlowsBack) {
  const BoxRun run = RunBoxes(
      "SUB Handle(n AS INTEGER)\nPRINT \"got \"; n\nn = n + 1\nEND SUB\n"
      "DIM b AS QBOX\nb.OnFire = Handle\nb.Fire(41)\n");
  EXPECT_EQ(run.Faults, "");
  EXPECT_EQ(run.Printed, "got 41\n");
  EXPECT_EQ(run.Log, "make b\nfired 42\n");
}

TEST(ObjectRunTest, AParameterOfAnObjectTypeGetsTheSender) {
  const BoxRun run = RunBoxes(
      "SUB Handle(n AS INTEGER, Sender AS QBOX)\nPRINT n; \" from \"; Sender.Size\nEND SUB\n"
      "DIM b AS QBOX\nb.Size = 9\nb.OnFire = Handle\nb.Fire(1)\n");
  EXPECT_EQ(run.Faults, "");
  EXPECT_EQ(run.Printed, "1 from 9\n");
}

TEST(ObjectRunTest, AParameterOfATypeOfOnesOwnGetsTheSenderWithItsFields) {
  const BoxRun run = RunBoxes(
      "TYPE TBox EXTENDS QBOX\nExtra AS INTEGER\nEND TYPE\n"
      "SUB Handle(n AS INTEGER, Sender AS TBox)\nPRINT n; \" from \"; Sender.Extra\nEND SUB\n"
      "DIM b AS TBox\nb.Extra = 7\nb.OnFire = Handle\nb.Fire(1)\n");
  EXPECT_EQ(run.Faults, "");
  EXPECT_EQ(run.Printed, "1 from 7\n");
}

TEST(ObjectRunTest, EndInsideAHandlerEndsTheProgram) {
  const BoxRun run = RunBoxes(
      "SUB Handle(n AS INTEGER)\nEND\nEND SUB\nDIM b AS QBOX\nb.OnFire = Handle\nb.Fire(1)\n"
      "PRINT \"never\"\n");
  EXPECT_EQ(run.Result.End, RunEnd::Ended);
  EXPECT_EQ(run.Printed, "");
  EXPECT_EQ(run.Log, "make b\n");
}

TEST(ObjectRunTest, AnErrorInsideAHandlerShowsTheWholeChain) {
  const BoxRun run = RunBoxes(
      "SUB Handle(n AS INTEGER)\nPRINT 1 \\ (n - 1)\nEND SUB\nDIM b AS QBOX\nb.OnFire = Handle\n"
      "b.Fire(1)\n");
  EXPECT_EQ(run.Result.End, RunEnd::Error);
  ASSERT_EQ(run.Result.Chain.size(), 2U);
  EXPECT_EQ(run.Result.Chain[0].Procedure, "Handle");
  EXPECT_EQ(run.Result.Chain[0].At.Line, 2U);
  EXPECT_EQ(run.Result.Chain[1].At.Line, 6U);
}

/// A handler that fires its own event so many times inside each other.
BoxRun RunNested(std::size_t depth) {
  return RunBoxes(
      "DIM b AS QBOX\nSUB Handle(n AS INTEGER)\nIF n > 1 THEN b.Fire(n - 1)\nEND SUB\n"
      "b.OnFire = Handle\nb.Fire(" +
      std::to_string(depth) + ")\nPRINT \"back\"\n");
}

TEST(ObjectRunTest, EventsInsideEachOtherHaveALimit) {
  EXPECT_EQ(RunNested(kMostActivations - 1).Printed, "back\n");
  EXPECT_EQ(RunNested(kMostActivations).Printed, "back\n");
  const BoxRun run = RunNested(kMostActivations + 1);
  EXPECT_EQ(run.Result.End, RunEnd::Error);
  EXPECT_EQ(run.Result.Text, "More than 200 events or pointer calls inside each other");
}

TEST(ObjectRunTest, AnAssignmentBetweenObjectsThatCopyCopiesTheirValues) {
  const BoxRun run =
      RunBoxes("DIM a AS QBOX, b AS QBOX\na.Size = 6\nb = a\na.Size = 1\nPRINT b.Size\n");
  EXPECT_EQ(run.Faults, "");
  EXPECT_EQ(run.Printed, "6\n");
}

TEST(ObjectRunTest, BothWaysOfDispatchingDoTheSame) {
  const std::string text =
      "SUB Handle(n AS INTEGER)\nn = n * 2\nEND SUB\nDIM b AS QBOX\nb.OnFire = Handle\n"
      "FOR i = 1 TO 3\nb.Fire(i)\nNEXT\nPRINT Screen.Size\n";
  const BoxRun threaded = RunBoxes(text, Dispatch::Threaded);
  const BoxRun switched = RunBoxes(text, Dispatch::Switch);
  EXPECT_EQ(threaded.Log, "make b\nfired 2\nfired 4\nfired 6\nmake Screen\n");
  EXPECT_EQ(threaded.Log, switched.Log);
  EXPECT_EQ(threaded.Printed, switched.Printed);
  EXPECT_EQ(threaded.Result.Steps, switched.Result.Steps);
}

}  // namespace
}  // namespace tarnwick::basic::test
