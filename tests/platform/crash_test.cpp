// A save that is killed leaves the old text or the new one, never half.
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "fakes/temporary_folder.h"
#include "platform/native_files.h"

namespace tarnwick {
namespace {

/// Saves the two texts in turn until it is killed.
[[noreturn]] void SaveForever(const std::string& path, const std::string& a, const std::string& b) {
  NativeFiles files;
  for (;;) {
    files.Replace(path, b);
    files.Replace(path, a);
  }
}

TEST(Crash, AKilledSaveLeavesTheOldOrTheNewText) {
  const TemporaryFolder folder;
  const std::string a(300000, 'a');
  const std::string b(170000, 'b');
  const std::string path = folder.Path("p.ftn");
  folder.Write("p.ftn", a);
  std::minstd_rand random(20260101);
  std::uniform_int_distribution<int> microseconds(0, 8000);
  int seen_b = 0;
  for (int round = 0; round < 60; ++round) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForever(path, a, b);
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    const std::string now = folder.Read("p.ftn");
    ASSERT_TRUE(now == a || now == b) << "round " << round << ": " << now.size() << " bytes";
    if (now == b) ++seen_b;
  }
  // Otherwise every kill came before the first save, and nothing was shown.
  EXPECT_GT(seen_b, 0);
}

}  // namespace
}  // namespace tarnwick
