#include "model/record_array.h"

#include <string>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(RecordArray, ANewArrayHasOnlyItsUnusedSlot) {
  const RecordArray<std::string> records;
  EXPECT_EQ(records.UBound(), 0);
  EXPECT_EQ(records.At(0), nullptr);
  EXPECT_EQ(records.At(1), nullptr);
}

TEST(RecordArray, GrowingKeepsContentsAndNeverShrinks) {
  RecordArray<std::string> records;
  *records.Ensure(3) = "three";
  records.GrowTo(40);
  EXPECT_EQ(records.UBound(), 40);
  records.GrowTo(2);
  EXPECT_EQ(records.UBound(), 40);
  ASSERT_NE(records.At(3), nullptr);
  EXPECT_EQ(*records.At(3), "three");
}

TEST(RecordArray, ASlotThatWasNeverWrittenReadsAsAnEmptyRecord) {
  RecordArray<std::string> records;
  *records.Ensure(100) = "far";
  EXPECT_EQ(RecordOrEmpty(records, 50), "");
  EXPECT_EQ(RecordOrEmpty(records, 100), "far");
  EXPECT_EQ(RecordOrEmpty(records, 101), "");
}

TEST(RecordArray, NothingIsThereOutsideTheArray) {
  RecordArray<std::string> records;
  records.GrowTo(2);
  EXPECT_EQ(records.At(-1), nullptr);
  EXPECT_EQ(records.At(3), nullptr);
  EXPECT_EQ(records.Ensure(-1), nullptr);
  EXPECT_EQ(RecordOrEmpty(records, -1), "");
  EXPECT_EQ(records.UBound(), 2);
}

TEST(RecordArray, WritingWithinBoundsNeverGrows) {
  RecordArray<std::string> records;
  records.GrowTo(2);
  EXPECT_NE(records.At(2), nullptr);
  EXPECT_NE(records.At(0), nullptr);
  EXPECT_EQ(records.UBound(), 2);
}

TEST(RecordArray, TheHighestNumberOfAFileFindsItsRecord) {
  RecordArray<std::string> records;
  *records.Ensure(32767) = "last";
  *records.Ensure(1) = "first";
  EXPECT_EQ(records.UBound(), 32767);
  EXPECT_EQ(*records.At(32767), "last");
  EXPECT_EQ(*records.At(1), "first");
}

TEST(RecordArray, RecordsAreFoundInWhateverOrderTheyCame) {
  RecordArray<int> records;
  for (const int index : {30000, 7, 12, 0, 31, 29999, 1, 400}) *records.Ensure(index) = index + 1;
  for (const int index : {0, 1, 7, 12, 31, 400, 29999, 30000}) {
    ASSERT_NE(records.At(index), nullptr);
    EXPECT_EQ(*records.At(index), index + 1);
  }
  const RecordArray<int>& reading = records;
  EXPECT_EQ(reading.At(200), nullptr);
  EXPECT_EQ(RecordOrEmpty(records, 200), 0);
}

TEST(RecordArray, ACopyIsItsOwn) {
  RecordArray<std::string> records;
  *records.Ensure(20) = "old";
  const RecordArray<std::string> copy = records;
  *records.At(20) = "new";
  EXPECT_EQ(*copy.At(20), "old");
  EXPECT_EQ(copy.UBound(), 20);
  records = copy;
  EXPECT_EQ(*records.At(20), "old");
}

TEST(RecordArray, ClearingLeavesTheUnusedSlot) {
  RecordArray<std::string> records;
  *records.Ensure(2) = "x";
  records.Clear();
  EXPECT_EQ(records.UBound(), 0);
  EXPECT_EQ(records.At(2), nullptr);
  EXPECT_EQ(RecordOrEmpty(records, 2), "");
}

}  // namespace
}  // namespace tarnwick
