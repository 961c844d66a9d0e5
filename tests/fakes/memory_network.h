// Connections within one program, in memory: what is written at one end has come to the other.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "objects/network_port.h"

namespace tarnwick::test {

/// The machine is called "here" and has the address 10.0.0.1; it knows no other. Waiting takes no
/// time, but the clock goes on by it.
class MemoryNetwork final : public objects::NetworkPort {
 public:
  std::int64_t Listen(int port) override;
  std::int64_t Connect(std::string_view host, int port) override;
  objects::SocketState StateOf(std::int64_t socket) override;
  bool HasClient(std::int64_t server) override;
  std::int64_t Accept(std::int64_t server) override;
  std::string Peek(std::int64_t socket, std::size_t most) override;
  std::string Read(std::int64_t socket, std::size_t most) override;
  std::size_t Write(std::int64_t socket, std::string_view bytes) override;
  void Close(std::int64_t socket) override;
  std::string PeerName(std::int64_t socket) override;
  std::string HostName() override { return "here"; }
  std::string HostAddress() override { return "10.0.0.1"; }
  void Wait(int milliseconds) override;
  std::int64_t Now() override { return now_; }
  std::string Reason() override { return reason_; }

  std::function<void()> Waiting;       ///< what happens while the program waits
  std::size_t Room = std::size_t(-1);  ///< bytes that may wait at a socket

 private:
  struct Socket {
    int Port = 0;
    std::int64_t Other = 0;
    std::vector<std::int64_t> Clients;
    std::string Bytes;  ///< that have come
    objects::SocketState State = objects::SocketState::None;
  };
  std::int64_t ServerAt(int port) const;

  std::map<std::int64_t, Socket> sockets_;
  std::int64_t made_ = 0;
  std::int64_t now_ = 0;
  std::string reason_;
};

}  // namespace tarnwick::test
