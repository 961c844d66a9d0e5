// Sockets of running programs, over the network of this machine.
#include <QTest>
#include <chrono>

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <gtest/gtest.h>

#include "run/live_program.h"

namespace tarnwick {
namespace {

using test::LiveProgram;

/// Lines that connect A with B over a free port: hs is the server, ha and hb are the ends.
const std::string kConnected =
    "DIM S AS QSOCKET, A AS QSOCKET, B AS QSOCKET\nDIM p AS INTEGER, hs AS INTEGER\n"
    "DIM ha AS INTEGER, hb AS INTEGER\np = 41000\nDO\np = p + 1\nhs = S.Open(p)\n"
    "LOOP UNTIL hs > 0\nha = A.Connect(\"127.0.0.1\", p)\nhb = B.Accept(hs)\n";

/// A program that ends by itself.
class SocketProgram : public LiveProgram {
 public:
  explicit SocketProgram(const std::string& text) : LiveProgram(text) { Pause(20'000); }
};

std::string PrintedBy(const std::string& text) {
  SocketProgram live(text);
  live.Run();
  return live.Printed + (live.Result.Text.empty() ? "" : "error: " + live.Result.Text);
}

TEST(RunSocketsTest, TwoSocketsOfOneProgramTalk) {
  EXPECT_EQ(
      PrintedBy(kConnected + "PRINT A.WriteLine(ha, \"hello\"); B.ReadLine(hb); B.Transferred;\n"
                             "B.Write(hb, \"abcdef\", 3)\nPRINT A.Read(ha, 2); A.ReadByte(ha);\n"
                             "B.WriteByte(hb, 65)\nDO\nLOOP UNTIL A.IsServerReady(ha)\n"
                             "PRINT A.Peek(ha, 5); A.Read(ha, 5); \" \"; A.IsServerReady(ha)"),
      "7hello7ab99AA 0\n");
}

TEST(RunSocketsTest, ClientsAreSeenBeforeTheyAreAccepted) {
  EXPECT_EQ(PrintedBy(kConnected +
                      "PRINT S.ConnectionReady(hs);\nDIM C AS QSOCKET\n"
                      "hc = C.Connect(\"localhost\", p)\nDO\nLOOP UNTIL S.ConnectionReady(hs)\n"
                      "hd = S.Accept(hs)\nC.Write(hc, \"x\")\nDO\n"
                      "LOOP UNTIL S.IsClientReady(hs, hd)\nPRINT S.Read(hd, 1); "
                      "C.GetPeerName(hc); \" \"; S.GetPeerName(hd)"),
            "0xlocalhost 127.0.0.1\n");
}

TEST(RunSocketsTest, WhatWasSentBeforeTheEndIsReadThenNothingMore) {
  EXPECT_EQ(PrintedBy(kConnected +
                      "A.Write(ha, \"last\")\nA.Close(ha)\nPRINT B.ReadLine(hb); B.Transferred; "
                      "B.ReadLine(hb); B.Transferred; B.IsServerReady(hb)"),
            "last401\n");
}

TEST(RunSocketsTest, AnEndedConnectionTakesNothing) {
  SocketProgram live(kConnected + "B.Close(hb)\nA.ReadLine(ha)\nPRINT A.WriteLine(ha, \"x\")");
  live.Run();
  EXPECT_EQ(live.Printed, "0\n");
  ASSERT_EQ(live.Result.Notes.size(), 1U);
  EXPECT_NE(live.Result.Notes[0].Text.find("A: only 0 of 3 bytes were sent"), std::string::npos);
}

TEST(RunSocketsTest, ARefusedConnectionHasANoteWithTheReason) {
  SocketProgram live(kConnected + "S.Close(hs)\nPRINT A.Connect(\"127.0.0.1\", p)");
  live.Run();
  EXPECT_EQ(live.Printed, "-1\n");
  ASSERT_EQ(live.Result.Notes.size(), 1U);
  const std::string& note = live.Result.Notes[0].Text;
  EXPECT_TRUE(note.starts_with("A cannot connect to 127.0.0.1, port ")) << note;
  EXPECT_NE(note.find("refused"), std::string::npos) << note;
}

TEST(RunSocketsTest, AWrongNumberIsAnError) {
  EXPECT_EQ(PrintedBy(kConnected + "B.Close(hb)\nPRINT B.ReadLine(hb)"),
            "error: B: there is no socket 3; it was closed or never opened");
}

TEST(RunSocketsTest, APortIsTakenOnce) {
  SocketProgram live(kConnected + "PRINT A.Open(p)");
  live.Run();
  EXPECT_EQ(live.Printed, "-1\n");
  ASSERT_EQ(live.Result.Notes.size(), 1U);
}

TEST(RunSocketsTest, HugeLinesGoThrough) {
  EXPECT_EQ(PrintedBy(kConnected + "A.Write(ha, STRING$(3000000, \"x\") + CHR$(10) + \"y\")\n"
                                   "PRINT LEN(B.ReadLine(hb)); B.Transferred; B.Read(hb, 9)"),
            "30000003000001y\n");
}

/// More than the sockets of both ends keep goes on while the program waits to write it.
TEST(RunSocketsTest, AnotherProgramIsServedAtLength) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  std::size_t come = 0;
  QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
    QTcpSocket* const socket = server.nextPendingConnection();
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [&come, socket] {
      come += static_cast<std::size_t>(socket->readAll().size());
      if (come == 12'000'000) socket->write("thanks\r\n");
    });
  });
  EXPECT_EQ(
      PrintedBy("DIM A AS QSOCKET\nh = A.Connect(\"127.0.0.1\", " +
                std::to_string(server.serverPort()) +
                ")\nA.Write(h, STRING$(12000000, \"x\"))\nPRINT A.Transferred; " + "A.ReadLine(h)"),
      "12000000thanks\n");
  EXPECT_EQ(come, 12'000'000U);
}

TEST(RunSocketsTest, AProgramThatWaitsCanBeStopped) {
  SocketProgram live(kConnected + "PRINT B.ReadLine(hb)\nPRINT \"on\"");
  const auto start = std::chrono::steady_clock::now();
  // Nothing but timers reaches a program that waits.
  QTimer::singleShot(100, qApp, [&] { live.World->Terminate(); });
  live.Run();
  EXPECT_EQ(live.Printed.find("on"), std::string::npos);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(RunSocketsTest, HandlersRunBehindTheWaiting) {
  SocketProgram live(
      kConnected +
      "DIM F AS QFORM, T AS QTIMER\nT.Interval = 20\nDIM busy AS INTEGER\n"
      "SUB Ticked\nIF busy THEN PRINT \"within\"\nPRINT \"tick\";\nF.Close\nEND SUB\n"
      "T.OnTimer = Ticked\nF.Show\nbusy = 1\nA.Write(ha, \"x\")\n"
      "B.Read(hb, 1)\nPRINT \"<\"; B.Peek(hb, 1); \">\"\n"
      "FOR k = 1 TO 20\nB.IsServerReady(hb)\nNEXT\nbusy = 0\nF.ShowModal");
  live.Run();
  EXPECT_EQ(live.Printed, "<>\ntick");
}

TEST(RunSocketsTest, TheMachineHasANameAndAnAddress) {
  const std::string printed =
      PrintedBy("DIM A AS QSOCKET\nPRINT LEN(A.GetHostName) > 0; TALLY(A.GetHostIP, \".\")");
  EXPECT_EQ(printed, "-13\n");
}

}  // namespace
}  // namespace tarnwick
