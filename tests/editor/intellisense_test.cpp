#include "editor/intellisense.h"

#include <string>

#include <gtest/gtest.h>

#include "editor/intellisense_cases.h"
#include "fakes/editor_project.h"
#include "fakes/fake_edit_widget.h"
#include "text/strings.h"

namespace tarnwick::test {
namespace {

using editor::Intellisense;
using editor::MemberLookup;
namespace key = editor::list_key;

class FakeListView final : public editor::MemberListView {
 public:
  void showintellisense(const std::vector<std::string>& rows) override {
    Rows = rows;
    Selected = -1;
    Visible = true;
  }
  void SelectRow(int row) override { Selected = row; }
  void HideList() override { Visible = false; }

  std::vector<std::string> Rows;
  int Selected = -1;
  bool Visible = false;
};

/// Types as a person does: the key goes down, its character comes, the text changes.
class Typist {
 public:
  EditorProject Project;
  FakeEditWidget Editor;
  FakeListView View;
  MemberLookup Lookup{Project.Tables, Project.Language, editor::kFixedWordsOfCode};
  Intellisense List{Editor, Lookup, View};

  void Type(std::string_view characters) {
    for (const char c : characters) Key(c);
  }
  void Key(char c) {
    switch (c) {
      case '\b':
        if (List.KeyDown(key::kBackspace)) return;
        List.KeyPress(key::kBackspace);
        Editor.Backspace();
        List.Changed();
        return;
      case '\r':
        if (List.KeyDown(key::kEnter)) {
          List.Changed();
          return;
        }
        List.KeyPress(key::kEnter);
        Editor.SetSelText("\r\n");
        List.Changed();
        return;
      case '\x1B':
        if (!List.KeyDown(key::kEscape)) ADD_FAILURE() << "Esc went on";
        return;
      case '\x01':
        if (!List.KeyDown(key::kDown)) ADD_FAILURE() << "Down went on";
        return;
      case '\x02':
        if (List.KeyDown(key::kUp)) ADD_FAILURE() << "Up was used up";
        // On the first line the caret goes to its start.
        Editor.SetCaretPos(0, 0);
        List.CaretMoved();
        return;
      default:
        if (List.KeyDown(c >= 'a' && c <= 'z' ? c - 32 : c)) return;
        List.KeyPress(c);
        Editor.SetSelText(std::string(1, c));
        List.Changed();
    }
  }
  [[nodiscard]] std::string RowsShown() const {
    return View.Visible ? Join(View.Rows, ",") : std::string();
  }
  [[nodiscard]] std::string SelectedRow() const {
    if (!View.Visible || View.Selected < 0) return {};
    return View.Rows.at(static_cast<std::size_t>(View.Selected));
  }
  [[nodiscard]] std::string TextWithCaret() const {
    std::string text;
    const int last = Editor.GetSel().EndLineNo;
    for (int line = 0; line < last; ++line) text += Editor.GetLine(line) + "/";
    return text + Editor.CaretLine();
  }
};

class IntellisenseTable : public testing::TestWithParam<IntellisenseCase> {};

TEST_P(IntellisenseTable, TypedKeysGiveTheList) {
  Typist typist;
  typist.Type(GetParam().Typed);
  EXPECT_EQ(typist.RowsShown(), GetParam().Rows);
  EXPECT_EQ(typist.SelectedRow(), GetParam().Selected);
  EXPECT_EQ(typist.TextWithCaret(), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(Cases, IntellisenseTable, testing::ValuesIn(IntellisenseCases()),
                         [](const auto& tested) { return std::string(tested.param.Name); });

TEST(Intellisense, ADoubleClickReplacesWhatWasTypedSoThatTheRowStandsOnce) {
  Typist typist;
  typist.Type("Ok.co");
  typist.List.DoubleClick(2);
  EXPECT_EQ(typist.Editor.Text(), "Ok.Click");
  EXPECT_EQ(typist.Editor.CaretLine(), "Ok.Click|");
  EXPECT_FALSE(typist.View.Visible);
  EXPECT_GT(typist.Editor.Focused, 0);
}

TEST(Intellisense, ARowThatWasClickedIsTakenByEnter) {
  Typist typist;
  typist.Type("Ok.");
  typist.List.Click(1);
  EXPECT_EQ(typist.SelectedRow(), "Color");
  typist.Type("\r");
  EXPECT_EQ(typist.Editor.Text(), "Ok.Color");
}

TEST(Intellisense, AnyKeyOnTheListButUpAndDownTakesTheRow) {
  Typist typist;
  typist.Type("Ok.");
  typist.List.Click(2);
  typist.List.ListKeyDown(key::kDown);
  typist.List.ListKeyDown(key::kUp);
  EXPECT_TRUE(typist.View.Visible);
  typist.List.ListKeyDown(key::kEnter);
  EXPECT_EQ(typist.Editor.Text(), "Ok.Click");
}

TEST(Intellisense, AMoveWithinTheWordKeepsTheListAndAMoveOutOfItHidesIt) {
  Typist typist;
  typist.Type("x = Ok.cap");
  typist.Editor.SetCaretPos(0, 8);
  typist.List.CaretMoved();
  EXPECT_TRUE(typist.View.Visible);
  typist.Editor.SetCaretPos(0, 5);
  typist.List.CaretMoved();
  EXPECT_FALSE(typist.View.Visible);
}

TEST(Intellisense, AMoveToAnotherLineHidesTheList) {
  Typist typist;
  typist.Type("a\rOk.");
  ASSERT_TRUE(typist.View.Visible);
  typist.Editor.SetCaretPos(0, 1);
  typist.List.CaretMoved();
  EXPECT_FALSE(typist.View.Visible);
}

TEST(Intellisense, AfterAMoveOfTheCaretTheWordInFrontOfTheDotCounts) {
  Typist typist;
  typist.Type("Ok ");
  typist.Editor.SetCaretPos(0, 2);
  typist.List.CaretMoved();
  typist.Type(".");
  EXPECT_EQ(typist.RowsShown(), "Caption,Color,Click");
}

TEST(Intellisense, AMoveOfTheCaretForgetsAs) {
  Typist typist;
  typist.Type("Dim x As");
  typist.List.CaretMoved();
  typist.Type(" ");
  EXPECT_FALSE(typist.View.Visible);
}

TEST(Intellisense, AResetHidesTheListAndForgetsTheWord) {
  Typist typist;
  typist.Type("Ok.");
  typist.List.Reset();
  EXPECT_FALSE(typist.View.Visible);
  typist.Editor.SetText("");
  typist.Type(".");
  EXPECT_FALSE(typist.View.Visible);
}

TEST(Intellisense, AResetForgetsAs) {
  Typist typist;
  typist.Type("Dim x As");
  typist.List.Reset();
  typist.Editor.SetText("Dim y");
  typist.Editor.SetCaretPos(0, 5);
  typist.Type(" ");
  EXPECT_FALSE(typist.View.Visible);
}

TEST(Intellisense, AResetForgetsTheLastKey) {
  Typist typist;
  typist.Type("a\b");
  typist.List.Reset();
  typist.Editor.SetText("Ok");
  typist.Editor.SetCaretPos(0, 2);
  typist.List.CaretMoved();
  // Text that comes without a key, as by a paste.
  typist.Editor.SetSelText(".");
  typist.List.Changed();
  EXPECT_EQ(typist.RowsShown(), "Caption,Color,Click");
}

TEST(Intellisense, AMoveOfTheCaretForgetsTypesThatWereDismissed) {
  Typist typist;
  typist.Type("Ok\rDim x As \b");
  ASSERT_FALSE(typist.View.Visible);
  typist.Editor.SetCaretPos(0, 2);
  typist.List.CaretMoved();
  typist.Type("=");
  EXPECT_FALSE(typist.View.Visible);
}

TEST(Intellisense, AMoveWithinTheTypesLeavesThemToBeDismissed) {
  Typist typist;
  typist.Type("Dim x As ");
  typist.List.CaretMoved();
  typist.Type("\b");
  EXPECT_FALSE(typist.View.Visible);
  typist.Type(" ");
  EXPECT_EQ(typist.RowsShown(), "Integer,QForm");
}

TEST(Intellisense, ADotThatTouchesNoNameServesTheWordBeforeAlsoBehindABlank) {
  Typist typist;
  typist.Editor.SetText("=Ok");
  typist.Editor.SetCaretPos(0, 1);
  typist.List.CaretMoved();
  typist.Type(" .");
  EXPECT_EQ(typist.TextWithCaret(), "= .|Ok");
  EXPECT_EQ(typist.RowsShown(), "Caption,Color,Click");
}

TEST(Intellisense, UpHidesTheListAlsoWhereTheCaretCannotMove) {
  Typist typist;
  typist.Type("Ok.");
  EXPECT_FALSE(typist.List.KeyDown(key::kUp));
  EXPECT_FALSE(typist.View.Visible);
}

TEST(Intellisense, ARowThatIsNotThereIsNotTaken) {
  Typist typist;
  typist.Type("Ok.");
  typist.List.Click(3);
  typist.List.Click(-1);
  EXPECT_EQ(typist.SelectedRow(), "Caption");
  typist.List.DoubleClick(3);
  typist.List.DoubleClick(-1);
  EXPECT_EQ(typist.Editor.Text(), "Ok.");
  EXPECT_TRUE(typist.View.Visible);
}

TEST(Intellisense, AClickOrKeyOnAListThatIsHiddenDoesNothing) {
  Typist typist;
  typist.Type("Ok.\x1B");
  typist.List.Click(1);
  typist.List.DoubleClick(1);
  typist.List.ListKeyDown(key::kEnter);
  EXPECT_EQ(typist.Editor.Text(), "Ok.");
}

TEST(Intellisense, TheWindowOfDeclarationsDoesNotKnowTheScreen) {
  Typist typist;
  const MemberLookup declarations(typist.Project.Tables, typist.Project.Language,
                                  editor::kFixedWordsOfDeclarations);
  EXPECT_TRUE(declarations.MembersOf("Screen").empty());
  EXPECT_FALSE(declarations.MembersOf("Application").empty());
  EXPECT_FALSE(typist.Lookup.MembersOf("Screen").empty());
}

TEST(MemberLookup, EventsOfAPictureStandUnderItsArray) {
  Typist typist;
  EXPECT_EQ(typist.Lookup.EventsOf("Pic"), std::vector<std::string>{"OnPaint"});
}

TEST(MemberLookup, ARemovedFormAndItsObjectsAreNotOffered) {
  Typist typist;
  typist.Project.Builder.Form(1).Remove();
  EXPECT_TRUE(typist.Lookup.MembersOf("Main").empty());
  EXPECT_EQ(typist.Lookup.MembersOf("Ok"), std::vector<std::string>{"AddItems"});
}

TEST(MemberLookup, MenuNamesCountOnlyWhileABarIsShown) {
  Typist typist;
  ClearMenuControls(*typist.Project.Tables.User(1));
  EXPECT_TRUE(typist.Lookup.MembersOf("mnuOpen").empty());
}

TEST(MemberLookup, AHiddenMenuControlIsNotOffered) {
  Typist typist;
  DesignControl& item = *typist.Project.Tables.User(1)->Element(Kind::MenuItem, 1);
  item.Tag = "mnuHidden";
  EXPECT_EQ(typist.Lookup.MembersOf("mnuHidden").front(), "Checked");
  item.Visible = false;
  EXPECT_TRUE(typist.Lookup.MembersOf("mnuHidden").empty());
}

TEST(MemberLookup, NamesOfTheMenuArraysCountWithoutAControlOfTheirOwn) {
  Typist typist;
  ProjectTables& tables = typist.Project.Tables;
  tables.MenuTitles.emplace_back().Name = "mnuLaterTitle";
  tables.MenuItems.emplace_back().Name = "mnuLaterItem";
  EXPECT_EQ(typist.Lookup.MembersOf("mnulatertitle").front(), "Caption");
  EXPECT_EQ(typist.Lookup.MembersOf("MNULATERITEM").front(), "Checked");
}

TEST(MemberLookup, TheRowInFrontOfTheFirstOfAMenuArrayIsNoName) {
  Typist typist;
  typist.Project.Tables.MenuTitles.at(0).Name = "mnuTemplate";
  EXPECT_TRUE(typist.Lookup.MembersOf("mnuTemplate").empty());
}

TEST(MemberLookup, HiddenTemplatesAndObjectsWithoutANameAreNotOffered) {
  Typist typist;
  EXPECT_TRUE(typist.Lookup.MembersOf("").empty());
  typist.Project.Builder.Form(1).Add(Kind::Button, "Hidden").Control.Visible = false;
  EXPECT_TRUE(typist.Lookup.MembersOf("Hidden").empty());
}

}  // namespace
}  // namespace tarnwick::test
