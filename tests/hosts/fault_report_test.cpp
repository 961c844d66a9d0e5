// A fault of the runner itself: what is kept of it, and where.
#include "hosts/fault_report.h"

#include <cstdlib>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "basic/vm/machine.h"
#include "fakes/program_hosts.h"
#include "fakes/temporary_folder.h"
#include "hosts/prepared_program.h"
#include "objects/class_table.h"

namespace tarnwick::hosts {
namespace {

/// A console whose printing fails as the runner itself may.
class FaultyConsole final : public test::LogConsole {
 public:
  explicit FaultyConsole(bool memory = false) : LogConsole(log_), memory_(memory) {}
  void Write(int, std::string_view) override {
    if (memory_) throw std::bad_alloc();
    throw std::runtime_error("the console broke");
  }

 private:
  std::string log_;
  bool memory_;
};

/// Sets the user's data folder.
class DataFolder {
 public:
  explicit DataFolder(const std::string& path) {
    const char* const before = std::getenv("XDG_DATA_HOME");
    before_ = before == nullptr ? "" : before;
    ::setenv("XDG_DATA_HOME", path.c_str(), 1);
  }
  ~DataFolder() {
    if (before_.empty()) {
      ::unsetenv("XDG_DATA_HOME");
    } else {
      ::setenv("XDG_DATA_HOME", before_.c_str(), 1);
    }
  }

 private:
  std::string before_;
};

class FaultReportTest : public testing::Test {
 protected:
  /// Runs a program whose first PRINT throws. Returns the message to the user.
  std::string TextOfRun(const std::string& text, FaultyConsole& console,
                        const basic::RunOptions& options = {}) {
    folder.Write("p.bas", text);
    const PreparedProgram program =
        PrepareProgram(folder.Native("p.bas"), objects::ClassTable(), {});
    RunReport places(stderr, ReportForm::People, "p");
    places.SetFiles(program.Files);
    FaultWatch watch("tarnwick-run 9.9", folder.Native("p.bas"));
    basic::Hosts hosts;
    hosts.Console = &console;
    basic::Machine machine(program.Code, hosts, options);
    try {
      const FaultWatch::Running running(machine, places);
      static_cast<void>(machine.Run());
    } catch (const std::exception& fault) {
      return watch.Report(fault);
    }
    return "no fault";
  }
  /// The only report in the data folder.
  [[nodiscard]] std::string Report() const {
    const std::string reports = folder.Native("data/tarnwick");
    for (const auto& entry : std::filesystem::directory_iterator(reports)) {
      return folder.Read("data/tarnwick/" + entry.path().filename().string());
    }
    return {};
  }

  TemporaryFolder folder;
  DataFolder data{folder.Native("data")};
};

TEST_F(FaultReportTest, ItNamesProgramFaultAndTheRunningCalls) {
  FaultyConsole console;
  const std::string message = TextOfRun("SUB Work\nx = 1\nPRINT x\nEND SUB\n\nWork\n", console);
  const std::string path = folder.Native("p.bas");
  EXPECT_TRUE(message.starts_with("fault of the runner: the console broke, in Work, " + path +
                                  ":3:1. A report is in " + folder.Native("data/tarnwick/")))
      << message;
  EXPECT_EQ(Report(),
            "tarnwick-run 9.9 failed.\n\n"
            "fault:   the console broke\n"
            "program: " +
                path +
                "\n"
                "steps:   not counted\n"
                "The program was at\n"
                "  in Work, " +
                path +
                ":3:1\n"
                "  in the program, " +
                path + ":6:1\n");
}

TEST_F(FaultReportTest, TheTopLevelIsNamedByItsLine) {
  FaultyConsole console;
  static_cast<void>(TextOfRun("x = 1\nPRINT x\n", console));
  EXPECT_NE(Report().find("The program was at\n  " + folder.Native("p.bas") + ":2:1\n"),
            std::string::npos)
      << Report();
}

TEST_F(FaultReportTest, StepsAreNamedWhereTheyAreCounted) {
  FaultyConsole console;
  basic::RunOptions options;
  options.MaxSteps = 1000;
  static_cast<void>(TextOfRun("x = 1\nPRINT x\n", console, options));
  const std::string report = Report();
  EXPECT_EQ(report.find("not counted"), std::string::npos) << report;
  EXPECT_NE(report.find("steps:   "), std::string::npos) << report;
}

TEST_F(FaultReportTest, AWantOfMemoryIsAFaultLikeAnyOther) {
  FaultyConsole console(true);
  const std::string message = TextOfRun("PRINT 1\n", console);
  EXPECT_TRUE(message.starts_with("fault of the runner: ")) << message;
  EXPECT_NE(Report().find("p.bas:1:1"), std::string::npos);
}

TEST_F(FaultReportTest, WithoutARunningProgramNoLineIsNamed) {
  FaultWatch watch("tarnwick-run 9.9", "");
  const std::string message = watch.Report(std::runtime_error("early"));
  EXPECT_TRUE(message.starts_with("fault of the runner: early. A report is in ")) << message;
  EXPECT_EQ(Report(),
            "tarnwick-run 9.9 failed.\n\nfault:   early\nsteps:   not counted\n"
            "No line of the program was running.\n");
}

TEST_F(FaultReportTest, AFolderThatCannotBeMadeIsPassedOver) {
  folder.Write("file", "");
  const std::string path = WriteFaultReport(
      {"r", "p", "w", {}, 7}, {folder.Native("file/below"), folder.Native("second/third")});
  EXPECT_TRUE(path.starts_with(folder.Native("second/third/run-fault-"))) << path;
  EXPECT_NE(TextOf({"r", "p", "w", {}, 7}).find("steps:   7\n"), std::string::npos);
  EXPECT_EQ(WriteFaultReport({}, {folder.Native("file/below")}), "");
  EXPECT_EQ(WriteFaultReport({}, {}), "");
}

TEST_F(FaultReportTest, TheUsersDataFolderComesBeforeTheTemporaryOne) {
  const std::vector<std::string> folders = FaultFolders();
  ASSERT_EQ(folders.size(), 2U);
  EXPECT_EQ(folders[0], folder.Native("data/tarnwick"));
  EXPECT_EQ(folders[1], std::filesystem::temp_directory_path().string());
}

TEST_F(FaultReportTest, ADataFolderThatIsNoAbsolutePathIsIgnored) {
  const DataFolder relative("below");
  for (const std::string& found : FaultFolders()) EXPECT_TRUE(found.starts_with("/")) << found;
}

/// Lets no exception through.
void Closed(const std::string& text, FaultyConsole& console) noexcept {
  const TemporaryFolder folder;
  folder.Write("p.bas", text);
  const PreparedProgram program = PrepareProgram(folder.Native("p.bas"), objects::ClassTable(), {});
  const RunReport places(stderr, ReportForm::People, "p");
  basic::Hosts hosts;
  hosts.Console = &console;
  basic::Machine machine(program.Code, hosts, {});
  const FaultWatch::Running running(machine, places);
  static_cast<void>(machine.Run());
}

/// As a program does whose toolkit lets none through.
void WatchedAndClosed(const std::string& text, FaultyConsole& console) {
  const FaultWatch watch("tarnwick-run 9.9", "p.bas");
  Closed(text, console);
}

TEST_F(FaultReportTest, AFaultThatCannotBeCaughtIsReportedAsTheProcessEnds) {
  FaultyConsole console;
  EXPECT_EXIT(WatchedAndClosed("PRINT 1\n", console), testing::ExitedWithCode(6),
              "tarnwick-run 9.9: fault of the runner: the console broke.*A report is in ");
  EXPECT_NE(Report().find("fault:   the console broke\n"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::hosts
