#include "platform/native_process.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include "fakes/temporary_folder.h"

namespace tarnwick {
namespace {

/// Puts PATH back at the end of a test.
class SearchPath {
 public:
  explicit SearchPath(const std::string& path) : old_(std::getenv("PATH")) {
    ::setenv("PATH", path.c_str(), 1);
  }
  ~SearchPath() { ::setenv("PATH", old_.c_str(), 1); }
  SearchPath(const SearchPath&) = delete;
  SearchPath& operator=(const SearchPath&) = delete;

 private:
  std::string old_;
};

class NativeProcessTest : public ::testing::Test {
 protected:
  void Script(const std::string& name, const std::string& body) {
    Folder.Write(name, "#!/bin/sh\n" + body);
    ::chmod(Folder.Native(name).c_str(), 0755);
  }
  /// A script that writes its arguments, one a line, into "out" in one step.
  void ArgumentScript(const std::string& name) {
    Script(name, "printf '%s\\n' \"$@\" > '" + Folder.Native("part") + "'\nmv '" +
                     Folder.Native("part") + "' '" + Folder.Native("out") + "'\n");
  }
  /// What the started script wrote.
  std::string Output() {
    for (int i = 0; i < 1000 && !std::filesystem::exists(Folder.Native("out")); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return Folder.Read("out");
  }

  TemporaryFolder Folder;
  NativeProcess Processes;
};

TEST_F(NativeProcessTest, ArgumentsArriveAsTheLineSays) {
  ArgumentScript("Rc.exe");
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("Rc.exe") + " /COMPILE  \"\" \"Z:\\a b.com\" x"));
  EXPECT_EQ(Output(), "/COMPILE\n\nZ:\\a b.com\nx\n");
}

TEST_F(NativeProcessTest, AFolderWithBlanksNeedsNoQuotes) {
  std::filesystem::create_directory(Folder.Native("my folder"));
  ArgumentScript("my folder/Rc.exe");
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("my folder/Rc.exe") + " one"));
  EXPECT_EQ(Output(), "one\n");
}

TEST_F(NativeProcessTest, TheEndingExeNeedNotBeWritten) {
  ArgumentScript("rc.EXE");
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("RC") + " one"));
  EXPECT_EQ(Output(), "one\n");
}

TEST_F(NativeProcessTest, ArgumentsArriveInUtf8) {
  ArgumentScript("Rc.exe");
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("Rc.exe") + " ni\xF1o"));
  EXPECT_EQ(Output(), "ni\xC3\xB1o\n");
}

TEST_F(NativeProcessTest, AWindowsProgramGoesThroughWine) {
  ArgumentScript("wine");
  Folder.Write("Rc.exe", "MZ...");
  const SearchPath path(Folder.Native() + ":" + std::getenv("PATH"));
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("Rc.exe") + " \"a b\""));
  EXPECT_EQ(Output(), Folder.Native("Rc.exe") + "\na b\n");
}

TEST_F(NativeProcessTest, WithoutWineAWindowsProgramCannotStart) {
  Folder.Write("Rc.exe", "MZ...");
  ::chmod(Folder.Native("Rc.exe").c_str(), 0755);
  const SearchPath path(Folder.Native());
  EXPECT_FALSE(Processes.StartHidden(Folder.Path("Rc.exe")));
}

TEST_F(NativeProcessTest, WhatCannotStartAnswersFalse) {
  EXPECT_FALSE(Processes.StartHidden(""));
  EXPECT_FALSE(Processes.StartHidden(Folder.Path("none.exe") + " x"));
  EXPECT_FALSE(Processes.StartHidden(Folder.Path() + " x"));
  Folder.Write("plain.exe", "#!/bin/sh\n");
  EXPECT_FALSE(Processes.StartHidden(Folder.Path("plain.exe")));
  Folder.Write("junk.exe", "\x01\x02\x03");
  ::chmod(Folder.Native("junk.exe").c_str(), 0755);
  EXPECT_FALSE(Processes.StartHidden(Folder.Path("junk.exe")));
}

TEST_F(NativeProcessTest, NothingIsWaitedForAndNoZombieStays) {
  Script("slow.exe", "exec sleep 5\n");
  Script("fast.exe", "exit 3\n");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("slow.exe")));
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("fast.exe")));
  EXPECT_FALSE(Processes.StartHidden(Folder.Path("none.exe")));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
  // This process has no child left at all, neither running nor dead.
  errno = 0;
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST_F(NativeProcessTest, AStartedProgramHasNoInputAndNoOutput) {
  ArgumentScript("report");
  Script("Rc.exe",
         "a=$(readlink /proc/$$/fd/0)\nb=$(readlink /proc/$$/fd/1)\nc=$(readlink /proc/$$/fd/2)\n"
         "exec '" +
             Folder.Native("report") + "' $a $b $c\n");
  EXPECT_TRUE(Processes.StartHidden(Folder.Path("Rc.exe")));
  EXPECT_EQ(Output(), "/dev/null\n/dev/null\n/dev/null\n");
}

TEST_F(NativeProcessTest, ADocumentGoesToTheDesktopsOpener) {
  ArgumentScript("xdg-open");
  Folder.Write("Tarnwick.chm", "x");
  const SearchPath path(Folder.Native() + ":" + std::getenv("PATH"));
  EXPECT_FALSE(Processes.OpenDocument(Folder.Path("none.chm")));
  EXPECT_TRUE(Processes.OpenDocument(Folder.Path("tarnwick.chm")));
  EXPECT_EQ(Output(), Folder.Native("Tarnwick.chm") + "\n");
}

}  // namespace
}  // namespace tarnwick
