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
  std::int64_t Listen(int port) override {
    if (ServerAt(port) != 0) {
      reason_ = "the port is in use";
      return 0;
    }
    sockets_[++made_] = {port, 0, {}, {}, objects::SocketState::Server};
    return made_;
  }
  std::int64_t Connect(std::string_view host, int port) override {
    const std::int64_t number = ++made_;
    const std::int64_t server = host == "here" ? ServerAt(port) : 0;
    sockets_[number] = {port, 0, {}, {}, objects::SocketState::Connecting};
    if (host == "far") return number;
    reason_ = host == "here" ? "the connection was refused" : "the name is not known";
    if (server == 0) {
      sockets_[number].State = objects::SocketState::Failed;
      return number;
    }
    const std::int64_t other = ++made_;
    sockets_[other] = {port, number, {}, {}, objects::SocketState::Connected};
    sockets_[number].State = objects::SocketState::Connected;
    sockets_[number].Other = other;
    sockets_[server].Clients.push_back(other);
    return number;
  }
  objects::SocketState StateOf(std::int64_t socket) override {
    const auto found = sockets_.find(socket);
    return found == sockets_.end() ? objects::SocketState::None : found->second.State;
  }
  bool HasClient(std::int64_t server) override {
    return StateOf(server) == objects::SocketState::Server && !sockets_[server].Clients.empty();
  }
  std::int64_t Accept(std::int64_t server) override {
    if (!HasClient(server)) return 0;
    std::vector<std::int64_t>& clients = sockets_[server].Clients;
    const std::int64_t client = clients.front();
    clients.erase(clients.begin());
    return client;
  }
  std::string Peek(std::int64_t socket, std::size_t most) override {
    const auto found = sockets_.find(socket);
    return found == sockets_.end() ? std::string() : found->second.Bytes.substr(0, most);
  }
  std::string Read(std::int64_t socket, std::size_t most) override {
    std::string bytes = Peek(socket, most);
    if (!bytes.empty()) sockets_[socket].Bytes.erase(0, bytes.size());
    return bytes;
  }
  std::size_t Write(std::int64_t socket, std::string_view bytes) override {
    if (StateOf(socket) != objects::SocketState::Connected) return 0;
    std::string& come = sockets_[sockets_[socket].Other].Bytes;
    const std::size_t taken = std::min(bytes.size(), Room - std::min(Room, come.size()));
    come += bytes.substr(0, taken);
    return taken;
  }
  void Close(std::int64_t socket) override {
    const auto found = sockets_.find(socket);
    if (found == sockets_.end()) return;
    const auto other = sockets_.find(found->second.Other);
    if (other != sockets_.end()) other->second.State = objects::SocketState::Ended;
    sockets_.erase(found);
  }
  std::string PeerName(std::int64_t socket) override {
    return StateOf(socket) == objects::SocketState::Connected ? "here" : "";
  }
  std::string HostName() override { return "here"; }
  std::string HostAddress() override { return "10.0.0.1"; }
  void Wait(int milliseconds) override {
    now_ += milliseconds;
    if (Waiting) Waiting();
  }
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
  std::int64_t ServerAt(int port) const {
    for (const auto& [number, socket] : sockets_) {
      if (socket.State == objects::SocketState::Server && socket.Port == port) return number;
    }
    return 0;
  }

  std::map<std::int64_t, Socket> sockets_;
  std::int64_t made_ = 0;
  std::int64_t now_ = 0;
  std::string reason_;
};

}  // namespace tarnwick::test
