// All the ways into the code of an object, and what happens to its code meanwhile, by real keys and
// presses.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "designer/history/history.h"
#include "program.h"
#include "qt/editor/code_edit.h"
#include "qt/frame/events_bar_window.h"
#include "qt/surface/container.h"
#include "shell/events_bar.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr int kButtonTool = 0;
constexpr int kLabelTool = 3;
constexpr int kPopUpTool = 19;

class CodePaths : public testing::Test {
 protected:
  Program program;

  /// A window of the program by name, wherever it works.
  static QWidget* TopLevel(const char* name) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [name](const QWidget* window) {
      return window->objectName() == QLatin1String(name);
    });
    return found == windows.end() ? nullptr : *found;
  }
  static QWidget& Code() { return *TopLevel("FormCodigo"); }
  static CodeEdit& Editor() { return *Code().findChild<CodeEdit*>(QStringLiteral("Editor")); }
  static QComboBox& Events() { return *Code().findChild<QComboBox*>(QStringLiteral("Events")); }
  static std::string Shown() {
    return Code().isVisible() ? Events().currentText().toStdString() : "closed";
  }
  static bool TakesKeys(const QWidget& window) {
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
  }
  /// Types over the code that is open and accepts it by its key.
  void TypeAndAccept(const QString& text) {
    ASSERT_TRUE(TakesKeys(Code()));
    program.Key(Qt::Key_A, Qt::ControlModifier);
    program.Type(text);
    program.Key(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_FALSE(Code().isVisible());
  }
  void CancelCode() {
    ASSERT_TRUE(TakesKeys(Code()));
    program.Key(Qt::Key_Escape);
    ASSERT_FALSE(Code().isVisible());
    program.Window().activateWindow();
    ASSERT_TRUE(TakesKeys(program.Window()));
  }
  void SelectAt(QPoint at) { program.Click(program.Surface(), at); }
  void DoubleClick(QPoint at) {
    QWidget& surface = program.Surface();
    const QPoint place = surface.mapTo(surface.window(), at);
    QTest::mouseDClick(surface.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    Program::Settle();
  }
};

TEST_F(CodePaths, ADoubleClickOnAnObjectOpensItsCode) {
  program.Place(kButtonTool, {40, 60});
  program.Place(kLabelTool, {200, 60});
  DoubleClick({45, 65});
  EXPECT_EQ(Shown(), "Sub Form1Btn1_OnClick");
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  CancelCode();
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn1");
}

TEST_F(CodePaths, ADoubleClickOnTheFormOpensTheCodeOfTheForm) {
  DoubleClick({200, 200});
  EXPECT_EQ(Shown(), "Sub Form1_OnShow");
  EXPECT_EQ(Events().count(), 12);
}

TEST_F(CodePaths, ADoubleClickOnAKindWithoutEventsOpensNothing) {
  program.Place(12, {40, 60});
  DoubleClick({45, 65});
  EXPECT_EQ(Shown(), "closed");
}

TEST_F(CodePaths, EnterOnTheFormOpensTheCodeOfTheSelection) {
  program.Place(kButtonTool, {40, 60});
  program.Key(Qt::Key_Return);
  EXPECT_EQ(Shown(), "Sub Form1Btn1_OnClick");
}

TEST_F(CodePaths, TheMenuOpensTheCodeOfTheSelection) {
  program.Place(kLabelTool, {40, 60});
  program.Choose(QStringLiteral("mnuCode"));
  EXPECT_EQ(Shown(), "Sub Form1Label1_OnClick");
}

TEST_F(CodePaths, TheToolbarOpensTheCodeOfTheSelection) {
  program.Place(kLabelTool, {40, 60});
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_8")));
  EXPECT_EQ(Shown(), "Sub Form1Label1_OnClick");
}

TEST_F(CodePaths, ThePopUpOfAnObjectOpensItsCode) {
  program.Place(kButtonTool, {40, 60});
  program.Place(kLabelTool, {200, 60});
  program.Click(program.Surface(), {45, 65}, Qt::RightButton);
  auto& menu = program.Find<QMenu>(QStringLiteral("ObjectPopUp"));
  ASSERT_TRUE(menu.isVisible());
  program.Click(menu, menu.actionGeometry(&program.Action(QStringLiteral("popCode"))).center());
  EXPECT_EQ(Shown(), "Sub Form1Btn1_OnClick");
}

TEST_F(CodePaths, AButtonOfTheEventsBarOpensTheEventThatHasCode) {
  program.Place(kButtonTool, {40, 60});
  program.Key(Qt::Key_F7);
  ASSERT_TRUE(TakesKeys(Code()));
  Events().setFocus();
  program.Key(Qt::Key_Down);
  program.Key(Qt::Key_Down);
  ASSERT_EQ(Shown(), "Sub Form1Btn1_OnKeyPress (Key As Byte)");
  program.Key(Qt::Key_Return);
  TypeAndAccept(QStringLiteral("Beep"));
  program.Window().activateWindow();
  ASSERT_TRUE(TakesKeys(program.Window()));
  program.Click(program.Surface(), {300, 200});
  ASSERT_EQ(program.Form().NameObjet, "Form");
  auto* button =
      program.Window().EventButtons().findChild<QToolButton*>(QStringLiteral("btncodigo_1"));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->toolTip(), QStringLiteral("Form1Btn1"));
  program.Click(*button);
  auto* rows = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(rows, nullptr);
  ASSERT_EQ(rows->actions().size(), 1);
  EXPECT_EQ(rows->actions()[0]->text(), QStringLiteral("OnKeyPress"));
  program.Click(*rows, rows->actionGeometry(rows->actions()[0]).center());
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  EXPECT_EQ(Shown(), "Sub Form1Btn1_OnKeyPress (Key As Byte)");
  EXPECT_EQ(Editor().Text(), "Beep");
}

TEST_F(CodePaths, AnObjectRenamedInTheGridKeepsItsCodeUnderItsNewName) {
  program.Place(kButtonTool, {40, 60});
  program.Key(Qt::Key_F7);
  TypeAndAccept(QStringLiteral("Beep"));
  program.Window().activateWindow();
  SelectAt({45, 65});
  program.TypeIntoRow("Name", QStringLiteral("Renamed"));
  ASSERT_EQ(program.Selected()->Tag, "Renamed");
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "Beep");
  const std::string source = program.Source();
  EXPECT_TRUE(Contains(source, "Sub Renamed_OnClick\r\nBeep\r\nEnd Sub")) << source;
  DoubleClick({45, 65});
  EXPECT_EQ(Shown(), "Sub Renamed_OnClick");
  EXPECT_EQ(Editor().Text(), "Beep");
}

TEST_F(CodePaths, AnObjectKeepsItsCodeWhenAnEarlierOneOfItsKindIsDeleted) {
  for (const int left : {20, 140, 260}) {
    program.Place(kButtonTool, {left, 60});
    program.Key(Qt::Key_F7);
    TypeAndAccept(QStringLiteral("x = %1").arg(left));
    program.Window().activateWindow();
    ASSERT_TRUE(TakesKeys(program.Window()));
  }
  SelectAt({145, 65});
  program.Key(Qt::Key_Delete);
  DoubleClick({265, 65});
  EXPECT_EQ(Shown(), "Sub Form1Btn3_OnClick");
  EXPECT_EQ(Editor().Text(), "x = 260");
  CancelCode();
  DoubleClick({25, 65});
  EXPECT_EQ(Shown(), "Sub Form1Btn1_OnClick");
  EXPECT_EQ(Editor().Text(), "x = 20");
  const std::string source = program.Source();
  EXPECT_TRUE(Contains(source, "Sub Form1Btn3_OnClick\r\nx = 260\r\nEnd Sub")) << source;
  EXPECT_TRUE(Contains(source, "Sub Form1Btn1_OnClick\r\nx = 20\r\nEnd Sub")) << source;
}

TEST_F(CodePaths, TypedChangedCancelledAndReopenedOnlyTheEventBeforeIsKept) {
  program.Place(kButtonTool, {40, 60});
  program.Key(Qt::Key_F7);
  ASSERT_TRUE(TakesKeys(Code()));
  program.Type(QStringLiteral("first"));
  Events().setFocus();
  program.Key(Qt::Key_Down);
  Editor().setFocus();
  program.Type(QStringLiteral("second"));
  CancelCode();
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "first");
  EXPECT_EQ(program.Code("Form1.Button1.OnKeyDown"), "(none)");
  DoubleClick({45, 65});
  EXPECT_EQ(Shown(), "Sub Form1Btn1_OnClick");
  EXPECT_EQ(Editor().Text(), "first");
}

TEST_F(CodePaths, AcceptedCodeIsOneStepOfTheHistory) {
  program.Place(kButtonTool, {40, 60});
  program.Key(Qt::Key_F7);
  TypeAndAccept(QStringLiteral("Beep"));
  program.Window().activateWindow();
  ASSERT_TRUE(TakesKeys(program.Window()));
  EXPECT_EQ(program.Shell().Steps().UndoName(), "Code Form1Btn1");
  program.Choose(QStringLiteral("mnuUndo"));
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "(none)");
  EXPECT_TRUE(program.Shell().Bar().btncodigo(1).empty());
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  program.Choose(QStringLiteral("mnuRedo"));
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "Beep");
  EXPECT_EQ(program.Shell().Bar().btncodigo(1).size(), 1U);
  program.Key(Qt::Key_D, Qt::ControlModifier);
  QWidget* declare = TopLevel("FormViewCodes");
  ASSERT_TRUE(TakesKeys(*declare));
  program.Type(QStringLiteral("Dim a As Integer"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  program.Window().activateWindow();
  ASSERT_TRUE(TakesKeys(program.Window()));
  EXPECT_EQ(program.Shell().Steps().UndoName(), "Public Declarations");
  program.Choose(QStringLiteral("mnuUndo"));
  EXPECT_EQ(program.Record().DeclarePbl, "");
}

TEST_F(CodePaths, WhileTheCodeIsOpenTheFormSelectsNothingAndTheCodeComesToTheFront) {
  program.Place(kLabelTool, {200, 60});
  program.Place(kButtonTool, {40, 60});
  program.Key(Qt::Key_F7);
  program.Window().activateWindow();
  ASSERT_TRUE(TakesKeys(program.Window()));
  SelectAt({205, 65});
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  EXPECT_TRUE(TakesKeys(Code()));
}

/// Above `FormPopUp`, which is modal, every window that the editor leads to can be used.
class AboveThePopUpDesigner : public CodePaths {
 protected:
  template <class Step>
  void InCodeAboveTheDesigner(Step step) {
    program.Place(kPopUpTool, {20, 20});
    program.User.Do([step](QDialog& dialog) {
      ASSERT_EQ(dialog.objectName(), "FormPopUp");
      const auto press = [&dialog](const char* name) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QString::fromLatin1(name)),
                          Qt::LeftButton);
      };
      press("Command1_10");
      press("btns");
      ASSERT_TRUE(Code().isVisible());
      ASSERT_TRUE(TakesKeys(Code()));
      step();
      if (Code().isVisible()) {
        Code().activateWindow();
        ASSERT_TRUE(TakesKeys(Code()));
        QTest::keyClick(Code().windowHandle(), Qt::Key_Escape);
        Program::Settle();
      }
      dialog.activateWindow();
      ASSERT_TRUE(TakesKeys(dialog));
      press("Command1_7");
    });
    program.PressRowButton("AddItems");
  }
};

TEST_F(AboveThePopUpDesigner, PublicDeclarationsAreTypedAndKept) {
  InCodeAboveTheDesigner([this] {
    program.Key(Qt::Key_D, Qt::ControlModifier);
    QWidget* declare = TopLevel("FormViewCodes");
    ASSERT_NE(declare, nullptr);
    ASSERT_TRUE(declare->isVisible());
    ASSERT_TRUE(TakesKeys(*declare));
    program.Type(QStringLiteral("Dim a As Integer"));
    auto* ok = declare->findChild<QPushButton*>(QStringLiteral("Command1"));
    program.Click(*ok);
    EXPECT_FALSE(declare->isVisible());
  });
  EXPECT_EQ(program.Record().DeclarePbl, "Dim a As Integer");
  QWidget* declare = TopLevel("FormViewCodes");
  ASSERT_NE(declare, nullptr);
  EXPECT_EQ(declare->parentWidget(), &program.Window());
}

TEST_F(AboveThePopUpDesigner, TheExaminerIsUsedAndStaysOpenBehindTheDesigner) {
  InCodeAboveTheDesigner([this] {
    program.Key(Qt::Key_F1, Qt::ControlModifier);
    QWidget* examiner = TopLevel("FormViewObjects");
    ASSERT_NE(examiner, nullptr);
    ASSERT_TRUE(TakesKeys(*examiner));
    program.Type(QStringLiteral("lab"));
    auto* kinds = examiner->findChild<QListWidget*>(QStringLiteral("Lista"));
    EXPECT_TRUE(
        kinds->currentItem()->text().startsWith(QStringLiteral("Lab"), Qt::CaseInsensitive));
  });
  QWidget* examiner = TopLevel("FormViewObjects");
  ASSERT_NE(examiner, nullptr);
  EXPECT_TRUE(examiner->isVisible());
  EXPECT_EQ(examiner->parentWidget(), &program.Window());
}

TEST_F(AboveThePopUpDesigner, FindAndReplaceWorks) {
  InCodeAboveTheDesigner([this] {
    program.Type(QStringLiteral("one two"));
    program.Key(Qt::Key_F, Qt::ControlModifier);
    auto* find = Code().findChild<QDialog*>(QStringLiteral("FindDialog"));
    ASSERT_NE(find, nullptr);
    ASSERT_TRUE(TakesKeys(*find));
    program.Type(QStringLiteral("one"));
    program.Key(Qt::Key_Return);
    EXPECT_EQ(Editor().selectedText(), QStringLiteral("one"));
    program.Key(Qt::Key_Escape);
    EXPECT_FALSE(find->isVisible());
  });
}

}  // namespace
}  // namespace tarnwick
