// Stops a program when the one that started it says so.
#pragma once

#include <functional>
#include <thread>

namespace tarnwick::run {

/// Reads lines from a file descriptor in a thread of its own: the line "stop" and the end of the
/// input both call back, from that thread and once. Behind the line "leave" neither does: the
/// program that started this one has ended and leaves it to itself.
class StopListener {
 public:
  StopListener(int input, std::function<void()> stop);
  ~StopListener();
  StopListener(const StopListener&) = delete;
  StopListener& operator=(const StopListener&) = delete;

 private:
  void Listen(int input);

  std::function<void()> stop_;
  int wake_[2] = {-1, -1};  ///< a pipe whose closing ends the thread
  std::thread thread_;
};

}  // namespace tarnwick::run
