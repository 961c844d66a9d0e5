// A process that works, and is killed at any moment.
#include <chrono>
#include <csignal>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "fakes/fake_project.h"
#include "fakes/temporary_folder.h"
#include "platform/native_files.h"
#include "platform/native_instance_folders.h"
#include "project/recovery.h"

namespace tarnwick::project {
namespace {

using Clock = std::chrono::steady_clock;

/// How often the work is kept here; the program waits longer, the same for every number of edits.
constexpr auto kKeepEvery = std::chrono::milliseconds(20);
/// What may be lost: the time between two keepings and that of a write on a busy machine.
constexpr auto kMostLost = std::chrono::seconds(5);

/// Edits without end, as one form's hint and as code being typed, and sends the number of each edit
/// through a pipe.
[[noreturn]] void Work(const std::string& parent, int pipe) {
  test::FakeProject project;
  project.Load("[Form](1) {F}\r\n");
  NativeFiles files;
  NativeInstanceFolders folders;
  TypedCode typed;
  Recovery recovery(
      project.Tables, files, folders, parent, [] { return "now"; }, [&] { return typed; });
  recovery.Begin();
  recovery.Settle();
  auto kept = Clock::now();
  for (int edit = 1;; ++edit) {
    project.Form(1).Hint = "edit " + std::to_string(edit) + ";";
    typed["Form1.OnShow"] = "edit " + std::to_string(edit) + ";";
    if (::write(pipe, &edit, sizeof edit) != sizeof edit) ::_exit(1);
    if (Clock::now() - kept >= kKeepEvery) {
      recovery.Keep();
      kept = Clock::now();
    }
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
}

int EditIn(const std::string& form_text) {
  const std::size_t at = form_text.find("edit ");
  return at == std::string::npos ? 0 : std::stoi(form_text.substr(at + 5));
}

TEST(RecoveryOfAProcess, KilledAtAnyMomentItLosesAFewSecondsAtMost) {
  std::mt19937 random(7);
  int offered = 0;
  for (int round = 0; round < 8; ++round) {
    const TemporaryFolder home;
    const std::string parent = home.Path() + "\\recovery";
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(ends[0]);
      Work(parent, ends[1]);
    }
    ::close(ends[1]);
    // The time of each edit, as this process hears of it, until the moment of the kill.
    std::vector<Clock::time_point> edits(1);
    const auto end = Clock::now() + std::chrono::milliseconds(200 + random() % 300);
    for (int edit = 0; Clock::now() < end && ::read(ends[0], &edit, sizeof edit) > 0;) {
      edits.resize(static_cast<std::size_t>(edit) + 1, Clock::now());
    }
    ::kill(child, SIGKILL);
    const auto killed = Clock::now();
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ::close(ends[0]);
    ASSERT_TRUE(WIFSIGNALED(status));

    test::FakeProject next;
    NativeFiles files;
    NativeInstanceFolders folders;
    Recovery recovery(next.Tables, files, folders, parent, [] { return "now"; });
    recovery.Begin();
    const auto offers = recovery.Offers();
    if (offers.empty()) {
      // Killed ahead of its first keeping: that much was all its work.
      if (edits.size() > 1) {
        EXPECT_LT(killed - edits[1], kMostLost);
      }
      continue;
    }
    ++offered;
    ASSERT_EQ(offers.size(), 1U) << "round " << round;
    EXPECT_TRUE(offers[0].Crashed);
    const int edit = EditIn(offers[0].Project.Forms.at(0).Text);
    ASSERT_GT(edit, 0);
    ASSERT_EQ(offers[0].Project.Forms[0].Code.size(), 1U);
    EXPECT_EQ(EditIn(offers[0].Project.Forms[0].Code.at(".OnShow")), edit);
    // The first edit that is lost came no earlier than that before the kill.
    const auto lost = static_cast<std::size_t>(edit) + 1;
    if (lost < edits.size()) {
      EXPECT_LT(killed - edits[lost], kMostLost);
    }
  }
  EXPECT_GT(offered, 0);
}

TEST(RecoveryOfAProcess, ARunningProcessKeepsItsWorkToItselfAndItsProjectIsSeen) {
  const TemporaryFolder home;
  const std::string parent = home.Path() + "\\recovery";
  int ends[2] = {};
  ASSERT_EQ(::pipe(ends), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) Work(parent, ends[1]);
  int edit = 0;
  // So many edits take longer than the first keeping.
  while (edit < 400 && ::read(ends[0], &edit, sizeof edit) > 0) {
  }
  test::FakeProject here;
  NativeFiles files;
  NativeInstanceFolders folders;
  Recovery recovery(here.Tables, files, folders, parent, [] { return "now"; });
  recovery.Begin();
  EXPECT_TRUE(recovery.Offers().empty());
  here.Load("[Form](1) {F}\r\n");
  EXPECT_TRUE(recovery.IsOpenElsewhere(here.Tables.ProjectFile));
  EXPECT_FALSE(recovery.IsOpenElsewhere("C:\\Work\\other.tnp"));
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_FALSE(recovery.IsOpenElsewhere(here.Tables.ProjectFile));
  EXPECT_EQ(recovery.Offers().size(), 1U);
  ::close(ends[0]);
  ::close(ends[1]);
}

}  // namespace
}  // namespace tarnwick::project
