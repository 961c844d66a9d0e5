#include "shell/program_setup.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"

namespace tarnwick {
namespace {

const std::string kInstalled = "Z:\\usr\\share\\tarnwick";
const std::string kOwn = "Z:\\home\\ann\\.local\\share\\tarnwick";

class ProgramSetup : public ::testing::Test {
 protected:
  FakePorts ports;
  void SetUp() override {
    for (const std::string_view name : kProgramFiles) {
      ports.Files.Put(kInstalled + "\\" + std::string(name), "of " + std::string(name));
    }
  }
};

TEST_F(ProgramSetup, FillsAnEmptyFolder) {
  EXPECT_EQ(FillProgramFolder(ports.Files, kInstalled, kOwn), 7);
  for (const std::string_view name : kProgramFiles) {
    EXPECT_EQ(ports.Files.Bytes(kOwn + "\\" + std::string(name)), "of " + std::string(name));
  }
}

TEST_F(ProgramSetup, WhatIsThereStays) {
  ports.Files.Put(kOwn + "\\IconApp.ico", "my own");
  EXPECT_EQ(FillProgramFolder(ports.Files, kInstalled, kOwn), 6);
  EXPECT_EQ(ports.Files.Bytes(kOwn + "\\IconApp.ico"), "my own");
}

TEST_F(ProgramSetup, ASecondStartCopiesNothing) {
  FillProgramFolder(ports.Files, kInstalled, kOwn);
  ports.Log.Clear();
  EXPECT_EQ(FillProgramFolder(ports.Files, kInstalled, kOwn), 0);
  EXPECT_TRUE(ports.Log.Entries().empty());
}

TEST_F(ProgramSetup, WhatIsNotInstalledIsPassedOver) {
  ports.Files.Remove(kInstalled + "\\Tarnwick.chm");
  EXPECT_EQ(FillProgramFolder(ports.Files, kInstalled, kOwn), 6);
  EXPECT_FALSE(ports.Files.Exists(kOwn + "\\Tarnwick.chm"));
}

TEST_F(ProgramSetup, TheUsersCompilerIsNotCopied) {
  ports.Files.Put(kInstalled + "\\Rc.exe", "MZ");
  FillProgramFolder(ports.Files, kInstalled, kOwn);
  EXPECT_FALSE(ports.Files.Exists(kOwn + "\\Rc.exe"));
}

TEST_F(ProgramSetup, AFolderIsNotFilledFromItself) {
  EXPECT_EQ(FillProgramFolder(ports.Files, kInstalled, kInstalled), 0);
}

TEST_F(ProgramSetup, AFolderThatCannotBeWrittenStaysEmpty) {
  ports.Files.SetReadOnly(true);
  EXPECT_EQ(FillProgramFolder(ports.Files, kInstalled, kOwn), 0);
}

}  // namespace
}  // namespace tarnwick
