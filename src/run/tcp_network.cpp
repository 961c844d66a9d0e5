#include "run/tcp_network.h"

#include <QHostInfo>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <algorithm>

#include "looks/text_bridge.h"

namespace tarnwick::run {

using objects::SocketState;

TcpNetwork::TcpNetwork(std::function<void(int)> rest) : rest_(std::move(rest)) {
  clock_.start();
}

TcpNetwork::~TcpNetwork() {
  constexpr qint64 kLongest = 2000;
  for (auto& [number, socket] : sockets_) {
    if (socket.Stream != nullptr) closing_.push_back(std::move(socket.Stream));
  }
  const qint64 start = clock_.elapsed();
  for (const auto& stream : closing_) {
    while (stream->bytesToWrite() > 0) {
      const qint64 left = kLongest - (clock_.elapsed() - start);
      if (left <= 0 || !stream->waitForBytesWritten(static_cast<int>(left))) break;
    }
  }
}

TcpNetwork::Socket* TcpNetwork::Find(std::int64_t number) {
  const auto found = sockets_.find(number);
  return found == sockets_.end() ? nullptr : &found->second;
}

QTcpSocket* TcpNetwork::StreamOf(std::int64_t number) {
  const Socket* const socket = Find(number);
  return socket == nullptr ? nullptr : socket->Stream.get();
}

std::int64_t TcpNetwork::Add(std::unique_ptr<QTcpSocket> stream, bool connected) {
  Socket& made = sockets_[++made_];
  stream->setReadBufferSize(kMostKept);
  QObject::connect(stream.get(), &QTcpSocket::connected, stream.get(),
                   [&made] { made.Connected = true; });
  made.Connected = connected;
  made.Stream = std::move(stream);
  return made_;
}

std::int64_t TcpNetwork::Listen(int port) {
  auto server = std::make_unique<QTcpServer>();
  server->setProxy(QNetworkProxy::NoProxy);
  if (!server->listen(QHostAddress::AnyIPv4, static_cast<quint16>(port))) {
    reason_ = looks::FromQString(server->errorString());
    return 0;
  }
  sockets_[++made_].Server = std::move(server);
  return made_;
}

std::int64_t TcpNetwork::Connect(std::string_view host, int port) {
  auto stream = std::make_unique<QTcpSocket>();
  stream->setProxy(QNetworkProxy::NoProxy);
  QTcpSocket& begun = *stream;
  const std::int64_t number = Add(std::move(stream), false);
  begun.connectToHost(looks::ToQString(host), static_cast<quint16>(port));
  return number;
}

SocketState TcpNetwork::StateOf(std::int64_t number) {
  const Socket* const socket = Find(number);
  if (socket == nullptr) return SocketState::None;
  if (socket->Server != nullptr) return SocketState::Server;
  switch (socket->Stream->state()) {
    case QAbstractSocket::ConnectedState:
      return SocketState::Connected;
    case QAbstractSocket::HostLookupState:
    case QAbstractSocket::ConnectingState:
      return SocketState::Connecting;
    default:
      if (socket->Connected) return SocketState::Ended;
      reason_ = looks::FromQString(socket->Stream->errorString());
      return SocketState::Failed;
  }
}

bool TcpNetwork::HasClient(std::int64_t server) {
  const Socket* const socket = Find(server);
  return socket != nullptr && socket->Server != nullptr && socket->Server->hasPendingConnections();
}

std::int64_t TcpNetwork::Accept(std::int64_t server) {
  if (!HasClient(server)) return 0;
  std::unique_ptr<QTcpSocket> stream(Find(server)->Server->nextPendingConnection());
  if (stream == nullptr) return 0;
  // It outlives the server that took it.
  stream->setParent(nullptr);
  return Add(std::move(stream), true);
}

std::string TcpNetwork::Peek(std::int64_t socket, std::size_t most) {
  QTcpSocket* const stream = StreamOf(socket);
  if (stream == nullptr) return {};
  const auto count = std::min<qint64>(stream->bytesAvailable(), static_cast<qint64>(most));
  return count <= 0 ? std::string() : stream->peek(count).toStdString();
}

std::string TcpNetwork::Read(std::int64_t socket, std::size_t most) {
  QTcpSocket* const stream = StreamOf(socket);
  if (stream == nullptr) return {};
  const auto count = std::min<qint64>(stream->bytesAvailable(), static_cast<qint64>(most));
  return count <= 0 ? std::string() : stream->read(count).toStdString();
}

std::size_t TcpNetwork::Write(std::int64_t socket, std::string_view bytes) {
  QTcpSocket* const stream = StreamOf(socket);
  if (stream == nullptr || stream->state() != QAbstractSocket::ConnectedState) return 0;
  const qint64 room = std::max<qint64>(0, kMostKept - stream->bytesToWrite());
  const qint64 taken =
      stream->write(bytes.data(), std::min(room, static_cast<qint64>(bytes.size())));
  stream->flush();
  return static_cast<std::size_t>(std::max<qint64>(taken, 0));
}

void TcpNetwork::Close(std::int64_t number) {
  const auto found = sockets_.find(number);
  if (found == sockets_.end()) return;
  if (found->second.Stream != nullptr) {
    std::unique_ptr<QTcpSocket> stream = std::move(found->second.Stream);
    // Its record goes.
    stream->disconnect();
    if (found->second.Connected) {
      stream->disconnectFromHost();
    } else {
      stream->abort();
    }
    if (stream->state() != QAbstractSocket::UnconnectedState) closing_.push_back(std::move(stream));
  }
  sockets_.erase(found);
}

std::string TcpNetwork::PeerName(std::int64_t socket) {
  const QTcpSocket* const stream = StreamOf(socket);
  if (stream == nullptr) return {};
  return looks::FromQString(stream->peerName().isEmpty() ? stream->peerAddress().toString()
                                                         : stream->peerName());
}

std::string TcpNetwork::HostName() {
  return looks::FromQString(QHostInfo::localHostName());
}

std::string TcpNetwork::HostAddress() {
  for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
    const bool reached = address.protocol() == QAbstractSocket::IPv4Protocol;
    if (reached && !address.isLoopback() && !address.isLinkLocal()) {
      return looks::FromQString(address.toString());
    }
  }
  return "127.0.0.1";
}

void TcpNetwork::Wait(int milliseconds) {
  const qint64 start = clock_.elapsed();
  rest_(milliseconds);
  std::erase_if(closing_, [](const std::unique_ptr<QTcpSocket>& stream) {
    return stream->state() == QAbstractSocket::UnconnectedState;
  });
  // Events that have to wait would keep the processor busy.
  if (clock_.elapsed() == start) QThread::msleep(1);
}

}  // namespace tarnwick::run
