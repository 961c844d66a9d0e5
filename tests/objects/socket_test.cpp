#include <gtest/gtest.h>

#include "fakes/memory_network.h"
#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

/// A program with the sockets S (a server on port 80), A and B (its client) on a network in memory.
class SocketProgram : public test::ObjectProgram {
 public:
  explicit SocketProgram(const std::string& text)
      : ObjectProgram("DIM S AS QSOCKET, A AS QSOCKET, B AS QSOCKET\n" + text) {
    Network = &Net;
  }
  [[nodiscard]] std::string Notes() const {
    std::string notes;
    for (const basic::RunNote& note : Result.Notes) notes += note.Text + "\n";
    return notes;
  }
  test::MemoryNetwork Net;
};

/// Lines that open the server and connect both: the numbers are in hs, ha and hb.
const std::string kConnected =
    "DIM hs AS INTEGER, ha AS INTEGER, hb AS INTEGER\nhs = S.Open(80)\n"
    "ha = A.Connect(\"here\", 80)\nhb = B.Accept(hs)\n";

TEST(Sockets, OpenAndConnectGiveTheirNumbers) {
  SocketProgram program(kConnected + "PRINT hs; ha; hb; \" \"; S.MySocket; A.MySocket; B.MySocket");
  EXPECT_EQ(program.Run(), "123 120\n") << "Accept opens nothing of its own";
  EXPECT_EQ(program.Notes(), "");
}

TEST(Sockets, WhatIsWrittenAtOneEndIsReadAtTheOther) {
  SocketProgram program(
      kConnected +
      "PRINT A.WriteLine(ha, \"one\"); A.Transferred;\nA.Write(ha, \"abcdef\", 4)\n"
      "PRINT A.Transferred;\nA.WriteByte(ha, 200)\nPRINT B.ReadLine(hb); "
      "B.Transferred;\nPRINT B.Read(hb, 99); B.Transferred\nB.Write(hb, \"back\")\n"
      "PRINT A.ReadByte(ha); A.Transferred; A.Read(ha, 2)");
  EXPECT_EQ(program.Run(), std::string("554one5abcd\xC8") + "5\n981ac\n");
}

TEST(Sockets, LinesEndWithALineFeedOrWithTheConnection) {
  SocketProgram program(
      kConnected +
      "A.Write(ha, \"a\" + CHR$(13) + CHR$(10) + CHR$(10) + \"b\" + CHR$(13))\n"
      "A.Close(ha)\nPRINT \"<\"; B.ReadLine(hb); \"><\"; B.ReadLine(hb); \"><\";\n"
      "PRINT LEN(B.ReadLine(hb)); \"><\"; B.ReadLine(hb); \">\"; B.Transferred");
  EXPECT_EQ(program.Run(), "<a><><2><>0\n");
}

TEST(Sockets, PeekLeavesWhatHasCome) {
  SocketProgram program(kConnected +
                        "A.Write(ha, \"abc\")\nPRINT B.Peek(hb, 2); B.Peek(hb, 9); B.Read(hb, 9);\n"
                        "PRINT \"<\"; B.Peek(hb, 9); B.Peek(hb, -1); \">\"");
  EXPECT_EQ(program.Run(), "ababcabc<>\n");
}

TEST(Sockets, TheyTellWhetherSomethingHasCome) {
  SocketProgram program(
      "h = S.Open(80)\nPRINT S.ConnectionReady(h);\nc = A.Connect(\"here\", 80)\n"
      "PRINT S.ConnectionReady(h); S.IsServerReady(h);\nd = S.Accept(h)\n"
      "PRINT S.ConnectionReady(h); A.IsServerReady(c); S.IsClientReady(h, d);\n"
      "A.Write(c, \"x\")\nPRINT S.IsClientReady(h, d); A.IsServerReady(c);\nS.Close(d)\n"
      "PRINT A.IsServerReady(c); A.IsServerReady(99); A.IsServerReady(-1)");
  EXPECT_EQ(program.Run(), "01100010100\n");
}

TEST(Sockets, AnEndedConnectionGivesNothingAndTakesNothing) {
  SocketProgram program(kConnected +
                        "A.Close\nPRINT \"<\"; B.Read(hb, 5); \">\"; B.Transferred; "
                        "B.ReadByte(hb); B.WriteLine(hb, \"x\")");
  EXPECT_EQ(program.Run(), "<>000\n");
  EXPECT_EQ(program.Notes(), "B: only 0 of 3 bytes were sent by socket 3\n");
}

TEST(Sockets, ARefusedConnectionGivesMinusOneAndANote) {
  SocketProgram program("PRINT A.Connect(\"here\", 80); A.MySocket; A.Connect(\"nowhere\", 80)");
  EXPECT_EQ(program.Run(), "-1-1-1\n");
  EXPECT_EQ(program.Notes(),
            "A cannot connect to here, port 80: the connection was refused\n"
            "A cannot connect to nowhere, port 80: the name is not known\n");
}

TEST(Sockets, APortThatIsTakenGivesMinusOneAndANote) {
  SocketProgram program("PRINT S.Open(80); A.Open(80)\nS.Close\nPRINT A.Open(80)");
  EXPECT_EQ(program.Run(), "1-1\n2\n");
  EXPECT_EQ(program.Notes(), "A cannot wait for clients on port 80: the port is in use\n");
}

TEST(Sockets, PortsAndDatagramsThatCannotBeHaveANote) {
  SocketProgram program(
      "PRINT A.Connect(\"here\", 65536); A.Open(-1);\nA.Type = 2\nPRINT A.Open(80)");
  EXPECT_EQ(program.Run(), "-1-1-1\n");
  EXPECT_EQ(program.Notes(),
            "A: 65536 is no port; ports go up to 65535\nA: -1 is no port; ports go up to 65535\n"
            "A: only streams can be connected, not datagrams\n");
}

TEST(Sockets, AWrongNumberIsAnError) {
  EXPECT_EQ(SocketProgram("PRINT A.Read(7, 1)").Run(),
            "error: A: there is no socket 7; it was closed or never opened");
  EXPECT_EQ(SocketProgram(kConnected + "B.Close(hb)\nB.WriteByte(hb, 1)").Run(),
            "error: B: there is no socket 3; it was closed or never opened");
  EXPECT_EQ(SocketProgram(kConnected + "PRINT S.ReadLine(hs)").Run(),
            "error: S: socket 1 waits for clients; read and write by the number that Accept gives");
  EXPECT_EQ(SocketProgram(kConnected + "PRINT S.Accept(ha)").Run(),
            "error: S: no clients come to socket 2; Accept takes the number that Open has given");
}

TEST(Sockets, ClosingWhatIsNotOpenDoesNothing) {
  EXPECT_EQ(SocketProgram("A.Close(9)\nA.Close\nPRINT \"on\"").Run(), "on\n");
}

TEST(Sockets, WaitingHasItsLimit) {
  SocketProgram program(kConnected +
                        "PRINT \"<\"; B.ReadLine(hb); \">\"; S.Accept(hs); "
                        "A.Connect(\"far\", 80)");
  EXPECT_EQ(program.Run(), "<>-1-1\n");
  EXPECT_EQ(program.Net.Now(), 90'000);
  EXPECT_EQ(program.Notes(),
            "S: no client came; ask ConnectionReady before Accept\n"
            "A cannot connect to far, port 80: there is no reply\n");
}

TEST(Sockets, WaitingEndsWithTheProgram) {
  SocketProgram program(kConnected + "PRINT B.ReadLine(hb)\nPRINT \"never\"");
  program.Net.Waiting = [&] { program.World->Terminate(); };
  EXPECT_EQ(program.Run().find("never"), std::string::npos);
  EXPECT_LT(program.Net.Now(), 100);
}

TEST(Sockets, AReaderWaitsForWhatComesLater) {
  SocketProgram program(kConnected + "PRINT B.ReadLine(hb); B.Read(hb, 3)");
  const std::vector<std::string> pieces{"li", "ne\r\n", "", "r"};
  std::size_t next = 0;
  program.Net.Waiting = [&] {
    if (next < pieces.size()) program.Net.Write(2, pieces[next++]);
  };
  EXPECT_EQ(program.Run(), "liner\n");
}

TEST(Sockets, AWriterWaitsWhileTheOtherSideIsFull) {
  SocketProgram program(kConnected + "A.Write(ha, STRING$(1000, \"x\"))\nPRINT A.Transferred");
  program.Net.Room = 64;
  program.Net.Waiting = [&] { program.Net.Read(3, 64); };
  EXPECT_EQ(program.Run(), "1000\n");
}

TEST(Sockets, ALineMayBeHuge) {
  SocketProgram program(kConnected +
                        "A.Write(ha, STRING$(3000000, \"x\") + CHR$(10) + \"y\")\n"
                        "PRINT LEN(B.ReadLine(hb)); B.Transferred; B.Read(hb, 9)");
  EXPECT_EQ(program.Run(), "30000003000001y\n");
}

TEST(Sockets, MachinesHaveNamesAndAddresses) {
  EXPECT_EQ(SocketProgram(kConnected + "PRINT S.GetHostName; S.GetHostIP; A.GetPeerName(ha); "
                                       "A.GetPeerName(77)")
                .Run(),
            "here10.0.0.1here\n");
}

TEST(Sockets, WithoutANetworkTheProgramIsToldSo) {
  SocketProgram program(
      "PRINT S.Open(80); A.Connect(\"here\", 80); A.IsServerReady(1); A.GetHostName\nA.Close\n"
      "PRINT A.ReadLine(-1)");
  program.Network = nullptr;
  const std::string why = "there are no network connections in a run without windows";
  EXPECT_EQ(program.Run(), "-1-10\nerror: A: " + why);
  EXPECT_EQ(program.Notes(), "S: " + why + "\nA: " + why + "\n");
  ASSERT_EQ(program.Result.Notes.size(), 2U);
  EXPECT_EQ(program.Result.Notes[0].At.Line, 2U) << "notes have their place";
}

}  // namespace
}  // namespace tarnwick::objects
