// Undo and redo over the whole main window.
#include <algorithm>
#include <map>

#include "../designer/history/project_text.h"
#include "delivered_files.h"
#include "designer/history/history.h"
#include "random_user.h"
#include "shell_fixture.h"

namespace tarnwick {
namespace {

class Undo : public ShellTest {
 protected:
  void SetUp() override {
    PutDeliveredFiles(ports.Files, std::string(kProgram));
    Start();
  }
  /// A deed can select something before its step begins.
  std::string Text() { return ProjectText(tables(), WithSelection::No); }
  /// The lines of a text that the other has not, the first few of them.
  static std::string Difference(const std::string& is, const std::string& was) {
    const auto [a, b] = std::mismatch(is.begin(), is.end(), was.begin(), was.end());
    if (a == is.end() && b == was.end()) return {};
    const auto at = static_cast<std::size_t>(a - is.begin());
    const std::size_t from = is.rfind('\n', at) == std::string::npos ? 0 : is.rfind('\n', at);
    return "is: " + is.substr(from, 500) + "\nwas: " + was.substr(from, 500) + "\n";
  }
};

TEST_F(Undo, AFreshProjectHasNothingToUndo) {
  EXPECT_FALSE(main.Steps().CanUndo());
  main.Undo();
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
}

TEST_F(Undo, TheEntriesOfTheEditMenuNameTheStep) {
  EXPECT_FALSE(main.Commands().State(Command::Undo).Enabled);
  EXPECT_EQ(main.Commands().Caption(Command::Undo), "&Undo");
  Place(0, 10, 10);
  EXPECT_TRUE(main.Commands().State(Command::Undo).Enabled);
  EXPECT_EQ(main.Commands().Caption(Command::Undo), "&Undo Place Form1Btn1");
  main.Commands().Run(Command::Undo);
  EXPECT_FALSE(main.Commands().State(Command::Undo).Enabled);
  EXPECT_EQ(main.Commands().Caption(Command::Redo), "&Redo Place Form1Btn1");
  main.Commands().Run(Command::Redo);
  EXPECT_EQ(tables().User(1)->UBound(Kind::Button), 1);
}

TEST_F(Undo, WhatIsTypedInTheGridIsTakenFirst) {
  Place(0, 10, 10);
  for (const Command command : {Command::Undo, Command::Redo}) {
    log().Clear();
    main.Commands().Run(command);
    EXPECT_EQ(log().Count("view commit"), 1U);
  }
}

TEST_F(Undo, WhileTheCodeIsOpenNothingIsTakenBack) {
  Place(0, 10, 10);
  windows.CodeOpen = true;
  main.Undo();
  EXPECT_EQ(tables().User(1)->UBound(Kind::Button), 1);
}

TEST_F(Undo, AnAddedFormGoesAndComesBackWithItsWindow) {
  main.Commands().Run(Command::AddNewForm);
  EXPECT_EQ(main.Steps().UndoName(), "Add Form");
  log().Clear();
  main.Undo();
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  ExpectOrder({"told closing 2", "view form up 1"});
  log().Clear();
  main.Redo();
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Form1 ()", "Form2 ()"}));
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  ExpectOrder({"told opened 2", "view form up 2"});
}

TEST_F(Undo, ARemovedFormComesBackWithAllThatStoodOnIt) {
  main.Commands().Run(Command::AddNewForm);
  Place(0, 10, 10);
  Place(19, 50, 50);
  {
    const HistoryStep step(main.Steps(), 2, "Code");
    tables().EventTable.Replace("Form2.Button1.OnClick", "Beep");
  }
  const std::string before = Text();
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  EXPECT_EQ(main.Steps().UndoName(), "Remove Form2");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
  main.Undo();
  EXPECT_EQ(Text(), before);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  surface().SelectObject(tables().User(2)->Element(Kind::Button, 1));
  EXPECT_EQ(tables().User(2)->NameObjet, "Button1") << "its surface works";
}

TEST_F(Undo, TheLastFormTakenBackLeavesNone) {
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  main.Commands().PressTool(kArrowTool);
  EXPECT_EQ(main.Steps().UndoName(), "Add Form");
  main.Undo();
  EXPECT_EQ(tables().CurrentForm, nullptr);
  EXPECT_TRUE(Lines().empty());
  EXPECT_EQ(view.SelectedLine, -1);
  main.Undo();
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
}

TEST_F(Undo, TheFormOfAStepComesUpWithItsSelection) {
  Place(0, 10, 10);
  main.Commands().Run(Command::AddNewForm);
  main.Forms().SelectLine(0);
  main.Commands().Run(Command::Delete);
  main.Forms().SelectLine(1);
  main.Undo();
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_EQ(tables().User(1)->NameObjet, "Button1");
}

TEST_F(Undo, NewAndOpenForgetTheStepsAndSaveDoesNot) {
  Place(0, 10, 10);
  SaveUnder("Z:\\a\\p.tnp", {"Z:\\a\\f.ftn"});
  EXPECT_TRUE(main.Steps().CanUndo());
  ports.Dialogs.OpenAnswers = {"Z:\\a\\p.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_FALSE(main.Steps().CanUndo());
  Place(0, 10, 10);
  ports.Messages.Answers = {false};
  main.Commands().Run(Command::New);
  EXPECT_FALSE(main.Steps().CanUndo());
}

TEST_F(Undo, AFormThatWasSavedKeepsItsFileThroughUndoAndRedo) {
  main.Commands().Run(Command::AddNewForm);
  SaveUnder("Z:\\a\\p.tnp", {"Z:\\a\\f.ftn", "Z:\\a\\g.ftn"});
  main.Undo();
  main.Redo();
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Form1 (f.ftn)", "Form2 (g.ftn)"}));
  EXPECT_EQ(tables().Form(2)->FileName, "Z:\\a\\g.ftn");
}

TEST_F(Undo, TheNavigationLinesOfTheCodeEditorFollowTheNumbers) {
  Place(0, 10, 10);
  Place(0, 100, 10);
  Place(0, 200, 10);
  Settings& settings = main.SettingsFile();
  settings.WriteEventIndex("Events", "Form1.Button2", ".OnKeyUp");
  settings.WriteEventIndex("Events", "Form1.Button3", ".OnClick");
  settings.WriteEventIndex("Events", "Form1.Label3", ".OnClick");
  surface().SelectObject(tables().User(1)->Element(Kind::Button, 2));
  main.Commands().Run(Command::Delete);
  EXPECT_EQ(settings.ReadEventIndex("Events", "Form1.Button2"), ".OnClick");
  EXPECT_EQ(settings.ReadEventIndex("Events", "Form1.Button3"), "");
  EXPECT_EQ(settings.ReadEventIndex("Events", "Form1.Label3"), ".OnClick");
  main.Undo();
  EXPECT_EQ(settings.ReadEventIndex("Events", "Form1.Button3"), ".OnClick");
}

/// A random user whose steps are all taken back and done again.
class RandomUndo : public Undo, public ::testing::WithParamInterface<unsigned> {
 protected:
  static constexpr int kDeeds = 60;
};

TEST_P(RandomUndo, AfterAnyStepAndItsUndoTheProjectIsWhatItWas) {
  RandomUser user(main, ports, GetParam());
  user.SetCursor = [this](int form, ScreenPoint place) { view.GesturesOf(form).Cursor = place; };
  for (int i = 0; i < kDeeds; ++i) {
    main.Steps().Leave();
    const std::string before = Text();
    const std::size_t size = main.Steps().Size();
    user.Act();
    main.Steps().Leave();
    if (main.Steps().Size() != size + 1) continue;
    const std::string after = Text();
    main.Undo();
    ASSERT_EQ(Difference(Text(), before), "") << user.Deeds();
    ASSERT_EQ(user.Fault(), "") << user.Deeds();
    main.Redo();
    ASSERT_EQ(Difference(Text(), after), "") << user.Deeds();
    ASSERT_EQ(user.Fault(), "") << user.Deeds();
  }
  log().Clear();
}

TEST_P(RandomUndo, AllTheWayBackGivesTheStartAndAllTheWayForthTheEnd) {
  RandomUser user(main, ports, GetParam());
  user.SetCursor = [this](int form, ScreenPoint place) { view.GesturesOf(form).Cursor = place; };
  user.Saves = false;
  const std::string start = Text();
  for (int i = 0; i < 3 * kDeeds; ++i) user.Act();
  main.Steps().Leave();
  const std::string end = Text();
  std::size_t steps = 0;
  while (main.Steps().CanUndo()) {
    main.Undo();
    ++steps;
    ASSERT_EQ(user.Fault(), "") << user.Deeds();
  }
  EXPECT_GT(steps, 20U);
  EXPECT_EQ(Difference(Text(), start), "") << user.Deeds();
  while (main.Steps().CanRedo()) main.Redo();
  EXPECT_EQ(Difference(Text(), end), "") << user.Deeds();
}

TEST_P(RandomUndo, TheSavedFilesOfStartAndEndComeBackByteForByte) {
  RandomUser user(main, ports, GetParam());
  user.SetCursor = [this](int form, ScreenPoint place) { view.GesturesOf(form).Cursor = place; };
  user.StartsAnew = false;
  user.ChangesForms = false;
  for (int i = 0; i < 20; ++i) user.Act();
  const std::map<std::string, std::string> start = user.Saved();
  // A row that is still being typed in would go on as a part of the step before.
  main.Steps().Leave();
  const std::size_t size = main.Steps().Size();
  for (int i = 0; i < kDeeds; ++i) user.Act();
  const std::map<std::string, std::string> end = user.Saved();
  std::size_t back = 0;
  while (main.Steps().Size() > size) {
    main.Undo();
    ++back;
  }
  EXPECT_EQ(user.Saved(), start) << user.Deeds();
  for (std::size_t i = 0; i < back; ++i) main.Redo();
  EXPECT_EQ(user.Saved(), end) << user.Deeds();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUndo, ::testing::Range(1U, 31U));

}  // namespace
}  // namespace tarnwick
