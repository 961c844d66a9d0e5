// The connections of a running program, by the toolkit's sockets.
#pragma once

#include <QElapsedTimer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "objects/network_port.h"

class QTcpServer;
class QTcpSocket;

namespace tarnwick::run {

/// Bytes that a socket keeps at most: come and not read, or written and not sent.
inline constexpr qint64 kMostKept = qint64{4} << 20;

/// Sockets of one program. What is still to be sent when it goes has two seconds for that.
class TcpNetwork final : public objects::NetworkPort {
 public:
  /// `rest` handles events for up to so many milliseconds, those of sockets included and those of
  /// the user not.
  explicit TcpNetwork(std::function<void(int)> rest);
  ~TcpNetwork() override;
  TcpNetwork(const TcpNetwork&) = delete;
  TcpNetwork& operator=(const TcpNetwork&) = delete;

  std::int64_t Listen(int port) override;
  std::int64_t Connect(std::string_view host, int port) override;
  objects::SocketState StateOf(std::int64_t number) override;
  bool HasClient(std::int64_t server) override;
  std::int64_t Accept(std::int64_t server) override;
  std::string Peek(std::int64_t socket, std::size_t most) override;
  std::string Read(std::int64_t socket, std::size_t most) override;
  std::size_t Write(std::int64_t socket, std::string_view bytes) override;
  void Close(std::int64_t number) override;
  std::string PeerName(std::int64_t socket) override;
  std::string HostName() override;
  std::string HostAddress() override;
  void Wait(int milliseconds) override;
  std::int64_t Now() override { return clock_.elapsed(); }
  std::string Reason() override { return reason_; }

 private:
  struct Socket {
    std::unique_ptr<QTcpServer> Server;
    std::unique_ptr<QTcpSocket> Stream;
    bool Connected = false;  ///< now or before
  };
  Socket* Find(std::int64_t number);
  QTcpSocket* StreamOf(std::int64_t number);
  std::int64_t Add(std::unique_ptr<QTcpSocket> stream, bool connected);

  std::function<void(int)> rest_;
  QElapsedTimer clock_;
  std::map<std::int64_t, Socket> sockets_;
  std::vector<std::unique_ptr<QTcpSocket>> closing_;  ///< closed, with bytes to be sent
  std::int64_t made_ = 0;
  std::string reason_;
};

}  // namespace tarnwick::run
