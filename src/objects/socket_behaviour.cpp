// Connections to other programs.
#include <algorithm>

#include "objects/behaviour.h"
#include "objects/network_port.h"

namespace tarnwick::objects {
namespace {

constexpr std::int64_t kNoSocket = -1;  ///< what Open, Connect and Accept return on failure
constexpr std::int64_t kMostPort = 65'535;
constexpr std::int64_t kDatagrams = 2;         ///< of Type
constexpr std::int64_t kLongestWait = 30'000;  ///< milliseconds without any progress
constexpr int kOneWait = 20;                   ///< milliseconds between two looks at the stop flag
constexpr int kPollWait = 5;                   ///< milliseconds that a question may take
constexpr std::size_t kPiece = std::size_t{1} << 16U;
constexpr std::size_t kMostRead = std::size_t{256} << 20U;

/// Waits until `done` returns true. False when that takes too long or the program ends.
template <class Done>
bool WaitUntil(ObjectWorld& world, Done done) {
  NetworkPort& network = *world.Network();
  const std::int64_t start = network.Now();
  while (!done()) {
    if (world.Ending() || network.Now() - start >= kLongestWait) return false;
    network.Wait(kOneWait);
  }
  return true;
}

/// True when reading does not wait: bytes have come, or no more will come.
bool IsReadable(NetworkPort& network, std::int64_t number) {
  return !network.Peek(number, 1).empty() || network.StateOf(number) == SocketState::Ended;
}

std::string NoNetwork(const ObjectRecord& socket) {
  return socket.FullName() + ": there are no network connections in a run without windows";
}

/// True when the socket of a number is a connection; else the world has the reason.
bool CheckConnection(ObjectWorld& world, const ObjectRecord& socket, std::int64_t number) {
  NetworkPort* const network = world.Network();
  if (network == nullptr) return world.Fail(NoNetwork(socket));
  switch (network->StateOf(number)) {
    case SocketState::Connected:
    case SocketState::Ended:
      return true;
    case SocketState::Server:
      return world.Fail(socket.FullName() + ": socket " + std::to_string(number) +
                        " waits for clients; read and write by the number that Accept gives");
    default:
      return world.Fail(socket.FullName() + ": there is no socket " + std::to_string(number) +
                        "; it was closed or never opened");
  }
}

/// True when a socket can be had; else there is a note.
bool CanOpen(ObjectWorld& world, const ObjectRecord& socket, std::int64_t port) {
  std::string why;
  if (world.Network() == nullptr) {
    why = NoNetwork(socket);
  } else if (port < 0 || port > kMostPort) {
    why = socket.FullName() + ": " + std::to_string(port) + " is no port; ports go up to " +
          std::to_string(kMostPort);
  } else if (socket.Number(Word::Type) == kDatagrams) {
    why = socket.FullName() + ": only streams can be connected, not datagrams";
  }
  if (why.empty()) return true;
  world.Note(std::move(why));
  return false;
}

void Transferred(ObjectRecord& socket, std::size_t bytes) {
  socket.Put(Word::Transferred, Value::Integer(static_cast<std::int64_t>(bytes)));
}

// --- Sockets

bool Open(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
          std::span<Value> arguments, Value& result) {
  result = Value::Integer(kNoSocket);
  socket.Put(Word::MySocket, result);
  const std::int64_t port = arguments[0].AsInteger();
  if (!CanOpen(world, socket, port)) return true;
  NetworkPort& network = *world.Network();
  const std::int64_t number = network.Listen(static_cast<int>(port));
  if (number == 0) {
    world.Note(socket.FullName() + " cannot wait for clients on port " + std::to_string(port) +
               ": " + network.Reason());
    return true;
  }
  result = Value::Integer(number);
  socket.Put(Word::MySocket, result);
  return true;
}

bool Connect(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
             std::span<Value> arguments, Value& result) {
  result = Value::Integer(kNoSocket);
  socket.Put(Word::MySocket, result);
  const std::string host = arguments[0].AsText();
  const std::int64_t port = arguments[1].AsInteger();
  if (!CanOpen(world, socket, port)) return true;
  NetworkPort& network = *world.Network();
  const std::int64_t number = network.Connect(host, static_cast<int>(port));
  const bool replied =
      WaitUntil(world, [&] { return network.StateOf(number) != SocketState::Connecting; });
  if (!replied || network.StateOf(number) == SocketState::Failed) {
    world.Note(socket.FullName() + " cannot connect to " + host + ", port " + std::to_string(port) +
               ": " + (replied ? network.Reason() : "there is no reply"));
    network.Close(number);
    return true;
  }
  result = Value::Integer(number);
  socket.Put(Word::MySocket, result);
  return true;
}

bool Accept(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
            std::span<Value> arguments, Value& result) {
  result = Value::Integer(kNoSocket);
  NetworkPort* const network = world.Network();
  if (network == nullptr) return world.Fail(NoNetwork(socket));
  const std::int64_t server = arguments[0].AsInteger();
  if (network->StateOf(server) != SocketState::Server) {
    return world.Fail(socket.FullName() + ": no clients come to socket " + std::to_string(server) +
                      "; Accept takes the number that Open has given");
  }
  if (WaitUntil(world, [&] { return network->HasClient(server); })) {
    result = Value::Integer(network->Accept(server));
  } else {
    world.Note(socket.FullName() + ": no client came; ask ConnectionReady before Accept");
  }
  return true;
}

/// Without a number the socket that the object has opened last.
bool Close(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
           std::span<Value> arguments, Value& /*result*/) {
  if (world.Network() == nullptr) return true;
  world.Network()->Close(arguments.empty() ? socket.Number(Word::MySocket)
                                           : arguments[0].AsInteger());
  return true;
}

/// A server is ready when a client waits, a connection when reading does not wait. The socket in
/// question is the last argument.
bool IsReady(ObjectWorld& world, ObjectRecord& /*object*/, const MemberInfo& /*member*/,
             std::span<Value> arguments, Value& result) {
  result = Value::Integer(0);
  NetworkPort* const network = world.Network();
  if (network == nullptr) return true;
  const std::int64_t number = arguments.back().AsInteger();
  const auto ready = [&] {
    return network->StateOf(number) == SocketState::Server ? network->HasClient(number)
                                                           : IsReadable(*network, number);
  };
  if (!ready()) network->Wait(kPollWait);
  result = Value::Integer(ready() ? 1 : 0);
  return true;
}

// --- What comes

bool ReadBytes(ObjectWorld& world, ObjectRecord& socket, std::int64_t number, std::int64_t most,
               std::string& bytes) {
  if (!CheckConnection(world, socket, number)) return false;
  NetworkPort& network = *world.Network();
  if (most > 0 && WaitUntil(world, [&] { return IsReadable(network, number); })) {
    bytes = network.Read(number, std::min(static_cast<std::size_t>(most), kMostRead));
  }
  Transferred(socket, bytes.size());
  return true;
}

bool Read(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
          std::span<Value> arguments, Value& result) {
  std::string bytes;
  if (!ReadBytes(world, socket, arguments[0].AsInteger(), arguments[1].AsInteger(), bytes)) {
    return false;
  }
  result = Value::Text(std::move(bytes));
  return true;
}

bool ReadByte(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& result) {
  std::string bytes;
  if (!ReadBytes(world, socket, arguments[0].AsInteger(), 1, bytes)) return false;
  result = Value::Integer(bytes.empty() ? 0 : static_cast<unsigned char>(bytes[0]));
  return true;
}

/// Up to the LF, without it and a CR in front of it; at the end of a connection what is left.
bool ReadLine(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& result) {
  const std::int64_t number = arguments[0].AsInteger();
  if (!CheckConnection(world, socket, number)) return false;
  NetworkPort& network = *world.Network();
  std::string line;
  bool ends = false;
  while (!ends && line.size() < kMostRead &&
         WaitUntil(world, [&] { return IsReadable(network, number); })) {
    const std::string piece = network.Peek(number, kPiece);
    if (piece.empty()) break;
    const std::size_t end = piece.find('\n');
    ends = end != std::string::npos;
    line += network.Read(number, ends ? end + 1 : piece.size());
  }
  Transferred(socket, line.size());
  if (ends) line.pop_back();
  if (ends && !line.empty() && line.back() == '\r') line.pop_back();
  result = Value::Text(std::move(line));
  return true;
}

/// What has come already; it never waits for more.
bool Peek(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
          std::span<Value> arguments, Value& result) {
  const std::int64_t number = arguments[0].AsInteger();
  if (!CheckConnection(world, socket, number)) return false;
  NetworkPort& network = *world.Network();
  if (!IsReadable(network, number)) network.Wait(kPollWait);
  const std::int64_t most = std::max<std::int64_t>(arguments[1].AsInteger(), 0);
  result = Value::Text(network.Peek(number, std::min(static_cast<std::size_t>(most), kMostRead)));
  return true;
}

// --- What goes

/// Sends all bytes unless the other side is gone or takes nothing for too long; then there is a
/// note.
bool WriteBytes(ObjectWorld& world, ObjectRecord& socket, std::int64_t number,
                std::string_view bytes) {
  if (!CheckConnection(world, socket, number)) return false;
  NetworkPort& network = *world.Network();
  std::size_t sent = 0;
  const auto goes_on = [&] {
    const std::size_t taken = network.Write(number, bytes.substr(sent));
    sent += taken;
    return taken > 0 || network.StateOf(number) != SocketState::Connected;
  };
  while (sent < bytes.size() && network.StateOf(number) == SocketState::Connected &&
         WaitUntil(world, goes_on)) {
  }
  Transferred(socket, sent);
  if (sent < bytes.size()) {
    world.Note(socket.FullName() + ": only " + std::to_string(sent) + " of " +
               std::to_string(bytes.size()) + " bytes were sent by socket " +
               std::to_string(number));
  }
  return true;
}

/// As many bytes as asked for; without a number all.
bool Write(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
           std::span<Value> arguments, Value& /*result*/) {
  const std::string text = arguments[1].AsText();
  std::size_t count = text.size();
  if (arguments.size() > 2) {
    count = static_cast<std::size_t>(std::max<std::int64_t>(arguments[2].AsInteger(), 0));
  }
  return WriteBytes(world, socket, arguments[0].AsInteger(),
                    std::string_view(text).substr(0, count));
}

bool WriteByte(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
               std::span<Value> arguments, Value& /*result*/) {
  const char byte = static_cast<char>(arguments[1].AsInteger() & 0xFF);
  return WriteBytes(world, socket, arguments[0].AsInteger(), std::string_view(&byte, 1));
}

bool WriteLine(ObjectWorld& world, ObjectRecord& socket, const MemberInfo& /*member*/,
               std::span<Value> arguments, Value& result) {
  const std::string line = arguments[1].AsText() + "\r\n";
  if (!WriteBytes(world, socket, arguments[0].AsInteger(), line)) return false;
  result = Value::Integer(socket.Number(Word::Transferred));
  return true;
}

// --- Names

bool GetName(ObjectWorld& world, ObjectRecord& /*object*/, const MemberInfo& method,
             std::span<Value> arguments, Value& result) {
  NetworkPort* const network = world.Network();
  std::string name;
  if (network != nullptr && method.Name == Word::GetHostIP) name = network->HostAddress();
  if (network != nullptr && method.Name == Word::GetHostName) name = network->HostName();
  if (network != nullptr && method.Name == Word::GetPeerName) {
    name = network->PeerName(arguments[0].AsInteger());
  }
  result = Value::Text(std::move(name));
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QSocket, Word::Open, {.Call = Open}},
    {QSocket, Word::Connect, {.Call = Connect}},
    {QSocket, Word::Accept, {.Call = Accept}},
    {QSocket, Word::Close, {.Call = Close}},
    {QSocket, Word::ConnectionReady, {.Call = IsReady}},
    {QSocket, Word::IsServerReady, {.Call = IsReady}},
    {QSocket, Word::IsClientReady, {.Call = IsReady}},
    {QSocket, Word::Read, {.Call = Read}},
    {QSocket, Word::ReadByte, {.Call = ReadByte}},
    {QSocket, Word::ReadLine, {.Call = ReadLine}},
    {QSocket, Word::Peek, {.Call = Peek}},
    {QSocket, Word::Write, {.Call = Write}},
    {QSocket, Word::WriteByte, {.Call = WriteByte}},
    {QSocket, Word::WriteLine, {.Call = WriteLine}},
    {QSocket, Word::GetHostIP, {.Call = GetName}},
    {QSocket, Word::GetHostName, {.Call = GetName}},
    {QSocket, Word::GetPeerName, {.Call = GetName}},
};

}  // namespace

BehaviourRows SocketBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
