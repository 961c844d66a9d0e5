// Menus, tips, panels and fields of the main window.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "inspector/form_add_items.h"
#include "program.h"
#include "qt/grid/item_dialog.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

struct Row {
  const char* Name;  ///< "" for a separator
  const char* Caption;
  const char* Key;
};
struct Column {
  const char* Caption;
  std::vector<Row> Rows;
};

const std::vector<Column>& ExpectedMenus() {
  static const Row line{"", "", ""};
  static const std::vector<Column> menus{
      {"&File",
       {{"mnuNew", "&New Project", "Ctrl+N"},
        {"mnuOpen", "&Open Project...", "Ctrl+O"},
        {"mnuOpenOld", "Open Old &Version...", ""},
        line,
        {"mnuSave", "&Save Project", "Ctrl+S"},
        {"mnuSaveAs", "Save Project &As...", "Ctrl+Shift+S"},
        {"mnuSaveForm", "Save &Form", "Ctrl+Alt+S"},
        {"mnuSaveFormAs", "Save For&m As...", ""},
        line,
        {"mnuRecent", "&Recent Projects", ""},
        {"mnuRestore", "Restore &Unsaved Work...", ""},
        line,
        {"mnuExit", "E&xit", "Ctrl+Q"}}},
      {"&Edit",
       {{"mnuUndo", "&Undo", "Ctrl+Z"},
        {"mnuRedo", "&Redo", "Ctrl+Y"},
        line,
        {"mnuCut", "Cu&t", "Ctrl+X"},
        {"mnuCopy", "&Copy", "Ctrl+C"},
        {"mnuPaste", "&Paste", "Ctrl+V"},
        {"mnuDelete", "&Delete", "Del"},
        line,
        {"mnuFrente", "Bring to &front", "Ctrl+]"},
        {"mnuFondo", "Stay &back", "Ctrl+["},
        line,
        {"mnuGrid", "Align To &Grid", "Ctrl+G"},
        {"mnuBloquear", "&Lock Objets", "Ctrl+L"}}},
      {"&View",
       {{"mnuCode", "&Code", "F7"},
        {"mnuDeclare", "Public &Declarations", "Ctrl+D"},
        {"mnuProperties", "&Properties", "F6"},
        {"mnuForms", "&Forms", ""},
        {"mnuEventsBar", "&Events Bar", "Ctrl+E"},
        {"mnuObjectBar", "Object &Bar", "Ctrl+B"},
        line,
        {"mnuExaminer", "&Objects Examiner", "Ctrl+F1"}}},
      {"&Project",
       {{"mnuAddForm", "&Add New Form", "Ctrl+Shift+N"},
        {"mnuRemove", "Remove Form1 from project", ""},
        line,
        {"mnuMain", "Select &Main Form...", ""},
        {"mnuMenuEdit", "M&enu Edit...", "Ctrl+M"}}},
      {"&Objects", {{"mnuItemObj_17", "Cursor", ""},      {"mnuItemObj_9", "Add New Form", ""},
                    {"mnuItemObj_0", "Button", ""},       {"mnuItemObj_1", "TextBox", ""},
                    {"mnuItemObj_2", "Image", ""},        {"mnuItemObj_3", "Label", ""},
                    {"mnuItemObj_4", "ListBox", ""},      {"mnuItemObj_5", "OptionButton", ""},
                    {"mnuItemObj_6", "CheckBox", ""},     {"mnuItemObj_7", "ComboBox", ""},
                    {"mnuItemObj_10", "RichTextBox", ""}, {"mnuItemObj_11", "Time", ""},
                    {"mnuItemObj_12", "OpenDialog", ""},  {"mnuItemObj_13", "SaveDialog", ""},
                    {"mnuItemObj_14", "FileStream", ""},  {"mnuItemObj_15", "TransparentFrame", ""},
                    {"mnuItemObj_16", "HtmlViewer", ""},  {"mnuItemObj_18", "WinSock", ""},
                    {"mnuItemObj_19", "PopUpMenu", ""},   {"mnuItemObj_8", "Menu", ""}}},
      {"&Run",
       {{"mnuCompile", "&Compile and Run", "F5"},
        {"mnuStop", "&Stop", "Shift+F5"},
        {"mnuRunWith", "Run &With", ""},
        line,
        {"mnuCheck", "C&heck", "Shift+F8"},
        {"mnuOutput", "&Output", ""}}},
      {"&Help",
       {{"mnuHelp", "&Contents", "F1"},
        line,
        {"mnuHelpRunning", "&Runner and Compiler", ""},
        {"mnuHelpChoices", "C&hoices of the Runner", ""},
        {"mnuHelpSupported", "What the Runner &Supports", ""},
        line,
        {"mnuAbout", "&About Tarnwick", ""}}},
  };
  return menus;
}

TEST(Menus, EveryCommandIsThereWithCaptionAndKey) {
  Program program;
  const QList<QAction*> titles = program.Window().menuBar()->actions();
  const std::vector<Column>& expected = ExpectedMenus();
  ASSERT_EQ(titles.size(), static_cast<qsizetype>(expected.size()));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const QAction* title = titles[static_cast<qsizetype>(i)];
    EXPECT_EQ(title->text(), QString::fromLatin1(expected[i].Caption));
    const QList<QAction*> rows = title->menu()->actions();
    ASSERT_EQ(rows.size(), static_cast<qsizetype>(expected[i].Rows.size())) << expected[i].Caption;
    for (std::size_t j = 0; j < expected[i].Rows.size(); ++j) {
      const Row& want = expected[i].Rows[j];
      const QAction* row = rows[static_cast<qsizetype>(j)];
      EXPECT_EQ(row->isSeparator(), *want.Name == '\0') << want.Caption;
      if (row->isSeparator()) continue;
      // The row of a menu within the menu has the name of that.
      const QString name = row->menu() != nullptr ? row->menu()->objectName() : row->objectName();
      EXPECT_EQ(name, QString::fromLatin1(want.Name));
      EXPECT_EQ(row->text(), QString::fromLatin1(want.Caption));
      EXPECT_EQ(row->shortcut(), QKeySequence(QString::fromLatin1(want.Key))) << want.Caption;
    }
  }
}

TEST(Menus, RunWithMarksTheOneThatIsChosen) {
  Program program;
  auto& menu = program.Find<QMenu>(QStringLiteral("mnuRunWith"));
  const auto marked = [&menu] {
    QStringList names;
    for (const QAction* row : menu.actions()) {
      if (row->isChecked()) names << row->text();
    }
    return names;
  };
  EXPECT_EQ(menu.actions().size(), 3);
  EXPECT_EQ(marked(), QStringList{QStringLiteral("&Automatic")});
  program.Action(QStringLiteral("mnuRunWithRunner")).trigger();
  EXPECT_EQ(marked(), QStringList{QStringLiteral("&Runner")});
  program.Action(QStringLiteral("mnuRunWithRunner")).trigger();
  EXPECT_EQ(marked(), QStringList{QStringLiteral("&Runner")});
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("StatusText")).text(),
            QStringLiteral("F5 starts the runner, tarnwick-run"));
}

TEST(Menus, NoTwoRowsTakeTheSameKey) {
  Program program;
  QStringList keys;
  for (const QAction* action : program.Window().findChildren<QAction*>()) {
    // The windows beside this one have keys of their own.
    const auto* owner = qobject_cast<QWidget*>(action->parent());
    const QWidget* window = owner == nullptr ? nullptr : owner->window();
    if (window != nullptr && window->objectName().startsWith(QLatin1String("Form"))) continue;
    if (!action->shortcut().isEmpty()) keys << action->shortcut().toString();
  }
  EXPECT_EQ(keys.removeDuplicates(), 0);
  EXPECT_GT(keys.size(), 20);
}

TEST(Menus, NoTwoRowsOfAMenuTakeTheSameLetter) {
  Program program;
  const auto letters = [](const QList<QAction*>& rows) {
    QStringList taken;
    for (const QAction* row : rows) {
      const QString key = QKeySequence::mnemonic(row->text()).toString();
      if (!key.isEmpty()) taken << key;
    }
    return taken;
  };
  EXPECT_EQ(letters(program.Window().menuBar()->actions()).removeDuplicates(), 0);
  for (const QAction* title : program.Window().menuBar()->actions()) {
    EXPECT_EQ(letters(title->menu()->actions()).removeDuplicates(), 0)
        << title->text().toStdString();
  }
}

TEST(Menus, ThePopUpShowsItsKeysAndTakesNone) {
  Program program;
  const std::vector<Row> expected{{"popCode", "C&ode\tF7", ""},
                                  {"", "", ""},
                                  {"popCut", "Cu&t\tCtrl+X", ""},
                                  {"popCopy", "&Copy\tCtrl+C", ""},
                                  {"popPaste", "&Paste\tCtrl+V", ""},
                                  {"", "", ""},
                                  {"popFrente", "Bring to &front", ""},
                                  {"popFondo", "Stay &back", ""},
                                  {"", "", ""},
                                  {"popGrid", "Align To &Grid\tCtrl+G", ""},
                                  {"popBloquear", "&Lock Objets\tCtrl+L", ""},
                                  {"", "", ""},
                                  {"popPropiedades", "P&roperties\tF6", ""}};
  const QList<QAction*> rows = program.Find<QMenu>(QStringLiteral("ObjectPopUp")).actions();
  ASSERT_EQ(rows.size(), static_cast<qsizetype>(expected.size()));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const QAction* row = rows[static_cast<qsizetype>(i)];
    EXPECT_EQ(row->text(), QString::fromLatin1(expected[i].Caption));
    EXPECT_EQ(row->objectName(), QString::fromLatin1(expected[i].Name));
    EXPECT_TRUE(row->shortcut().isEmpty());
  }
}

TEST(Menus, OnAFreshFormObjectCommandsAreOffAndOthersOn) {
  Program program;
  EXPECT_FALSE(program.Action(QStringLiteral("mnuFrente")).isEnabled());
  EXPECT_FALSE(program.Action(QStringLiteral("mnuFondo")).isEnabled());
  EXPECT_FALSE(program.Action(QStringLiteral("mnuUndo")).isEnabled());
  EXPECT_FALSE(program.Action(QStringLiteral("mnuRedo")).isEnabled());
  EXPECT_FALSE(program.Action(QStringLiteral("mnuStop")).isEnabled());
  for (const Column& column : ExpectedMenus()) {
    for (const Row& row : column.Rows) {
      const QString name = QString::fromLatin1(row.Name);
      // Nothing is selected, no step has been made, and no program runs.
      const bool off = name == QLatin1String("mnuFrente") || name == QLatin1String("mnuFondo") ||
                       name == QLatin1String("mnuUndo") || name == QLatin1String("mnuRedo") ||
                       name == QLatin1String("mnuStop");
      const bool is_menu =
          name == QLatin1String("mnuRecent") || name == QLatin1String("mnuRunWith");
      if (name.isEmpty() || off || is_menu) continue;
      EXPECT_TRUE(program.Action(name).isEnabled()) << row.Name;
    }
  }
  program.Place(0, {20, 20});
  EXPECT_TRUE(program.Action(QStringLiteral("mnuFrente")).isEnabled());
}

TEST(Menus, CodeIsOffForKindsWithoutEvents) {
  Program program;
  for (const int tool : {12, 13, 14, 16, 18}) {
    program.Place(tool, {20, 20});
    EXPECT_FALSE(program.Action(QStringLiteral("mnuCode")).isEnabled()) << tool;
    EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("BtnMenu_8")).isEnabled()) << tool;
    program.Key(Qt::Key_Delete);
    EXPECT_TRUE(program.Action(QStringLiteral("mnuCode")).isEnabled());
  }
}

TEST(Tips, TheToolbarsTipsStandInOrder) {
  Program program;
  const std::vector<const char*> tips{
      "New Projet",    "Open Project", "Save Projet", "Cut",        "Copy",    "Paste",
      "Align To Grid", "Lock Objets",  "Code",        "Properties", "Compile", "Objects Examiner"};
  for (std::size_t i = 0; i < tips.size(); ++i) {
    EXPECT_EQ(program.Find<QToolButton>(QStringLiteral("BtnMenu_%1").arg(i)).toolTip(),
              QString::fromLatin1(tips[i]));
  }
  EXPECT_EQ(program.Find<QToolButton>(QStringLiteral("BtnBarMenu_0")).toolTip(),
            QStringLiteral("Add New Form"));
  EXPECT_EQ(program.Find<QToolButton>(QStringLiteral("BtnBarMenu_1")).toolTip(),
            QStringLiteral("Remove Form"));
}

TEST(Tips, EveryButtonHasOne) {
  Program program;
  int buttons = 0;
  for (const QToolButton* button : program.Window().findChildren<QToolButton*>()) {
    // Qt's own: the arrow of a toolbar that has no room, those of tabs, the cross of a search
    // field.
    if (button->objectName().startsWith(QLatin1String("qt_")) ||
        qobject_cast<QTabBar*>(button->parentWidget()) != nullptr ||
        qobject_cast<QLineEdit*>(button->parentWidget()) != nullptr) {
      continue;
    }
    EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    ++buttons;
  }
  EXPECT_GE(buttons, 12 + 2 + 20 + 20 + 4);
}

TEST(Tips, BothToolBoxesShowTheMenusWords) {
  Program program;
  for (const Row& row : ExpectedMenus()[4].Rows) {
    const QString number = QString::fromLatin1(row.Name).section(u'_', 1);
    for (const char* box : {"BtnObjet_", "ObjectBarBtn_"}) {
      EXPECT_EQ(program.Find<QToolButton>(QString::fromLatin1(box) + number).toolTip(),
                QString::fromLatin1(row.Caption));
    }
  }
}

TEST(Panels, ThePropertiesGoAndComeBackBySeveralWays) {
  Program program;
  auto& panel = program.Find<QWidget>(QStringLiteral("Picture1"));
  EXPECT_TRUE(panel.isVisible());
  EXPECT_TRUE(program.Action(QStringLiteral("mnuProperties")).isChecked());
  program.Key(Qt::Key_F6);
  EXPECT_FALSE(panel.isVisible());
  EXPECT_FALSE(program.Action(QStringLiteral("mnuProperties")).isChecked());
  EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("BtnMenu_9")).isChecked());
  // A selection made meanwhile is shown when it comes back.
  program.Place(0, {20, 20});
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_9")));
  EXPECT_TRUE(panel.isVisible());
  EXPECT_EQ(program.Find<QLineEdit>(QStringLiteral("Text_0")).text(), QStringLiteral("Form1Btn1"));
  program.Click(program.Find<QToolButton>(QStringLiteral("btnClose")));
  EXPECT_FALSE(panel.isVisible());
  program.Choose(QStringLiteral("mnuProperties"));
  EXPECT_TRUE(panel.isVisible());
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnMenu_9")).isChecked());
}

TEST(Panels, ThePopUpTogglesThePropertiesToo) {
  Program program;
  program.Click(program.Surface(), {200, 200}, Qt::RightButton);
  auto& menu = program.Find<QMenu>(QStringLiteral("ObjectPopUp"));
  program.Click(menu,
                menu.actionGeometry(&program.Action(QStringLiteral("popPropiedades"))).center());
  EXPECT_FALSE(program.Find<QWidget>(QStringLiteral("Picture1")).isVisible());
  program.Click(program.Surface(), {200, 200}, Qt::RightButton);
  EXPECT_FALSE(program.Action(QStringLiteral("popPropiedades")).isChecked());
  program.Key(Qt::Key_Escape);
}

TEST(Panels, SizesSetByHandComeBack) {
  Program program;
  auto& splitter = program.Find<QSplitter>(QStringLiteral("MiddleAndRight"));
  QWidget* handle = splitter.handle(1);
  program.Drag(*handle, handle->rect().center(), handle->rect().center() - QPoint(90, 0));
  const QList<int> wide = splitter.sizes();
  auto& panels = program.Find<QSplitter>(QStringLiteral("RightPanels"));
  QWidget* between = panels.handle(1);
  program.Drag(*between, between->rect().center(), between->rect().center() - QPoint(0, 60));
  const QList<int> high = panels.sizes();
  const int form_list = program.Find<QWidget>(QStringLiteral("ListaFrms")).height();
  program.Key(Qt::Key_F6);
  program.Choose(QStringLiteral("mnuForms"));
  EXPECT_FALSE(program.Find<QWidget>(QStringLiteral("ListaFrms")).isVisible());
  program.Key(Qt::Key_F6);
  program.Choose(QStringLiteral("mnuForms"));
  EXPECT_TRUE(program.Find<QWidget>(QStringLiteral("ListaFrms")).isVisible());
  EXPECT_EQ(splitter.sizes(), wide);
  EXPECT_EQ(panels.sizes(), high);
  EXPECT_EQ(program.Find<QWidget>(QStringLiteral("ListaFrms")).height(), form_list);
  // The start is different from what was set.
  EXPECT_GT(wide[1], 330);
}

TEST(Panels, TheObjectBarKeepsItsPlace) {
  Program program;
  auto& bar = program.Find<QWidget>(QStringLiteral("ObjectBar"));
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(bar.windowTitle(), QStringLiteral("Objects"));
  program.Key(Qt::Key_B, Qt::ControlModifier);
  EXPECT_TRUE(bar.isVisible());
  EXPECT_TRUE(program.Action(QStringLiteral("mnuObjectBar")).isChecked());
  bar.move(333, 222);
  Program::Settle();
  // Its own close button hides it and nothing else.
  bar.close();
  Program::Settle();
  EXPECT_FALSE(bar.isVisible());
  EXPECT_FALSE(program.Action(QStringLiteral("mnuObjectBar")).isChecked());
  EXPECT_TRUE(program.Window().isVisible());
  program.Choose(QStringLiteral("mnuObjectBar"));
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.pos(), QPoint(333, 222));
}

TEST(Panels, TheSelectionAndThePointerStandAtTheFoot) {
  Program program;
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("SelectionText")).text(),
            QStringLiteral("Form1   Left 0  Top 0  Width 400  Height 333"));
  program.Move(program.Surface(), {77, 55});
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("PointerText")).text(), QStringLiteral("77, 55"));
}

/// A button on the form and the name cell with the focus, its text selected.
class Cell : public testing::Test {
 protected:
  Cell() {
    program.Place(0, {20, 20});
    QApplication::clipboard()->setText(QStringLiteral("Pasted"));
    program.Click(Name());
    Name().selectAll();
  }
  QLineEdit& Name() { return program.Find<QLineEdit>(QStringLiteral("Text_0")); }
  [[nodiscard]] int Buttons() {
    int live = 0;
    for (int i = 1; i <= program.Form().UBound(Kind::Button); ++i) {
      live += program.Form().Element(Kind::Button, i) != nullptr ? 1 : 0;
    }
    return live;
  }
  /// A cell of the grid that takes no typing.
  QLineEdit* ReadOnlyCell() {
    for (QLineEdit* cell : program.Window().findChildren<QLineEdit*>()) {
      if (cell->objectName().startsWith(QLatin1String("Text_")) && cell->isReadOnly() &&
          cell->isVisible()) {
        return cell;
      }
    }
    return nullptr;
  }
  Program program;
};

TEST_F(Cell, CopyAndPasteAreItsOwn) {
  program.Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Form1Btn1"));
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Buttons(), 1);
  QApplication::clipboard()->setText(QStringLiteral("Pasted"));
  Name().selectAll();
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Name().text(), QStringLiteral("Pasted"));
  EXPECT_EQ(program.Selected()->Tag, "Pasted");
  EXPECT_EQ(Buttons(), 1);
}

TEST_F(Cell, CutAndDeleteTakeTextAndNotTheObject) {
  Name().deselect();
  program.Key(Qt::Key_Home);
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(Name().text(), QStringLiteral("orm1Btn1"));
  EXPECT_EQ(Buttons(), 1);
  Name().selectAll();
  program.Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("orm1Btn1"));
  EXPECT_EQ(Buttons(), 1);
}

TEST_F(Cell, ArrowsMoveTheCaretAndNotTheObject) {
  program.Key(Qt::Key_Right);
  program.Key(Qt::Key_Left, Qt::ShiftModifier);
  program.Key(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(RectOf(*program.Form().Element(Kind::Button, 1)), (PixelRect{20, 20, 75, 25}));
}

TEST_F(Cell, ACellThatTakesNoTypingLeavesTheObjectAloneToo) {
  QLineEdit* cell = ReadOnlyCell();
  ASSERT_NE(cell, nullptr);
  program.Click(*cell);
  // The row's button stands for the cell.
  ASSERT_TRUE(program.Find<QToolButton>(QStringLiteral("Boton1")).hasFocus());
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(Buttons(), 1);
  cell->setFocus();
  program.Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Buttons(), 1);
  program.Surface().setFocus();
  program.Key(Qt::Key_C, Qt::ControlModifier);
  cell->setFocus();
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Buttons(), 1);
}

TEST_F(Cell, BackOnTheFormTheKeysAreTheForms) {
  program.Click(program.Surface(), {30, 30});
  program.Key(Qt::Key_C, Qt::ControlModifier);
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Buttons(), 2);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Pasted"));
}

TEST_F(Cell, TheRowFilterHasItsOwnKeys) {
  auto& filter = program.Find<QLineEdit>(QStringLiteral("RowFilter"));
  program.Click(filter);
  program.Type(QStringLiteral("cap"));
  program.Key(Qt::Key_Backspace);
  program.Key(Qt::Key_Home);
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(filter.text(), QStringLiteral("a"));
  EXPECT_EQ(Buttons(), 1);
}

TEST_F(Cell, WhatTheCodePageLacksShowsAsAQuestionMarkAtOnce) {
  program.Type(QString::fromUtf8("aΩ€é"));
  EXPECT_EQ(Name().text(), QString::fromUtf8("a?€é"));
  EXPECT_EQ(program.Selected()->Tag, "a?\x80\xE9");
  // A character outside the basic plane counts once.
  Name().selectAll();
  QApplication::clipboard()->setText(QString::fromUtf8("x😀y"));
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Name().text(), QStringLiteral("x?y"));
}

TEST(CodePage, TheMainFormFieldAndTheItemListHoldOnlyTheCodePage) {
  Program program;
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("Text1"));
    text->clear();
    QTest::sendKeyEvent(QTest::Click, text, Qt::Key_unknown, QString::fromUtf8("Ж"),
                        Qt::NoModifier);
    EXPECT_EQ(text->text(), QStringLiteral("?"));
    dialog.reject();
  });
  program.Choose(QStringLiteral("mnuMain"));
  program.Place(4, {20, 20});
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QPlainTextEdit*>(QStringLiteral("TextAdd"));
    ASSERT_NE(text, nullptr);
    QTest::sendKeyEvent(QTest::Click, text, Qt::Key_unknown, QString::fromUtf8("Ж"),
                        Qt::NoModifier);
    EXPECT_EQ(text->toPlainText(), QStringLiteral("?"));
    dialog.reject();
  });
  FormAddItems logic(program.Tables(), program.Shell().Context().Observer, program.Shell().Steps(),
                     program.Form());
  RunItemDialog(logic, &program.Window());
}

TEST(About, NamesProgramAndFolder) {
  Program program;
  program.User.Do([&program](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("About Tarnwick"));
    QStringList texts;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) texts << label->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("Tarnwick")));
    EXPECT_TRUE(texts.contains(QString::fromStdString(program.Home.Path())));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  program.Choose(QStringLiteral("mnuAbout"));
}

}  // namespace
}  // namespace tarnwick
