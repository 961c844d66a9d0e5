#include "run/stop_listener.h"

#include <string>

#include <poll.h>
#include <unistd.h>

namespace tarnwick::run {

StopListener::StopListener(int input, std::function<void()> stop) : stop_(std::move(stop)) {
  if (::pipe(wake_) != 0) return;
  thread_ = std::thread([this, input] { Listen(input); });
}

StopListener::~StopListener() {
  if (wake_[1] >= 0) ::close(wake_[1]);
  if (thread_.joinable()) thread_.join();
  if (wake_[0] >= 0) ::close(wake_[0]);
}

void StopListener::Listen(int input) {
  std::string line;
  for (;;) {
    pollfd waiting[] = {{input, POLLIN, 0}, {wake_[0], POLLIN, 0}};
    if (::poll(waiting, 2, -1) < 0) continue;
    if (waiting[1].revents != 0) return;
    if (waiting[0].revents == 0) continue;
    char bytes[256];
    const ssize_t count = ::read(input, bytes, sizeof bytes);
    if (count <= 0) return stop_();
    for (ssize_t i = 0; i < count; ++i) {
      if (bytes[i] != '\n') {
        line += bytes[i];
        continue;
      }
      if (line == "stop" || line == "stop\r") return stop_();
      if (line == "leave" || line == "leave\r") return;
      line.clear();
    }
  }
}

}  // namespace tarnwick::run
