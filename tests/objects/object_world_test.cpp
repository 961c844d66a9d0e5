#include "objects/object_world.h"

#include <gtest/gtest.h>

#include "fakes/object_program.h"
#include "objects/tab_order.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

TEST(Objects, KeepWhatIsSetAndStartWithTheirDefaults) {
  EXPECT_EQ(PrintedBy("DIM B AS QBUTTON\nPRINT B.Width; B.Caption; B.Enabled\n"
                      "B.Caption = \"Go\" : B.Width = 80\nPRINT B.Caption; B.Width"),
            "751\nGo80\n");
}

TEST(Objects, FitValuesIntoTheTypesOfTheirProperties) {
  EXPECT_EQ(PrintedBy("DIM B AS QBUTTON\nB.Left = 10.5 : B.Top = 11.5 : B.Enabled = 7\n"
                      "B.Caption = 12\nPRINT B.Left; \" \"; B.Top; \" \"; B.Enabled; B.Caption"),
            "10 12 112\n");
  EXPECT_EQ(PrintedBy("DIM B AS QBUTTON\nB.Tag = 4294967297\nPRINT B.Tag"), "1\n");
}

TEST(Objects, AnArrayMakesAllItsObjects) {
  ObjectProgram program(
      "DIM Digits(2) AS QRADIOBUTTON\nDigits(1).Caption = \"one\"\n"
      "PRINT Digits(1).Caption; Digits(2).Caption");
  EXPECT_EQ(program.Run(), "one\n");
}

TEST(Objects, AFontIsCopiedAtTheMomentOfTheAssignment) {
  EXPECT_EQ(
      PrintedBy("DIM F AS QFONT, L AS QLABEL\nF.Size = 12 : F.AddStyles 0\nL.Font = F\n"
                "F.Size = 20 : F.DelStyles(0)\nPRINT L.Font.Size; L.Font.Bold; F.Size; F.Bold"),
      "121200\n");
}

TEST(Objects, AFontIsReachedThroughItsOwner) {
  EXPECT_EQ(PrintedBy("DIM L AS QLABEL\nL.Font.Size = 9\nPRINT L.Font.Size; L.Font.Height"),
            "9-12\n");
}

TEST(Objects, RectanglesAndFontsAreCopiedByTheirValues) {
  EXPECT_EQ(PrintedBy("DIM A AS QRECT, B AS QRECT\nA.Left = 3\nB = A\nA.Left = 4\nPRINT B.Left"),
            "3\n");
}

TEST(Objects, AFormIsRealisedWhenItIsFirstShownAndItsChildrenWithIt) {
  ObjectProgram program(
      "DIM F AS QFORM, P AS QPANEL, B AS QBUTTON\nP.Parent = F : B.Parent = P\n"
      "B.Caption = \"Go\"\nF.Show\nB.Caption = \"Stop\"\nF.Hide\nF.Show");
  EXPECT_EQ(program.Run(), "");
  EXPECT_EQ(program.Widgets.Log,
            "realise F\nrealise P\nrealise B\napply F.Visible = 1\napply B.Caption = Stop\n"
            "apply F.Visible = 0\napply F.Visible = 1\n");
}

TEST(Objects, WhatGetsAShownParentLaterIsRealisedThen) {
  ObjectProgram program("DIM F AS QFORM\nF.Show\nDIM B AS QBUTTON\nB.Left = 5\nB.Parent = F");
  program.Run();
  EXPECT_EQ(program.Widgets.Log, "realise F\napply F.Visible = 1\nrealise B\n");
}

TEST(Objects, OnlyWhatHoldsOthersCanBeAParent) {
  EXPECT_EQ(PrintedBy("DIM A AS QBUTTON, B AS QBUTTON\nA.Parent = B"),
            "error: A QBUTTON cannot be a parent");
  EXPECT_EQ(PrintedBy("DIM A AS QPANEL, B AS QPANEL\nA.Parent = B\nB.Parent = A"),
            "error: An object cannot be its own parent");
}

TEST(Objects, ShowModalWaitsUntilTheFormIsClosed) {
  ObjectProgram program(
      "DIM F AS QFORM\nSUB Closing (Action AS INTEGER)\nPRINT \"closing\"; Action\nEND SUB\n"
      "F.OnClose = Closing\nPRINT F.ShowModal\nPRINT F.Visible");
  program.Then([&] { program.World->CloseForm(program.Id("F")); });
  EXPECT_EQ(program.Run(), "closing1\n2\n0\n");
}

TEST(Objects, OnCloseCanKeepTheFormOpen) {
  ObjectProgram program(
      "DIM F AS QFORM\nDIM n AS INTEGER\nSUB Closing (Action AS INTEGER)\nn++\n"
      "IF n = 1 THEN Action = 0\nEND SUB\nF.OnClose = Closing\nF.ShowModal\nPRINT n");
  program.Then([&] { program.World->CloseForm(program.Id("F")); });
  program.Then([&] { program.World->CloseForm(program.Id("F")); });
  EXPECT_EQ(program.Run(), "2\n");
}

TEST(Objects, AButtonWithAModalResultClosesItsForm) {
  ObjectProgram program(
      "DIM F AS QFORM, B AS QBUTTON\nB.Parent = F\nB.ModalResult = 6\n"
      "SUB Click\nPRINT \"click\"\nEND SUB\nB.OnClick = Click\nPRINT F.ShowModal");
  program.ThenClick("B");
  EXPECT_EQ(program.Run(), "click\n6\n");
}

TEST(Objects, WithoutAUserAModalFormEndsAtOnceAndStaysVisible) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM\nPRINT F.ShowModal; F.Visible"), "21\n");
}

TEST(Objects, ALoopOfDoEventsThatNeverEndsIsEnded) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM\nF.Show\nDO\nDOEVENTS\nLOOP UNTIL F.Visible = 0\nPRINT 1"),
            "");
}

TEST(Objects, WindowsWaitInsideEachOtherOnlySoDeep) {
  const std::string text =
      "DIM Forms(250) AS QFORM\nDIM n AS INTEGER\nDECLARE SUB Deeper\nSUB Deeper\nn++\n"
      "Forms(n).OnShow = Deeper\nForms(n).ShowModal\nEND SUB\n";
  EXPECT_NE(PrintedBy(text + "Deeper").find("inside each other"), std::string::npos);
}

TEST(Objects, ShowRaisesOnShowAndTheFirstTimeOnResize) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM\nSUB Shown\nPRINT \"show\"\nEND SUB\nSUB Sized\n"
                      "PRINT \"size\"\nEND SUB\nF.OnShow = Shown : F.OnResize = Sized\n"
                      "F.Width = 400\nF.Show\nF.Hide\nF.Show\nF.Width = 500"),
            "show\nsize\nshow\nsize\n");
}

TEST(Objects, AParameterOfAnObjectTypeIsTheSender) {
  ObjectProgram program(
      "DIM F AS QFORM\nDIM B(2) AS QBUTTON\nSUB Click (Sender AS QBUTTON)\n"
      "PRINT Sender.Tag\nEND SUB\nDIM i AS INTEGER\nFOR i = 1 TO 2\nB(i).Parent = F : B(i).Tag = "
      "i\n"
      "B(i).OnClick = Click\nNEXT\nF.ShowModal");
  program.ThenClick("B(2)");
  program.ThenClick("B(1)");
  EXPECT_EQ(program.Run(), "2\n1\n");
}

TEST(Objects, KeysFlowBack) {
  ObjectProgram program(
      "DIM F AS QFORM, T AS QEDIT\nT.Parent = F\nSUB Press (Key AS BYTE)\n"
      "IF Key = 65 THEN Key = 0\nEND SUB\nT.OnKeyPress = Press\nF.ShowModal");
  std::vector<std::int64_t> keys;
  program.Then([&] {
    for (const int key : {65, 66}) {
      Value value = Value::Integer(key);
      program.World->Raise(program.Id("T"), Word::OnKeyPress, {&value, 1});
      keys.push_back(value.AsInteger());
    }
  });
  program.Run();
  EXPECT_EQ(keys, (std::vector<std::int64_t>{0, 66}));
}

TEST(Objects, WithKeyPreviewTheFormSeesKeysFirst) {
  ObjectProgram program(
      "DIM F AS QFORM, T AS QEDIT\nT.Parent = F\nF.KeyPreview = 1\nSUB OfForm (Key AS WORD)\n"
      "PRINT \"form\"; Key;\nIF Key = 27 THEN Key = 0\nEND SUB\nSUB OfText (Key AS WORD)\n"
      "PRINT \"text\"; Key;\nEND SUB\nF.OnKeyDown = OfForm\nT.OnKeyDown = OfText\nF.ShowModal");
  program.Then([&] {
    for (const int key : {65, 27}) {
      Value arguments[] = {Value::Integer(key), Value::Integer(0)};
      program.World->RaiseKey(program.Id("T"), Word::OnKeyDown, arguments);
    }
  });
  EXPECT_EQ(program.Run(), "form65text65form27");
}

TEST(Objects, TabGoesByNumberThenByAgeAndIntoPanels) {
  ObjectProgram program(
      "DIM F AS QFORM, P AS QPANEL\nDIM E(4) AS QEDIT, L AS QLABEL\nL.Parent = F\n"
      "E(1).Parent = F : E(2).Parent = F : P.Parent = F : E(3).Parent = P : E(4).Parent = F\n"
      "E(1).TabOrder = 2 : E(2).TabOrder = 1 : P.TabOrder = 1");
  program.Run();
  std::string order;
  for (const ObjectId id : TabOrderOf(*program.World, *program.Object("F"))) {
    order += program.World->Find(id)->FullName() + " ";
  }
  EXPECT_EQ(order, "P E(3) E(2) E(1) E(4) ");
}

TEST(Objects, AnObjectMayFreeItselfInItsHandler) {
  ObjectProgram program(
      "DIM F AS QFORM, B AS QBUTTON\nB.Parent = F\nSUB Click\nB.Free\nPRINT \"freed\"\nEND SUB\n"
      "B.ModalResult = 1\nB.OnClick = Click\nF.ShowModal\nPRINT \"over\"");
  basic::ObjectId freed{};
  program.Then([&] { program.World->Click(freed = program.Id("B")); });
  program.Then([&] { program.World->Click(freed); });
  EXPECT_EQ(program.Run(), "freed\nover\n");
}

TEST(Objects, AFreedObjectIsNamedAsSuch) {
  EXPECT_EQ(PrintedBy("DIM B AS QBUTTON\nB.Free\nPRINT B.Caption"),
            "error: The object is there no longer: it was freed");
}

TEST(Objects, FreeingAFormFreesWhatStandsOnIt) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM, B AS QBUTTON\nB.Parent = F\nF.Free\nB.Left = 1"),
            "error: The object is there no longer: it was freed");
}

TEST(Objects, ALocalObjectGoesWithItsCallUnlessItHasAParent) {
  ObjectProgram program(
      "DIM F AS QFORM\nSUB Make\nDIM A AS QBUTTON, B AS QBUTTON\nB.Parent = F\n"
      "END SUB\nMake");
  program.Run();
  EXPECT_EQ(program.Object("A"), nullptr);
  EXPECT_NE(program.Object("B"), nullptr);
}

TEST(Objects, ATimerTicksOnlyWhileAFormIsVisibleAndItsHandlerIsNotRunning) {
  ObjectProgram program(
      "DIM F AS QFORM, T AS QTIMER\nSUB Tick\nPRINT \"tick\"\nDOEVENTS\nEND SUB\n"
      "T.OnTimer = Tick\nF.ShowModal\nF.Hide\nF.ShowModal");
  const auto tick = [&] { program.World->Tick(program.Id("T")); };
  program.Then(tick);
  program.Then(tick);  // handled by the DOEVENTS of the first one
  program.Then([&] {
    program.World->CloseForm(program.Id("F"));
    tick();
  });
  EXPECT_EQ(program.Run(), "tick\n");
}

TEST(Objects, ATimerThatIsOffDoesNotTick) {
  ObjectProgram program(
      "DIM F AS QFORM, T AS QTIMER\nSUB Tick\nPRINT \"tick\"\nEND SUB\n"
      "T.OnTimer = Tick : T.Enabled = 0\nF.ShowModal");
  program.Then([&] { program.World->Tick(program.Id("T")); });
  EXPECT_EQ(program.Run(), "");
}

TEST(Objects, CenterIsKeptUntilTheFormIsShown) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM\nF.Center\nF.Width = 100 : F.Height = 68\nPRINT F.Left\n"
                      "F.Show\nPRINT F.Left; \" \"; F.Top"),
            "0\n462 350\n");
}

TEST(Objects, TheClientAreaIsWhatTheFrameLeaves) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM, M AS QMAINMENU\nF.Width = 200 : F.Height = 100\n"
                      "PRINT F.ClientWidth; \" \"; F.ClientHeight\nF.BorderStyle = 1\n"
                      "PRINT F.ClientWidth; \" \"; F.ClientHeight\nM.Parent = F\n"
                      "PRINT F.ClientHeight\nF.ClientWidth = 300\nPRINT F.Width"),
            "192 68\n196 72\n52\n304\n");
}

TEST(Objects, TheBuiltInObjectsAreThere) {
  EXPECT_EQ(PrintedBy("PRINT Application.ExeName; \" \"; Application.Path; \" \"; Screen.Width\n"
                      "Clipboard.Text = \"abc\"\nPRINT Clipboard.Text; Clipboard.HasFormat(1)\n"
                      "Application.Terminate\nPRINT \"never\""),
            "C:\\work\\demo.exe C:\\work\\ 1024\nabc1\n");
}

TEST(Objects, WhatIsNotSupportedIsNamedBeforeTheProgramRuns) {
  ObjectProgram program("DIM F AS QFORM\nF.OnTimer = Tick\nSUB Tick\nEND SUB\n");
  EXPECT_EQ(program.Faults,
            "note: 2: QFORM.OnTimer is not supported by the runner: the line is passed over. "
            "Use a QTIMER.\n");
}

TEST(Objects, AMemberThatIsNoneIsAnErrorWithAGuess) {
  ObjectProgram program("DIM B AS QBUTTON\nB.Captoin = \"x\"\n");
  EXPECT_EQ(program.Faults, "2: QBUTTON has no member \"Captoin\". Did you mean Caption?\n");
}

}  // namespace
}  // namespace tarnwick::objects
