// Types that extend a class, CREATE, WITH, BIND and SUBI on real objects.
#include <gtest/gtest.h>

#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

TEST(ExtendedTypes, HaveTheMembersOfTheirClassAndTheirOwn) {
  EXPECT_EQ(PrintedBy("TYPE QCounter EXTENDS QBUTTON\nCount AS INTEGER\nCONSTRUCTOR\nCount = 5\n"
                      "Caption = \"five\"\nWidth = 90\nEND CONSTRUCTOR\nSUB Up (n AS INTEGER)\n"
                      "This.Count = This.Count + n\nThis.Caption = STR$(This.Count)\nEND SUB\n"
                      "END TYPE\nDIM C AS QCounter\nPRINT C.Caption; C.Width;\nC.Up 2\n"
                      "PRINT C.Count; C.Caption; C.Height"),
            "five907725\n");
}

TEST(ExtendedTypes, TheirEventRunsInPlaceOfTheInheritedOne) {
  ObjectProgram program(
      "TYPE QOnce EXTENDS QBUTTON\nPresses AS INTEGER\nEVENT OnClick\nThis.Presses++\n"
      "PRINT \"own\"; This.Presses\nEND EVENT\nEND TYPE\nDIM F AS QFORM\nDIM B AS QOnce\n"
      "B.Parent = F\nF.ShowModal");
  program.ThenClick("B");
  program.ThenClick("B");
  EXPECT_EQ(program.Run(), "own1\nown2\n");
}

TEST(ExtendedTypes, SuperReachesTheMemberOfTheClass) {
  EXPECT_EQ(PrintedBy("TYPE QLoud EXTENDS QLABEL\nCaption AS STRING PROPERTY SET SetCaption\n"
                      "PROPERTY SET SetCaption (s AS STRING)\nThis.Caption = s\n"
                      "SUPER.Caption = UCASE$(s)\nEND PROPERTY\nFUNCTION Shown AS STRING\n"
                      "RESULT = SUPER.Caption\nEND FUNCTION\nEND TYPE\nDIM L AS QLoud\n"
                      "L.Caption = \"hey\"\nPRINT L.Caption; L.Shown"),
            "heyHEY\n");
}

TEST(ExtendedTypes, EventsOfTheirOwnAreCalledThroughTheType) {
  EXPECT_EQ(PrintedBy("DECLARE SUB Filled_T (n AS INTEGER)\nTYPE QBox EXTENDS QPANEL\n"
                      "OnFilled AS EVENT(Filled_T)\nSUB Fill (n AS INTEGER)\n"
                      "IF This.OnFilled <> 0 THEN CALLFUNC This.OnFilled, n\nEND SUB\nEND TYPE\n"
                      "SUB Filled_T (n AS INTEGER)\nEND SUB\nSUB Full (n AS INTEGER)\n"
                      "PRINT \"filled\"; n\nEND SUB\nDIM B AS QBox\nB.Fill 1\n"
                      "B.OnFilled = Full\nB.Fill 2"),
            "filled2\n");
}

TEST(ExtendedTypes, ObjectsAsFieldsStandOnTheirOwner) {
  ObjectProgram program(
      "TYPE QPair EXTENDS QPANEL\nOk AS QBUTTON\nCONSTRUCTOR\nOk.Parent = This\n"
      "Ok.Caption = \"ok\"\nEND CONSTRUCTOR\nEVENT Ok.OnClick\nPRINT \"clicked \"; Ok.Caption\n"
      "END EVENT\nEND TYPE\nDIM F AS QFORM\nDIM P AS QPair\nP.Parent = F\nF.ShowModal");
  program.Then([&] {
    program.World->ForEach([&](const ObjectRecord& record) {
      if (record.Is(ObjectClass::QButton)) program.World->Click(record.Id);
    });
  });
  EXPECT_EQ(program.Run(), "clicked ok\n");
}

TEST(ExtendedTypes, ArraysOfThemRunEveryConstructor) {
  EXPECT_EQ(PrintedBy("TYPE QTen EXTENDS QEDIT\nCONSTRUCTOR\nText = \"ten\"\nEND CONSTRUCTOR\n"
                      "END TYPE\nDIM T(2) AS QTen\nT(1).Text = \"x\"\n"
                      "PRINT T(0).Text; T(1).Text; T(2).Text"),
            "tenxten\n");
}

TEST(Create, NestsObjectsAndCallsMethods) {
  ObjectProgram program(
      "SUB Click\nPRINT \"click\"\nEND SUB\nCREATE F AS QFORM\nWidth = 300\nDelBorderIcons = 2\n"
      "Center\nCREATE P AS QPANEL\nAlign = 1\nCREATE B AS QBUTTON\nCaption = \"Go\"\n"
      "OnClick = Click\nEND CREATE\nEND CREATE\nCREATE L AS QLISTBOX\nAddItems \"a\", \"b\"\n"
      "END CREATE\nShow\nEND CREATE\nPRINT L.ItemCount; F.Width; P.Align");
  EXPECT_EQ(program.Run(), "23001\n");
  EXPECT_EQ(program.Object("B")->Parent, program.Id("P"));
  EXPECT_EQ(program.Object("L")->Parent, program.Id("F"));
  EXPECT_EQ(program.Object("F")->As<FormState>()->Icons, 3);
  EXPECT_TRUE(program.Object("F")->Truth(Word::Visible));
  EXPECT_TRUE(program.Object("B")->IsHooked(Word::OnClick));
}

TEST(With, ReachesMembersByALeadingDot) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTBOX\nWITH L\n.AddItems \"a\"\n.AddItems \"b\", \"c\"\n"
                      ".ItemIndex = 1\nPRINT .ItemCount; .Item(.ItemIndex)\nEND WITH"),
            "3b\n");
}

TEST(Bind, AVariableStandsForARoutineOnObjects) {
  EXPECT_EQ(PrintedBy("DIM v AS LONG\nDIM B AS QBUTTON\nSUB Name (s AS STRING)\nB.Caption = s\n"
                      "END SUB\nBIND v TO Name\nCALLFUNC v, \"bound\"\nPRINT B.Caption"),
            "bound\n");
}

TEST(SubI, TakesAnyNumberOfArguments) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTBOX\nSUBI Fill (...)\nDIM i AS INTEGER\n"
                      "FOR i = 1 TO PARAMSTRCOUNT\nL.AddItems PARAMSTR$(i)\nNEXT\n"
                      "L.Tag = PARAMVAL(1)\nEND SUBI\nFill \"a\", 7, \"b\"\n"
                      "PRINT L.ItemCount; L.Item(1); L.Tag"),
            "2b7\n");
}

TEST(LeftOutClasses, AreNamedWithTheReason) {
  EXPECT_EQ(PrintedBy("DIM R AS QREGISTRY\n"),
            "1: QREGISTRY is not supported by the runner: the registry belongs to Windows. "
            "Use a settings file\n");
}

}  // namespace
}  // namespace tarnwick::objects
