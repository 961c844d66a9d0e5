#include "designer/history/history.h"

#include <functional>

#include "../surface_fixture.h"
#include "model/menu_bar.h"
#include "project_text.h"

namespace tarnwick {
namespace {

class HistoryTest : public SurfaceTest {
 protected:
  std::string Text() { return ProjectText(tables); }
  /// Does a step, takes it back and does it again: the project is each time what it was.
  void ExpectStep(std::string_view name, const std::function<void()>& deed) {
    const std::string before = Text();
    const std::size_t size = history.Size();
    deed();
    const std::string after = Text();
    ASSERT_NE(after, before);
    ASSERT_TRUE(history.CanUndo());
    EXPECT_EQ(history.UndoName(), name);
    ASSERT_TRUE(history.Undo());
    EXPECT_EQ(Text(), before);
    EXPECT_EQ(history.Size(), size) << "one entry";
    EXPECT_EQ(history.RedoName(), name);
    ASSERT_TRUE(history.Redo());
    EXPECT_EQ(Text(), after);
  }
};

TEST_F(HistoryTest, ANewProjectHasNothingToUndo) {
  EXPECT_FALSE(history.CanUndo());
  EXPECT_FALSE(history.CanRedo());
  EXPECT_EQ(history.UndoName(), "");
  EXPECT_FALSE(history.Undo());
  EXPECT_FALSE(history.Redo());
}

TEST_F(HistoryTest, EachDeedOfTheSurfaceIsOneStep) {
  ExpectStep("Place Form1Btn1", [&] { Place("Button", 20, 20); });
  ExpectStep("Place Form1Image1", [&] { Place("Image", 120, 20); });
  const ControlRef list = Place("ListBox", 20, 120);
  ExpectStep("Move Form1List1", [&] {
    PressOn(list);
    MoveTo(60, 150);
    gestures.MouseUp();
  });
  ExpectStep("Size Form1List1", [&] { DragHandle(4, 200, 260); });
  ExpectStep("Move Form1List1", [&] { user.Keys().KeyDown(keys::kRight, kCtrlBit); });
  ExpectStep("Size Form1List1", [&] { user.Keys().KeyDown(keys::kDown, kShiftBit); });
  ExpectStep("Align To Grid", [&] { commands.aligngrid(); });
  commands.CopyObject(keys::kC, kCtrlBit);
  ExpectStep("Paste Form1List2", [&] { commands.PasteObject(keys::kV, kCtrlBit); });
  ExpectStep("Stay back Form1List2", [&] { commands.SendToBack(); });
  ExpectStep("Bring to front Form1List2", [&] { commands.BringToFront(); });
  ExpectStep("Delete Form1List2", [&] { commands.CutObject(keys::kDelete); });
}

TEST_F(HistoryTest, PlacingAndDraggingAtOnceIsOneStep) {
  form.Objeto = "Button";
  ExpectStep("Place Form1Btn1", [&] {
    Press(20, 20);
    MoveTo(90, 90);
    gestures.MouseUp();
  });
  EXPECT_EQ(form.Element(Kind::Button, 1)->Left, Twips(90));
}

TEST_F(HistoryTest, ADragBehindOneThatWasEndedIsAStepOfItsOwn) {
  const ControlRef button = Place("Button", 20, 20);
  PressOn(button);
  gestures.DragEnd();
  ExpectStep("Move Form1Btn1", [&] {
    PressOn(button);
    MoveTo(90, 90);
    gestures.MouseUp();
  });
}

TEST_F(HistoryTest, EveryKindComesBackWithItsRecordEntriesAndNumbers) {
  for (const std::string_view kind :
       {"Button", "Label", "Image", "CheckBox", "OptionButton", "TextBox", "RichTextBox", "ListBox",
        "ComboBox", "Time", "OpenDialog", "SaveDialog", "FileStream", "TransparentFrame",
        "HtmlViewer", "WinSock", "PopUpMenu"}) {
    SCOPED_TRACE(kind);
    const ControlRef first = Place(kind, 10, 10);
    const ControlRef second = kind == "TransparentFrame" ? nullptr : Place(kind, 150, 150);
    const std::string key = "Form1." + first->ArrayAndIndex() + ".OnClick";
    tables.EventTable.Replace(key, "code of the first");
    if (second) {
      tables.EventTable.Replace("Form1." + second->ArrayAndIndex() + ".OnClick", "of the second");
    }
    history.Begin(number, "Code");
    history.End();
    Click(first);
    ExpectStep("Delete " + first->Tag, [&] { commands.CutObject(keys::kDelete); });
    history.Undo();
    EXPECT_EQ(form.ControlSel, first) << "the very object, selected";
    EXPECT_EQ(*tables.EventTable.Find(key), "code of the first");
    history.Redo();
  }
}

TEST_F(HistoryTest, AStepThatChangesNothingLeavesNoEntry) {
  const ControlRef button = Place("Button", 20, 20);
  const std::size_t size = history.Size();
  Click(button);
  user.SelectForm();
  commands.ToggleLock();
  commands.ToggleLock();
  user.Keys().KeyDown(keys::kTab, 0);
  EXPECT_EQ(history.Size(), size);
}

TEST_F(HistoryTest, ANewStepForgetsWhatWasTakenBack) {
  Place("Button", 20, 20);
  history.Undo();
  EXPECT_TRUE(history.CanRedo());
  Place("Label", 20, 20);
  EXPECT_FALSE(history.CanRedo());
  EXPECT_FALSE(history.Redo());
}

TEST_F(HistoryTest, OneStayIsOneStepAndTheNextRowAnother) {
  const ControlRef button = Place("Button", 20, 20);
  const std::string placed = Text();
  for (const std::string_view caption : {"O", "Ok"}) {
    history.Stay(number, "caption", "Caption");
    button->Caption = caption;
  }
  EXPECT_EQ(history.UndoName(), "Caption") << "it can be taken back while it goes on";
  history.Stay(number, "hint", "Hint");
  button->ToolTipText = "Go";
  history.Leave();
  EXPECT_EQ(history.UndoName(), "Hint");
  history.Undo();
  EXPECT_EQ(button->Caption, "Ok");
  EXPECT_EQ(button->ToolTipText, "");
  history.Undo();
  EXPECT_EQ(Text(), placed);
}

TEST_F(HistoryTest, AnotherStepEndsAStay) {
  const ControlRef button = Place("Button", 20, 20);
  history.Stay(number, "caption", "Caption");
  button->Caption = "Ok";
  user.Keys().KeyDown(keys::kRight, kCtrlBit);
  EXPECT_EQ(history.UndoName(), "Move Form1Btn1");
  history.Undo();
  EXPECT_EQ(button->Caption, "Ok");
  EXPECT_EQ(history.UndoName(), "Caption");
}

TEST_F(HistoryTest, StepsWithinAStepArePartOfIt) {
  const std::string before = Text();
  {
    const HistoryStep outer(history, number, "Both");
    Place("Button", 20, 20);
    Place("Label", 120, 20);
    EXPECT_FALSE(history.Undo()) << "not in the midst of a step";
  }
  EXPECT_EQ(history.UndoName(), "Both");
  history.Undo();
  EXPECT_EQ(Text(), before);
}

TEST_F(HistoryTest, AChangeWithoutAStepIsTakenBackToo) {
  const ControlRef button = Place("Button", 20, 20);
  button->Caption = "unannounced";
  history.Undo();
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(form.UBound(Kind::Button), 1) << "the change before the placing";
  history.Undo();
  EXPECT_EQ(form.UBound(Kind::Button), 0);
}

TEST_F(HistoryTest, NothingIsRecordedWhileAProjectIsRead) {
  tables.LoadingProject = 1;
  {
    const HistoryStep step(history, number, "Read");
    record.Hint = "from the file";
  }
  tables.LoadingProject = 0;
  EXPECT_FALSE(history.CanUndo());
}

TEST_F(HistoryTest, ClearForgetsEverything) {
  Place("Button", 20, 20);
  history.Undo();
  Place("Label", 20, 20);
  history.Clear();
  EXPECT_FALSE(history.CanUndo());
  EXPECT_FALSE(history.CanRedo());
  ExpectStep("Place Form1Btn1", [&] { Place("Button", 20, 20); });
}

TEST_F(HistoryTest, TheOldestStepsAreForgotten) {
  const ControlRef button = Place("Button", 20, 20);
  for (std::size_t i = 0; i < History::kMostSteps + 20; ++i)
    user.Keys().KeyDown(keys::kDown, kCtrlBit);
  EXPECT_EQ(history.Size(), History::kMostSteps);
  while (history.Undo()) {
  }
  EXPECT_EQ(button->Top, Twips(20 + 20)) << "what is older stays as it is";
}

TEST_F(HistoryTest, AddedAndRemovedFormsGoAndComeBack) {
  Place("Button", 20, 20);
  const auto add = [&] {
    const HistoryStep step(history, 0, "Add Form");
    const int added = NewForm(tables);
    tables.CurrentForm = tables.User(added);
  };
  ExpectStep("Add Form", add);
  EXPECT_EQ(tables.FormsCount, 2);
  history.Undo();
  EXPECT_EQ(tables.FormsCount, 1) << "the number is free again";
  EXPECT_EQ(tables.CurrentForm, nullptr) << "its window has gone";
  history.Redo();
  ExpectStep("Remove Form2", [&] {
    const HistoryStep step(history, 2, "Remove Form2");
    tables.Form(2)->Removed = 1;
    tables.FormsUser[2].reset();
    tables.FormsBar[2].reset();
    tables.ListaFrms.Remove(2);
  });
  history.Undo();
  EXPECT_EQ(tables.User(2)->Number(), 2);
}

TEST_F(HistoryTest, TheMainFormFollowsAFormThatWasSavedMeanwhile) {
  {
    const HistoryStep step(history, number, "Name");
    record.Name = "Main";
    tables.ListaFrms.SetText(1, "Main ()");
    tables.MainFormName = "Main ()";
  }
  // A save gives the form its file.
  record.FileName = "Z:\\a\\main.ftn";
  tables.ListaFrms.SetText(1, "Main (main.ftn)");
  tables.MainFormName = "Main (main.ftn)";
  history.Undo();
  EXPECT_EQ(record.FileName, "Z:\\a\\main.ftn");
  EXPECT_EQ(tables.MainFormName, "Form1 (main.ftn)");
  EXPECT_EQ(tables.ListaFrms.Lines().front().Text, "Form1 (main.ftn)");
}

TEST_F(HistoryTest, MenusAndPopupsComeBack) {
  ExpectStep("Menu", [&] {
    const HistoryStep step(history, number, "Menu");
    AddMenuTitle(tables, "&File", "mnuFile");
    AddMenuItem(tables, "&New", "mnuNew");
    BuildMenuControls(tables, form);
  });
  Place("PopUpMenu", 20, 20);
  ExpectStep("Popup", [&] {
    const HistoryStep step(history, number, "Popup");
    PopUpFormRec& rows = *tables.PopUpMenus.Ensure(1);
    rows.Items.push_back({{{}, {"ppmSub", "Sub"}}, "ppmCopy", "&Copy", 1});
  });
}

TEST_F(HistoryTest, TheFormsOwnValuesComeBack) {
  ExpectStep("Size Form1", [&] {
    user.Frame().Form_Resize(9000, 8000, WindowState::Normal);
    user.Frame().Form_Resize(9900, 8100, WindowState::Normal);
    user.Frame().ResizeEnded();
  });
  ExpectStep("Values", [&] {
    const HistoryStep step(history, number, "Values");
    record.Hint = "h";
    record.DeclarePbl = "Dim x";
    record.TfTranspColor = 5;
    form.BackColor = 255;
    form.Caption = "Title";
  });
}

TEST_F(HistoryTest, ACopySourceThatComesBackCanBePastedFromAgain) {
  const ControlRef button = Place("Button", 20, 20);
  {
    const HistoryStep step(history, number, "Caption");
    button->Caption = "Copy me";
  }
  commands.CopyObject(keys::kC, kCtrlBit);
  commands.CutObject(keys::kDelete);
  history.Undo();
  user.Restored();
  commands.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.ControlSel->Caption, "Copy me");
}

TEST_F(HistoryTest, AfterAnUndoTheHandlesStandOnTheSelection) {
  const ControlRef button = Place("Button", 20, 20);
  PressOn(button);
  MoveTo(100, 100);
  gestures.MouseUp();
  history.Undo();
  user.Restored();
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_NEAR(form.Element(Kind::Handle, 0)->Left, Twips(20), Twips(4));
  history.Undo();
  user.Restored();
  EXPECT_FALSE(HandleVisible(0)) << "nothing is selected on the empty form";
}

TEST_F(HistoryTest, TheObserverHearsWhatAnUndoChanges) {
  Place("Button", 20, 20);
  ports.Log.Clear();
  history.Undo();
  EXPECT_EQ(ports.Log.Count("paint"), 1U);
  EXPECT_EQ(ports.Log.Count("selection"), 1U);
}

TEST_F(HistoryTest, ListenersHearWhenThereIsSomethingElseToUndo) {
  int told = 0;
  history.Changed = [&told] { ++told; };
  Place("Button", 20, 20);
  EXPECT_GT(told, 0);
  told = 0;
  history.Undo();
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace tarnwick
