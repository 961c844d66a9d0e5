#include "fakes/memory_network.h"

namespace tarnwick::test {

std::int64_t MemoryNetwork::Listen(int port) {
  if (ServerAt(port) != 0) {
    reason_ = "the port is in use";
    return 0;
  }
  sockets_[++made_] = {port, 0, {}, {}, objects::SocketState::Server};
  return made_;
}

std::int64_t MemoryNetwork::Connect(std::string_view host, int port) {
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

objects::SocketState MemoryNetwork::StateOf(std::int64_t socket) {
  const auto found = sockets_.find(socket);
  return found == sockets_.end() ? objects::SocketState::None : found->second.State;
}

bool MemoryNetwork::HasClient(std::int64_t server) {
  return StateOf(server) == objects::SocketState::Server && !sockets_[server].Clients.empty();
}

std::int64_t MemoryNetwork::Accept(std::int64_t server) {
  if (!HasClient(server)) return 0;
  std::vector<std::int64_t>& clients = sockets_[server].Clients;
  const std::int64_t client = clients.front();
  clients.erase(clients.begin());
  return client;
}

std::string MemoryNetwork::Peek(std::int64_t socket, std::size_t most) {
  const auto found = sockets_.find(socket);
  return found == sockets_.end() ? std::string() : found->second.Bytes.substr(0, most);
}

std::string MemoryNetwork::Read(std::int64_t socket, std::size_t most) {
  std::string bytes = Peek(socket, most);
  if (!bytes.empty()) sockets_[socket].Bytes.erase(0, bytes.size());
  return bytes;
}

std::size_t MemoryNetwork::Write(std::int64_t socket, std::string_view bytes) {
  if (StateOf(socket) != objects::SocketState::Connected) return 0;
  std::string& come = sockets_[sockets_[socket].Other].Bytes;
  const std::size_t taken = std::min(bytes.size(), Room - std::min(Room, come.size()));
  come += bytes.substr(0, taken);
  return taken;
}

void MemoryNetwork::Close(std::int64_t socket) {
  const auto found = sockets_.find(socket);
  if (found == sockets_.end()) return;
  const auto other = sockets_.find(found->second.Other);
  if (other != sockets_.end()) other->second.State = objects::SocketState::Ended;
  sockets_.erase(found);
}

std::string MemoryNetwork::PeerName(std::int64_t socket) {
  return StateOf(socket) == objects::SocketState::Connected ? "here" : "";
}

void MemoryNetwork::Wait(int milliseconds) {
  now_ += milliseconds;
  if (Waiting) Waiting();
}

std::int64_t MemoryNetwork::ServerAt(int port) const {
  for (const auto& [number, socket] : sockets_) {
    if (socket.State == objects::SocketState::Server && socket.Port == port) return number;
  }
  return 0;
}

}  // namespace tarnwick::test
