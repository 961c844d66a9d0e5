#include "persistence/record_check.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

const std::string kForm = "[Form](1) {F}\r\n";

/// The one fault that there has to be.
RecordFault Only(const std::string& text) {
  const std::vector<RecordFault> faults = FaultsOfFormText(text);
  EXPECT_EQ(faults.size(), 1U) << text;
  return faults.empty() ? RecordFault{} : faults.front();
}

TEST(RecordCheck, EveryRecordOfTheFormatIsSound) {
  EXPECT_TRUE(FaultsOfFormText(kForm + "\r\n[Button] (1) {A} Left<1>Left Enabled<1>Enabled\r\n"
                                       "[MenuItem] (1) {mnuNew} Click<a>Click\r\n"
                                       "[ItemMenu] (2) {mnuSub} Click<a>Click\r\n"
                                       "[Menu] (1) {mnuFile} String<File>String\r\n"
                                       "[Sub]{item} Click<a>Click\r\n"
                                       "[DeclarePbl] String<Dim x>String")
                  .empty());
}

TEST(RecordCheck, ATextWithoutAFormRecordIsToldFirst) {
  const RecordFault fault = Only("[Button] (1) {A}\r\n");
  EXPECT_EQ(fault.Sort, FaultSort::NoForm);
  EXPECT_EQ(fault.Line, 1U);
  EXPECT_EQ(fault.Kind, "");
  EXPECT_EQ(fault.What, "the file holds no form record");
  const auto more = FaultsOfFormText("\r\njunk\r\n");
  ASSERT_EQ(more.size(), 2U);
  EXPECT_EQ(more[0].Sort, FaultSort::NoForm);
  EXPECT_EQ(more[1].Sort, FaultSort::NoRecord);
  EXPECT_EQ(Only("").Sort, FaultSort::NoForm);
  // The head counts at the very start of its line alone, in any letters.
  EXPECT_EQ(Only(" [Button] (1) {A} [Form]\r\n").Sort, FaultSort::NoForm);
  EXPECT_TRUE(FaultsOfFormText("[FORM](1) {F}\r\n").empty());
}

TEST(RecordCheck, LinesThatAreNoRecordsAreToldByTheirNumber) {
  const RecordFault junk = Only(kForm + "\r\njunk\r\n");
  EXPECT_EQ(junk.Sort, FaultSort::NoRecord);
  EXPECT_EQ(junk.Line, 3U);
  EXPECT_EQ(junk.What, "the line is no record");
  const RecordFault unknown = Only(kForm + "[Gauge] (1) {G}\r\n");
  EXPECT_EQ(unknown.Sort, FaultSort::NoRecord);
  EXPECT_EQ(unknown.Kind, "Gauge");
  EXPECT_EQ(unknown.Name, "G");
  EXPECT_EQ(unknown.What, "the kind is not known");
}

TEST(RecordCheck, AMenuBehindTheStartOfItsLineIsOfNoKnownKind) {
  EXPECT_EQ(Only(kForm + " [Menu] (1) {m}\r\n").Sort, FaultSort::NoRecord);
  EXPECT_EQ(Only(kForm + "[declarepbl] String<x>String\r\n").Sort, FaultSort::NoRecord);
}

TEST(RecordCheck, ANumberThatHoldsNoRecordIsTold) {
  for (const char* number : {"-1", "32768", "1e9"}) {
    const RecordFault fault = Only(kForm + "[Label] (" + number + ") {L} Left<1>Left\r\n");
    EXPECT_EQ(fault.Sort, FaultSort::Number) << number;
    EXPECT_EQ(fault.What,
              "the number (" + std::string(number) + ") cannot be used; its properties are lost");
  }
  for (const char* number : {"0", "32767", ""}) {
    EXPECT_TRUE(FaultsOfFormText(kForm + "[Label] (" + number + ") {L}\r\n").empty()) << number;
  }
  // A form keeps its own number, and files of streams carry none.
  EXPECT_TRUE(FaultsOfFormText("[Form](-4) {F}\r\n[FileStream] {S} Left<1>Left\r\n").empty());
}

TEST(RecordCheck, AValueThatItsFieldCannotHoldIsTold) {
  const RecordFault fault = Only(kForm + "[Label] (1) {L} Cursor<32768>Cursor\r\n");
  EXPECT_EQ(fault.Sort, FaultSort::Value);
  EXPECT_EQ(fault.What, "the value of cursor is out of range: 32768");
  EXPECT_EQ(Only("[Form](1) {F} Left<70000>Left\r\n").What,
            "the value of left is out of range: 70000");
  EXPECT_EQ(Only(kForm + "[Button] (1) {B} FontClr<4294967296>FontClr\r\n").Sort, FaultSort::Value);
  EXPECT_EQ(Only(kForm + "[TransparentFrame] {T} Transparent<4294967296>Transparent\r\n").Sort,
            FaultSort::Value);
  EXPECT_EQ(Only(kForm + "[PopUpMenu] (1) {P} String<40000>String\r\n").Sort, FaultSort::Value);
  EXPECT_TRUE(FaultsOfFormText(kForm + "[Label] (1) {L} Cursor<32767>Cursor String<99999>String\r\n"
                                       "[Button] (1) {B} FontClr<2147483647>FontClr\r\n")
                  .empty());
}

}  // namespace
}  // namespace tarnwick
