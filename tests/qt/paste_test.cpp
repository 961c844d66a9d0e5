// What a copied object shows after a paste, and what a copy or a press that cannot be done says.
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "persistence/form_writer.h"
#include "program.h"

namespace tarnwick {
namespace {

constexpr QPoint kFree{300, 250};

class Pasting : public testing::Test {
 protected:
  void Copy() { program.Key(Qt::Key_C, Qt::ControlModifier); }
  void Paste() { program.Key(Qt::Key_V, Qt::ControlModifier); }
  std::string Status() {
    return program.Find<QLabel>(QStringLiteral("StatusText")).text().toStdString();
  }
  std::string FormFile() { return FormFileText(program.Tables(), 1); }

  Program program;
};

TEST_F(Pasting, ACheckBoxKeepsItsCheck) {
  program.Place(6, {20, 20});
  program.TypeIntoRow("Checked", QStringLiteral("True"));
  ASSERT_EQ(program.Form().Element(Kind::CheckBox, 1)->Value, 1);
  program.Click(program.Surface(), {30, 25});
  Copy();
  Paste();
  ASSERT_EQ(program.Form().NameObjet, "CheckBox2");
  EXPECT_EQ(program.Selected()->Value, 1);
  EXPECT_EQ(program.Record().CheckBoxes.At(2)->Checked, 1);
  // The check is saved: the file has it for both.
  const std::string file = FormFile();
  const std::size_t first = file.find("Checked<1>");
  ASSERT_NE(first, std::string::npos) << file;
  EXPECT_NE(file.find("Checked<1>", first + 1), std::string::npos) << file;
}

TEST_F(Pasting, AListWhoseSourceIsGoneHasTheItemsOfANewOneOnTheControl) {
  program.Place(4, {20, 20});
  Copy();
  program.Key(Qt::Key_Delete);
  ASSERT_EQ(program.Form().UBound(Kind::ListBox), 0);
  Paste();
  ASSERT_EQ(program.Form().UBound(Kind::ListBox), 1);
  EXPECT_EQ(program.Selected()->Items, std::vector<std::string>{program.Selected()->Tag});
  EXPECT_EQ(Status(), "The copied object is gone: Form1List1 is a new one");
}

TEST_F(Pasting, AListShowsTheItemsOfItsSource) {
  program.Place(4, {20, 20});
  program.Selected()->Items = {"one", "two"};
  program.Record().ListBoxes.At(1)->Items = "one\x95two\x95";
  Copy();
  Paste();
  EXPECT_EQ(program.Selected()->Items, (std::vector<std::string>{"one", "two"}));
  const std::string source = program.Source();
  EXPECT_NE(source.find("Form1List2.AddItems"), std::string::npos) << source;
}

TEST_F(Pasting, ATransparentFrameDoesNotReplaceTheCopiedObject) {
  program.Place(0, {20, 20});
  Copy();
  program.Place(15, {150, 100});
  ASSERT_EQ(program.Form().NameObjet, "TransparentFrame");
  Copy();
  program.Click(program.Surface(), kFree);
  Paste();
  EXPECT_EQ(program.Form().NameObjet, "Button2");
  EXPECT_EQ(RectOf(*program.Selected()), (PixelRect{30, 30, 75, 25}));
}

TEST_F(Pasting, AnArmedToolPressedOnAnObjectSaysWhereToPress) {
  struct Case {
    int Tool;
    QPoint At;
    Kind Kept;
  };
  for (const Case& c : {Case{1, {20, 20}, Kind::TextBox}, Case{4, {20, 60}, Kind::ListBox}}) {
    program.Place(c.Tool, c.At);
    program.Click(program.Surface(), kFree);
    program.PressTool(0);
    ASSERT_EQ(program.Form().Objeto, "Button");
    program.Click(program.Surface(), c.At + QPoint(8, 8));
    EXPECT_EQ(Status(), "Press on a free part of the form to place the new Button");
    EXPECT_EQ(program.Selected(), program.Form().Element(c.Kept, 1).get());
    EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
    // The tool waits for the press that places.
    EXPECT_EQ(program.Form().Objeto, "Button");
    program.Key(Qt::Key_Escape);
  }
}

}  // namespace
}  // namespace tarnwick
