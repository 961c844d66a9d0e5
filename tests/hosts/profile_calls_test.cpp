#include "hosts/profile_calls.h"

#include <gtest/gtest.h>

#include "basic/check/front_end.h"
#include "basic/code/emitter.h"
#include "basic/vm/machine.h"
#include "fakes/memory_files.h"
#include "fakes/program_hosts.h"
#include "objects/class_table.h"
#include "platform/profile_files.h"

namespace tarnwick::hosts {
namespace {

constexpr const char* kDeclares =
    "DECLARE FUNCTION ReadIt LIB \"kernel32\" ALIAS \"GetPrivateProfileStringA\" (S AS STRING, "
    "K AS STRING, D AS STRING, B AS LONG, N AS LONG, F AS STRING) AS LONG\n"
    "DECLARE FUNCTION WriteIt LIB \"kernel32.dll\" ALIAS \"WritePrivateProfileStringA\" "
    "(S AS STRING, K AS STRING, V AS STRING, F AS STRING) AS LONG\n";

class OneSource : public basic::SourceReader {
 public:
  explicit OneSource(std::string text) : text_(std::move(text)) {}
  std::optional<std::string> ReadSource(const std::string&) override { return text_; }

 private:
  std::string text_;
};

std::string Printed(const std::string& lines) {
  OneSource source(kDeclares + lines);
  const objects::ClassTable classes;
  const basic::FrontEndResult checked = basic::CheckProgram("C:\\p.bas", source, classes, {});
  if (!checked.Checked) return checked.Found.All().front().Text;
  const basic::EmitResult emitted = basic::Emit(*checked.Checked);
  CallLog calls;
  MemoryFiles disk(calls);
  ProfileFiles profiles(disk);
  ProfileCalls natives(profiles);
  std::string log;
  tarnwick::test::LogConsole console(log);
  basic::Hosts hosts;
  hosts.Console = &console;
  hosts.Natives = &natives;
  basic::Machine machine(emitted.Made, hosts, {});
  const basic::RunResult result = machine.Run();
  return log + result.Text;
}

TEST(ProfileCalls, WhatWasWrittenIsReadIntoTheVariableBehindTheAddress) {
  EXPECT_EQ(
      Printed(
          "DIM b$ AS STRING, n AS LONG\nPRINT WriteIt(\"S\", \"Key\", \"value\", \"C:\\a.ini\")\n"
          "b$ = SPACE$(20)\nn = ReadIt(\"s\", \"KEY\", \"none\", VARPTR(b$), 20, \"C:\\a.ini\")\n"
          "PRINT n; LEFT$(b$, n); ASC(MID$(b$, n + 1, 1))"),
      "1\n5value0\n");
}

TEST(ProfileCalls, AnAbsentKeyGivesTheTextForThatCase) {
  EXPECT_EQ(
      Printed("DIM b$ AS STRING\nb$ = SPACE$(9)\n"
              "PRINT ReadIt(\"S\", \"K\", \"none\", VARPTR(b$), 9, \"C:\\no.ini\"); LEFT$(b$, 4)"),
      "4none\n");
}

TEST(ProfileCalls, NoMoreIsWrittenThanTheBufferHolds) {
  EXPECT_EQ(
      Printed(
          "DIM b$ AS STRING\nb$ = SPACE$(4)\n"
          "PRINT ReadIt(\"S\", \"K\", \"abcdefgh\", VARPTR(b$), 4, \"C:\\no.ini\"); LEFT$(b$, 3)"),
      "3abc\n");
  EXPECT_EQ(Printed("PRINT ReadIt(\"S\", \"K\", \"abc\", 77, 10, \"C:\\no.ini\")"),
            "ReadIt: the buffer is not a variable with room for the text");
}

TEST(ProfileCalls, OtherEntriesAreNotThere) {
  CallLog calls;
  MemoryFiles disk(calls);
  ProfileFiles profiles(disk);
  ProfileCalls natives(profiles);
  EXPECT_FALSE(natives.Find("user32", "GetPrivateProfileStringA").has_value());
  EXPECT_FALSE(natives.Find("kernel32", "Beep").has_value());
  EXPECT_TRUE(natives.Find("KERNEL32.DLL", "getprivateprofilestringa").has_value());
}

}  // namespace
}  // namespace tarnwick::hosts
