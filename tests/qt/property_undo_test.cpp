// Undo and redo of edits in the property grid: real keys, presses and dialogs in the whole program.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "designer/history/history.h"
#include "grid_window.h"
#include "shell/events_bar.h"

namespace tarnwick {
namespace {

class PropertyUndo : public GridWindow {
 protected:
  History& Steps() { return program.Shell().Steps(); }
  /// Gives the focus to the form by a press beside its objects, which ends the stay in a row, and
  /// presses Ctrl+Z there.
  void UndoOnForm() {
    program.Click(program.Surface(), {300, 250});
    program.Key(Qt::Key_Z, Qt::ControlModifier);
  }
  /// What the next undo is about.
  std::string Next() { return program.Shell().Commands().Caption(Command::Undo); }
};

TEST_F(PropertyUndo, TwoRowsTypedInAreTwoStepsUnderTheirNames) {
  DesignControl* button = program.Place(0, {20, 20});
  Type("Caption", "Go on");
  program.Key(Qt::Key_Return);
  Type("Width", "120");
  EXPECT_EQ(Next(), "&Undo Edit Width of Form1Btn1");
  UndoOnForm();
  EXPECT_EQ(button->Width, 75 * 15);
  EXPECT_EQ(button->Caption, "Go on");
  EXPECT_EQ(Next(), "&Undo Edit Caption of Form1Btn1");
  EXPECT_EQ(Shown("Width"), "75") << "the object is selected again and its rows show";
  EXPECT_EQ(Shown("Caption"), "Go on");
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(Shown("Caption"), "Form1Btn1");
  EXPECT_EQ(Next(), "&Undo Place Form1Btn1");
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Shown("Caption"), "Go on");
  EXPECT_EQ(Shown("Width"), "120");
}

TEST_F(PropertyUndo, TheMenuNamesTheStepButNotWhileATextHasTheFocus) {
  const auto shown = [this] {
    Program::Settle();
    return program.Action(QStringLiteral("mnuUndo")).text().toStdString();
  };
  program.Place(0, {20, 20});
  Type("Name", "A&B");
  EXPECT_EQ(shown(), "&Undo") << "it acts on the text";
  program.Key(Qt::Key_Return);
  Type("Caption", "Go");
  program.Click(program.Surface(), {300, 250});
  EXPECT_EQ(shown(), "&Undo Edit Caption of A&&B");
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.Action(QStringLiteral("mnuRedo")).text().toStdString(),
            "&Redo Edit Caption of A&&B");
}

TEST_F(PropertyUndo, WhileARowIsTypedInCtrlZBelongsToItsText) {
  DesignControl* button = program.Place(0, {20, 20});
  Type("Caption", "Half");
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Shown("Caption"), button->Caption) << "what is shown is what is stored";
  EXPECT_NE(button->Caption, "Half");
  EXPECT_NE(program.Form().Element(Kind::Button, 1), nullptr);
  EXPECT_EQ(Focused(), CellName("Caption"));
}

TEST_F(PropertyUndo, AnUndoInTheMidstOfARowTakesTheRowBackAndTypingGoesOn) {
  DesignControl* button = program.Place(0, {20, 20});
  Type("Caption", "Half");
  program.Shell().Undo();
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(Shown("Caption"), "Form1Btn1");
  Type("Caption", "Whole");
  UndoOnForm();
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(Next(), "&Undo Place Form1Btn1");
}

TEST_F(PropertyUndo, EscInARowLeavesNoStep) {
  program.Place(0, {20, 20});
  Type("Caption", "Other");
  program.Key(Qt::Key_Escape);
  program.Key(Qt::Key_Escape);
  EXPECT_EQ(Next(), "&Undo Place Form1Btn1");
}

TEST_F(PropertyUndo, AChosenValueIsAStepOfItsOwn) {
  program.Place(0, {20, 20});
  Enter("Enabled");
  program.Key(Qt::Key_F4);
  program.Key(Qt::Key_Up);
  program.Key(Qt::Key_Return);
  EXPECT_EQ(program.Record().Buttons.At(1)->Enabled, 0);
  EXPECT_EQ(Next(), "&Undo Edit Enabled of Form1Btn1");
  UndoOnForm();
  EXPECT_EQ(program.Record().Buttons.At(1)->Enabled, 1);
  EXPECT_EQ(Shown("Enabled"), "True");
}

TEST_F(PropertyUndo, APickedFontIsTakenBackWithSizeAndStyle) {
  DesignControl* label = program.Place(1, {20, 20});
  program.Dialogs.FontAnswers.push_back(FontChoice{"Courier New", 14, true, false, 255});
  Enter("Font");
  program.Key(Qt::Key_Return);
  EXPECT_EQ(label->FontName, "Courier New");
  EXPECT_EQ(Next(), "&Undo Edit Font of " + label->Tag);
  UndoOnForm();
  EXPECT_EQ(label->FontName, "MS Sans Serif");
  EXPECT_EQ(label->FontSize, 8);
  EXPECT_FALSE(label->FontBold);
  EXPECT_EQ(label->ForeColor, 0);
  EXPECT_EQ(Shown("Font"), "MS Sans Serif");
}

TEST_F(PropertyUndo, TheItemsOfAListAreTakenBack) {
  DesignControl* list = program.Place(4, {20, 20});
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QPlainTextEdit*>(QStringLiteral("TextAdd"));
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("Apple"));
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
  });
  const std::vector<std::string> before = list->Items;
  Enter("AddItems");
  program.Click(Button("Boton1"));
  EXPECT_EQ(list->Items, std::vector<std::string>{"Apple"});
  EXPECT_EQ(Next(), "&Undo Edit AddItems of " + list->Tag);
  UndoOnForm();
  EXPECT_EQ(list->Items, before);
  EXPECT_EQ(program.Record().ListBoxes.At(1)->Items, "");
}

TEST_F(PropertyUndo, ARenameTakenBackIsInHeadListAndEventsBar) {
  DesignControl* button = program.Place(0, {20, 20});
  {
    const HistoryStep step(Steps(), 1, "Code");
    program.Tables().EventTable.Replace("Form1.Button1.OnClick", "Beep");
    program.Shell().Bar().PopBoockMarck(1, "Button1");
  }
  Type("Name", "Start");
  program.Key(Qt::Key_Return);
  const auto& combo = program.Find<QComboBox>(QStringLiteral("Combo"));
  EXPECT_EQ(combo.currentText(), "Start   (Button)");
  UndoOnForm();
  Program::Settle();
  EXPECT_EQ(button->Tag, "Form1Btn1");
  EXPECT_EQ(combo.currentText(), "Form1Btn1   (Button)");
  EXPECT_EQ(combo.findText(QStringLiteral("Start   (Button)")), -1);
  EXPECT_EQ(Shown("Name"), "Form1Btn1");
  const auto tips = [this] {
    std::vector<std::string> seen;
    for (const QToolButton* each : program.Window().findChildren<QToolButton*>()) {
      if (each->objectName().startsWith(QStringLiteral("btncodigo"))) {
        seen.push_back(each->toolTip().toStdString());
      }
    }
    return seen;
  };
  EXPECT_EQ(tips(), std::vector<std::string>{"Form1Btn1"});
}

TEST_F(PropertyUndo, AFormsWidthIsOneStepAlthoughItsWindowFollowsEachKey) {
  const float before = program.Form().Width;
  Type("Width", "450");
  Program::Settle();
  EXPECT_EQ(program.Form().Width, 450 * 15);
  EXPECT_EQ(Next(), "&Undo Edit Width of Form1");
  UndoOnForm();
  EXPECT_EQ(program.Form().Width, before);
  EXPECT_FALSE(Steps().CanUndo());
}

}  // namespace
}  // namespace tarnwick
