#include "run/stop_listener.h"

#include <array>
#include <atomic>
#include <chrono>
#include <string_view>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

namespace tarnwick::run {
namespace {

/// A listener on a pipe.
class StopListenerTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(::pipe(pipe_.data()), 0); }
  void TearDown() override {
    if (!closed_) ::close(pipe_[1]);
    ::close(pipe_[0]);
  }
  void Write(std::string_view text) {
    ASSERT_EQ(::write(pipe_[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  void Close() {
    ::close(pipe_[1]);
    closed_ = true;
  }
  /// How often it has called back, once it has or after a moment.
  int CallsSoon() {
    for (int i = 0; i < 60 && calls_ == 0; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return calls_;
  }

  std::array<int, 2> pipe_{};
  bool closed_ = false;
  std::atomic<int> calls_ = 0;
};

TEST_F(StopListenerTest, TheWordStopCallsBackOnce) {
  const StopListener listener(pipe_[0], [this] { ++calls_; });
  Write("other\nsto");
  Write("p\nstop\n");
  EXPECT_EQ(CallsSoon(), 1);
}

TEST_F(StopListenerTest, TheEndOfTheInputCallsBack) {
  const StopListener listener(pipe_[0], [this] { ++calls_; });
  Close();
  EXPECT_EQ(CallsSoon(), 1);
}

TEST_F(StopListenerTest, BehindTheWordLeaveNothingCallsBack) {
  const StopListener listener(pipe_[0], [this] { ++calls_; });
  Write("leave\n");
  Close();
  EXPECT_EQ(CallsSoon(), 0);
}

TEST_F(StopListenerTest, ItCanGoWhileTheInputIsOpen) {
  {
    const StopListener listener(pipe_[0], [this] { ++calls_; });
  }
  EXPECT_EQ(calls_, 0);
}

}  // namespace
}  // namespace tarnwick::run
