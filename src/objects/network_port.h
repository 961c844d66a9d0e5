// The connections of a running program to other programs, as the objects ask for them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick::objects {

/// What a socket is at the moment.
enum class SocketState : std::uint8_t {
  None,        ///< there is no socket of this number, or it was closed
  Server,      ///< waits for clients
  Connecting,  ///< has asked for a connection
  Failed,      ///< got none
  Connected,
  Ended  ///< the other side has ended the connection; what it sent before can still be read
};

/// Streams over TCP, by numbers above 0 that are never used again. No function waits but `Wait`,
/// and nothing comes or goes but while it waits or the program handles events.
class NetworkPort {
 public:
  virtual ~NetworkPort() = default;

  /// Begins to wait for clients on a port of this machine (0: any that is free). The number of the
  /// socket; 0 when that cannot be done, see `Reason`.
  virtual std::int64_t Listen(int port) = 0;
  /// Begins to connect to a port of a machine that is given by name or address. The number of the
  /// socket, whose state tells what became of it.
  virtual std::int64_t Connect(std::string_view host, int port) = 0;
  [[nodiscard]] virtual SocketState StateOf(std::int64_t socket) = 0;
  /// True when a client waits at a server.
  [[nodiscard]] virtual bool HasClient(std::int64_t server) = 0;
  /// Takes a client that waits: the number of its socket; 0 when none waits.
  virtual std::int64_t Accept(std::int64_t server) = 0;
  /// Up to `most` bytes that have come; they stay. "" when nothing has come.
  [[nodiscard]] virtual std::string Peek(std::int64_t socket, std::size_t most) = 0;
  /// Takes up to `most` bytes that have come.
  virtual std::string Read(std::int64_t socket, std::size_t most) = 0;
  /// Takes bytes that are to be sent, in order. Returns how many: fewer, or 0, while much waits to
  /// be sent; 0 when the socket is not connected.
  virtual std::size_t Write(std::int64_t socket, std::string_view bytes) = 0;
  /// Ends a connection, behind what is still to be sent, or a server. Nothing for other numbers.
  virtual void Close(std::int64_t socket) = 0;
  /// The name or address of the other end; "" when there is none.
  [[nodiscard]] virtual std::string PeerName(std::int64_t socket) = 0;
  /// The name of this machine.
  [[nodiscard]] virtual std::string HostName() = 0;
  /// The address by which others reach this machine, such as "192.168.1.5".
  [[nodiscard]] virtual std::string HostAddress() = 0;

  /// Lets data come and go for up to so many milliseconds. It may return sooner. Events of the user
  /// wait, and no handler of the program runs.
  virtual void Wait(int milliseconds) = 0;
  /// Milliseconds since some moment, by which limits of time are counted.
  [[nodiscard]] virtual std::int64_t Now() = 0;
  /// Why the last `Listen` gave 0, or the connection that was asked for last has failed.
  [[nodiscard]] virtual std::string Reason() = 0;
};

}  // namespace tarnwick::objects
