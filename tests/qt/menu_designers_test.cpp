// Both menu designers and the menu bar of a design form, by real keys and presses.
#include <QAbstractButton>
#include <QAccessible>
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

#include <gtest/gtest.h>

#include "codegen/generator_state.h"
#include "codegen/program_source.h"
#include "menus/menu_rows.h"
#include "persistence/form_writer.h"
#include "program.h"
#include "qt/menus/menu_preview_view.h"
#include "qt/surface/container.h"
#include "qt/surface/window_frame.h"
#include "shell/events_bar.h"

namespace tarnwick {
namespace {

using menus::Rows;

/// Waits until keys go to the window: one with a transient parent counts as active along with it.
bool TakesKeys(const QWidget& window) {
  return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

/// An open designer.
struct Designer {
  explicit Designer(QDialog& dialog) : Dialog(dialog) {}
  QDialog& Dialog;

  [[nodiscard]] QListWidget& List() const {
    return *Dialog.findChild<QListWidget*>(QStringLiteral("ListMenu"));
  }
  [[nodiscard]] QLineEdit& Text(int index) const {
    return *Dialog.findChild<QLineEdit*>(QStringLiteral("Texto_%1").arg(index));
  }
  [[nodiscard]] QPushButton& Button(int index) const {
    return *Dialog.findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
  }
  [[nodiscard]] MenuPreviewView& Preview() const { return *Dialog.findChild<MenuPreviewView*>(); }
  [[nodiscard]] QString Fault() const {
    return Dialog.findChild<QLabel*>(QStringLiteral("Fault"))->text();
  }
  [[nodiscard]] Rows Shown() const {
    Rows rows;
    for (int row = 0; row < List().count(); ++row) {
      rows.push_back(List().item(row)->text().toStdString());
    }
    return rows;
  }
  void Press(int index) const { QTest::mouseClick(&Button(index), Qt::LeftButton); }
  /// A key for whatever has the focus.
  void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const {
    QTest::keyClick(Dialog.windowHandle(), key, held);
  }
  void Type(const char* text) const {
    for (const char letter : std::string_view(text)) {
      QTest::sendKeyEvent(QTest::Click, Dialog.windowHandle(), Qt::Key_unknown,
                          QString(QLatin1Char(letter)), Qt::NoModifier);
    }
  }
  /// Caption, Tab, name, Enter.
  void Add(const char* caption, const char* name) const {
    Type(caption);
    Key(Qt::Key_Tab);
    Type(name);
    Key(Qt::Key_Return);
  }
  void Ok() const { Key(Qt::Key_Return, Qt::ControlModifier); }
  void Cancel() const { Key(Qt::Key_Escape); }
};

class MenuDesigners : public testing::Test {
 protected:
  Program program;

  /// Runs the step in `FormMenu`, opened by its key.
  template <class Step>
  void InMenuEdit(Step step) {
    program.User.Do([step](QDialog& dialog) {
      ASSERT_EQ(dialog.objectName(), "FormMenu");
      step(Designer(dialog));
    });
    program.Key(Qt::Key_M, Qt::ControlModifier);
  }
  /// The same in `FormPopUp`, opened from the row of the selected popup menu.
  template <class Step>
  void InPopUpEdit(Step step) {
    program.User.Do([step](QDialog& dialog) {
      ASSERT_EQ(dialog.objectName(), "FormPopUp");
      step(Designer(dialog));
    });
    const PropertySheet& sheet = program.Shell().Sheet();
    int row = 0;
    while (row < sheet.RowCount() && sheet.Label(row) != "AddItems") ++row;
    program.Click(program.Find<QLabel>(QStringLiteral("Label_%1").arg(row)));
    auto& first = program.Find<QToolButton>(QStringLiteral("Boton1"));
    auto& second = program.Find<QToolButton>(QStringLiteral("Boton2"));
    program.Click(first.isVisible() ? first : second);
  }
  Rows MenuRows() { return menus::RowsOfFormMenu(program.Form()); }
  std::string Source() {
    GeneratorState state;
    return GenerateSource(program.Tables(), state);
  }
  /// The code editor, wherever it works.
  static QWidget& Code() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
      return window->objectName() == QLatin1String("FormCodigo");
    });
    EXPECT_NE(found, windows.end());
    return **found;
  }
  /// Types into the open code editor and accepts.
  void TypeCode(const std::string& text) {
    ASSERT_TRUE(Code().isVisible());
    ASSERT_TRUE(TakesKeys(Code()));
    program.Type(QString::fromStdString(text));
    program.Key(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_FALSE(Code().isVisible());
  }
  QAbstractButton& Title(int number) {
    return *program.Window()
                .Forms()
                .Window(program.Form().Number())
                ->findChild<QAbstractButton*>(QStringLiteral("mnuBar_%1").arg(number));
  }
};

TEST_F(MenuDesigners, AMenuIsMadeByKeysAlone) {
  InMenuEdit([](const Designer& menu) {
    EXPECT_EQ(menu.Dialog.windowTitle(), "Menu Edit");
    EXPECT_EQ(QApplication::focusWidget(), &menu.Text(0));
    menu.Add("&File", "mnuFile");
    EXPECT_EQ(QApplication::focusWidget(), &menu.Text(0));
    menu.Key(Qt::Key_Right, Qt::AltModifier);
    menu.Add("&New", "mnuNew");
    menu.Add("&Open", "mnuOpen");
    menu.Add("-", "sep1");
    menu.Key(Qt::Key_Left, Qt::AltModifier);
    menu.Add("&Help", "mnuHelp");
    EXPECT_EQ(menu.Shown(),
              (Rows{"&File    (mnuFile)", "...&New    (mnuNew)", "...&Open    (mnuOpen)",
                    "...-    (sep1)", "&Help    (mnuHelp)", ""}));
    // Up and Down in the text box choose rows, Alt moves them.
    menu.Key(Qt::Key_Up);
    menu.Key(Qt::Key_Up);
    EXPECT_EQ(menu.Text(1).text(), "sep1");
    menu.Key(Qt::Key_Up, Qt::AltModifier);
    menu.Key(Qt::Key_Down, Qt::AltModifier);
    menu.Key(Qt::Key_Up, Qt::AltModifier);
    // Del, Ins and F2 in the list.
    menu.List().setFocus();
    menu.Key(Qt::Key_Delete);
    menu.Key(Qt::Key_Insert);
    menu.Key(Qt::Key_F2);
    EXPECT_EQ(QApplication::focusWidget(), &menu.Text(0));
    menu.Add("&Save", "mnuSave");
    menu.Ok();
  });
  EXPECT_EQ(MenuRows(), (Rows{"&File    (mnuFile)", "...&New    (mnuNew)", "...&Save    (mnuSave)",
                              "...&Open    (mnuOpen)", "&Help    (mnuHelp)"}));
  EXPECT_TRUE(program.Form().MenuBarVisible());
  EXPECT_EQ(program.Form().NameObjet, "Form");
}

TEST_F(MenuDesigners, TheButtonsHaveTheirNamesAndTips) {
  InMenuEdit([](const Designer& menu) {
    const std::vector<std::pair<QString, QString>> expected{{"", "Menu"},
                                                            {"", "SubMenu"},
                                                            {"", "Up"},
                                                            {"", "Down"},
                                                            {"Del Item", "Delete the row"},
                                                            {"Del All", "Delete all rows"},
                                                            {"Insert", "Insert an empty row"}};
    for (int i = 0; i < static_cast<int>(expected.size()); ++i) {
      EXPECT_EQ(menu.Button(i).text(), expected[static_cast<std::size_t>(i)].first);
      EXPECT_EQ(menu.Button(i).toolTip(), expected[static_cast<std::size_t>(i)].second);
    }
    EXPECT_EQ(menu.Button(7).text(), "Ok");
    EXPECT_EQ(menu.Button(8).text(), "Cancel");
    EXPECT_EQ(menu.Button(9).text(), "Add");
    EXPECT_EQ(menu.Button(9).toolTip(), "Enter");
    EXPECT_EQ(menu.Button(10).text(), "Example");
    for (QAbstractButton* button : menu.Dialog.findChildren<QAbstractButton*>()) {
      EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
      EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty());
    }
    EXPECT_EQ(menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns")), nullptr);
    menu.Cancel();
  });
}

TEST_F(MenuDesigners, CancelTouchesNothing) {
  program.Place(0, {20, 20});
  const DesignForm* window = &program.Form();
  const std::string before = FormFileText(program.Tables(), 1);
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    EXPECT_EQ(menu.List().count(), 15);
    menu.Press(8);
  });
  EXPECT_EQ(&program.Form(), window);
  EXPECT_EQ(FormFileText(program.Tables(), 1), before);
  EXPECT_EQ(program.Form().NameObjet, "Button1");
}

TEST_F(MenuDesigners, OkKeepsTheObjectsAndThePlaceOfTheWindow) {
  program.Place(0, {20, 20});
  program.Place(3, {20, 120});
  QWidget* before = program.Window().Forms().Window(1);
  before->move(77, 55);
  const QColor title = before->grab().toImage().pixelColor(200, 12);
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Press(7);
  });
  QWidget* after = program.Window().Forms().Window(1);
  EXPECT_NE(after, before);
  EXPECT_EQ(after->pos(), QPoint(77, 55));
  EXPECT_TRUE(after->isVisible());
  EXPECT_EQ(after->grab().toImage().pixelColor(200, 12), title) << "the title of the current form";
  EXPECT_EQ(program.Form().Element(Kind::Button, 1)->Tag, "Form1Btn1");
  EXPECT_EQ(program.Form().Element(Kind::Label, 1)->Tag, "Form1Label1");
  // The new surface takes presses and keys.
  program.Click(program.Surface(), {30, 30});
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
}

TEST_F(MenuDesigners, OkOnAMaximisedFormKeepsItMaximised) {
  DesignWindow* before = program.Window().Forms().Window(1);
  before->move(77, 55);
  const QRect normal = before->geometry();
  QTest::mouseDClick(before, Qt::LeftButton, {}, QPoint(150, 12));
  ASSERT_EQ(before->State(), WindowState::Maximised);
  const QRect filled = before->geometry();
  const std::size_t steps = program.Shell().Steps().Size();
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  DesignWindow* after = program.Window().Forms().Window(1);
  ASSERT_NE(after, before);
  EXPECT_EQ(after->State(), WindowState::Maximised);
  EXPECT_EQ(after->geometry(), filled);
  EXPECT_TRUE(after->isVisible());
  EXPECT_EQ(program.Shell().Steps().Size(), steps + 1);
  // It returns to where it stood and to the size it had.
  QTest::mouseDClick(after, Qt::LeftButton, {}, QPoint(150, 12));
  EXPECT_EQ(after->State(), WindowState::Normal);
  EXPECT_EQ(after->geometry(), normal);
  EXPECT_EQ(program.Record().Width, normal.width());
}

TEST_F(MenuDesigners, OkOnARolledUpFormLeavesItRolledUpWhereItStood) {
  DesignWindow* before = program.Window().Forms().Window(1);
  before->move(77, 55);
  const QRect normal = before->geometry();
  WindowFrame frame;
  frame.Size = before->size();
  program.Click(*before, frame.ButtonRect(FramePart::Minimise).center());
  ASSERT_EQ(before->State(), WindowState::Minimised);
  InMenuEdit([](const Designer& menu) {
    menu.Add("&File", "mnuFile");
    menu.Ok();
  });
  DesignWindow* after = program.Window().Forms().Window(1);
  EXPECT_EQ(after->State(), WindowState::Minimised);
  EXPECT_EQ(after->pos(), normal.topLeft());
  EXPECT_EQ(program.Record().Height, normal.height());
  program.Click(*after, frame.ButtonRect(FramePart::Minimise).center());
  EXPECT_EQ(after->State(), WindowState::Normal);
  EXPECT_EQ(after->geometry(), normal);
  EXPECT_TRUE(Title(1).isVisible());
}

TEST_F(MenuDesigners, TheStepOfOkIsUndoneAndDoneAgainByKeys) {
  InMenuEdit([](const Designer& menu) {
    menu.Add("&File", "mnuFile");
    menu.Ok();
  });
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  ASSERT_EQ(MenuRows().size(), 13U);
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(MenuRows(), Rows{"&File    (mnuFile)"});
  EXPECT_TRUE(Title(1).isVisible());
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(MenuRows().empty());
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(MenuRows(), Rows{"&File    (mnuFile)"});
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(MenuRows().size(), 13U);
}

TEST_F(MenuDesigners, ADeeperItemStandsUnderItsTitleOnTheFormAsInTheProgram) {
  InMenuEdit([](const Designer& menu) {
    menu.Add("&File", "mnuFile");
    menu.Key(Qt::Key_Right, Qt::AltModifier);
    menu.Add("&Open", "mnuOpen");
    menu.Key(Qt::Key_Right, Qt::AltModifier);
    menu.Add("&Recent", "mnuRecent");
    EXPECT_EQ(menu.Shown().at(2), "......&Recent    (mnuRecent)");
    menu.Ok();
  });
  program.Click(Title(1));
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  ASSERT_EQ(items->actions().size(), 2);
  EXPECT_EQ(items->actions().at(1)->text(), "&Recent");
  EXPECT_EQ(items->actions().at(1)->menu(), nullptr);
  items->close();
  const std::string source = Source();
  EXPECT_NE(source.find("mnuFile.AddItems mnuRecent\r\nmnuRecent.Caption = \"&Recent\""),
            std::string::npos)
      << source;
}

TEST_F(MenuDesigners, ARowIsDraggedToItsPlace) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    const auto middle = [&](int row) {
      return menu.List().visualItemRect(menu.List().item(row)).center();
    };
    QWidget* area = menu.List().viewport();
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, middle(1));
    QTest::mouseMove(area, middle(2));
    QTest::mouseMove(area, middle(3));
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, middle(3));
    EXPECT_EQ(menu.List().currentRow(), 3);
    const Rows rows = menu.Shown();
    EXPECT_EQ(rows.at(1), "...&Open    (Form1mnuOpen)");
    EXPECT_EQ(rows.at(3), "...&New    (Form1mnuNew)");
    EXPECT_EQ(menu.Text(1).text(), "Form1mnuNew");
    menu.Cancel();
  });
}

TEST_F(MenuDesigners, ABadRowIsMarkedWithItsReasonAndTakenAllTheSame) {
  InMenuEdit([](const Designer& menu) {
    menu.Add("Copy (all)", "mnuCopy");
    menu.Add("End", "End");
    EXPECT_TRUE(menu.List().item(0)->toolTip().contains("brackets"));
    EXPECT_EQ(menu.List().item(1)->toolTip(), "The name End is a word of the language.");
    menu.Key(Qt::Key_Up);
    EXPECT_EQ(menu.Fault(), "The name End is a word of the language.");
    menu.Ok();
  });
  EXPECT_EQ(MenuRows(), (Rows{"Copy (all)    (all)", "End    (End)"}));
}

TEST_F(MenuDesigners, ThePreviewFollowsTheRowsAndChoosesThem) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    EXPECT_FALSE(menu.Preview().PlaceOf(0).isEmpty());
    EXPECT_FALSE(menu.Preview().PlaceOf(6).isEmpty());
    EXPECT_TRUE(menu.Preview().PlaceOf(8).isEmpty());
    QTest::mouseClick(&menu.Preview(), Qt::LeftButton, Qt::NoModifier,
                      menu.Preview().PlaceOf(7).center());
    EXPECT_EQ(menu.List().currentRow(), 7);
    EXPECT_FALSE(menu.Preview().PlaceOf(8).isEmpty());
    EXPECT_TRUE(menu.Preview().PlaceOf(6).isEmpty());
    menu.Cancel();
  });
}

TEST_F(MenuDesigners, TheMenuOfTheFormOpensAndAnItemIsSelectedForItsCode) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  program.Place(0, {40, 60});
  program.Click(Title(1));
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  EXPECT_EQ(items->actions().size(), 6);
  EXPECT_EQ(items->actions().at(0)->text(), "&New");
  EXPECT_TRUE(items->actions().at(4)->isSeparator());
  program.Click(*items, items->actionGeometry(items->actions().at(1)).center());
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuOpen");
  EXPECT_EQ(program.Form().ControlSel, nullptr);
  QWidget& code = Code();
  ASSERT_TRUE(code.isVisible());
  EXPECT_EQ(code.windowTitle(), "Form1mnuOpen");
  // The grid has left the object that was selected before.
  EXPECT_EQ(program.Shell().Sheet().SelName(), "Form1");
  auto* events = code.findChild<QComboBox*>(QStringLiteral("Events"));
  EXPECT_EQ(events->count(), 1);
  EXPECT_EQ(events->currentText(), "Sub Form1mnuOpen_OnClick");
  ASSERT_TRUE(TakesKeys(code));
  program.Type(QStringLiteral("Beep"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(code.isVisible());
  EXPECT_EQ(*program.Tables().EventTable.Find("Form1.Form1mnuOpen.OnClick"), "Beep");
  // The events bar has a button for the item, which selects it again.
  const auto buttons = program.Shell().Bar().btncodigo(1);
  ASSERT_EQ(buttons.size(), 1U);
  EXPECT_EQ(buttons.front().Tag, "Form1mnuOpen");
  program.Shell().User(1)->SelectForm();
  program.Shell().Bar().btncodigo_Click("Form1mnuOpen");
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuOpen");
  EXPECT_NE(Source().find("Form1mnuOpen.OnClick = Form1mnuOpen_OnClick"), std::string::npos);
}

TEST_F(MenuDesigners, TheMenuOfTheFormIsReachedByKeys) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  program.Key(Qt::Key_F10);
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  EXPECT_EQ(items->accessibleName(), "File");
  program.Key(Qt::Key_Right);
  items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  EXPECT_EQ(items->accessibleName(), "Edit");
  program.Key(Qt::Key_Down);
  program.Key(Qt::Key_Return);
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuCut");
  ASSERT_TRUE(Code().isVisible());
  ASSERT_TRUE(TakesKeys(Code()));
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(Code().isVisible());
}

TEST_F(MenuDesigners, TheMenuOfTheFormHasRolesNamesAndActions) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  QWidget* strip = Title(1).parentWidget();
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(strip);
  ASSERT_NE(bar, nullptr);
  EXPECT_EQ(bar->role(), QAccessible::MenuBar);
  EXPECT_EQ(bar->text(QAccessible::Name), "Menu bar");
  QAccessibleInterface* file = QAccessible::queryAccessibleInterface(&Title(1));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->role(), QAccessible::MenuItem);
  EXPECT_EQ(file->text(QAccessible::Name), "File");
  EXPECT_TRUE(file->state().hasPopup);
  EXPECT_GE(bar->indexOfChild(file), 0);
  ASSERT_NE(file->actionInterface(), nullptr);
  file->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  QAccessibleInterface* menu = QAccessible::queryAccessibleInterface(items);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->role(), QAccessible::PopupMenu);
  EXPECT_EQ(menu->text(QAccessible::Name), "File");
  ASSERT_EQ(menu->childCount(), 6);
  QAccessibleInterface* open = menu->child(1);
  EXPECT_EQ(open->role(), QAccessible::MenuItem);
  EXPECT_EQ(open->text(QAccessible::Name), "Open");
  ASSERT_NE(open->actionInterface(), nullptr);
  open->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuOpen");
  items->close();
  ASSERT_TRUE(TakesKeys(Code()));
  program.Key(Qt::Key_Escape);
}

TEST_F(MenuDesigners, ThePopUpDesignerStoresItsRows) {
  program.Place(19, {20, 20});
  InPopUpEdit([](const Designer& menu) {
    EXPECT_EQ(menu.Dialog.windowTitle(), "PopUpMenu Edit");
    auto* code = menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns"));
    ASSERT_NE(code, nullptr);
    EXPECT_EQ(code->text(), "Subroutines");
    EXPECT_FALSE(code->isEnabled());
    menu.Press(10);
    EXPECT_TRUE(code->isEnabled());
    menu.Ok();
  });
  const PopUpFormRec& popup = *program.Tables().PopUpMenus.At(1);
  ASSERT_EQ(popup.Items.size(), 8U);
  EXPECT_EQ(popup.Items[7].Level, 2);
  EXPECT_EQ(program.Form().NameObjet, "PopupMenu1");
}

TEST_F(MenuDesigners, SubroutinesOpensTheEditorAboveTheDesignerWhichComesBack) {
  program.Place(19, {20, 20});
  InPopUpEdit([this](const Designer& menu) {
    menu.Press(10);
    menu.Text(0).setFocus();
    menu.Key(Qt::Key_Down);
    auto* subroutines = menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns"));
    QTest::mouseClick(subroutines, Qt::LeftButton);
    QWidget& code = Code();
    ASSERT_TRUE(code.isVisible());
    EXPECT_EQ(code.windowTitle(), "Form1ppmCut");
    ASSERT_TRUE(TakesKeys(code));
    // The designer waits.
    EXPECT_FALSE(menu.Button(7).isEnabled());
    menu.Dialog.reject();
    EXPECT_TRUE(menu.Dialog.isVisible());
    program.Type(QStringLiteral("Beep"));
    program.Key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(code.isVisible());
    EXPECT_TRUE(menu.Dialog.isVisible());
    EXPECT_TRUE(menu.Button(7).isEnabled());
    EXPECT_EQ(code.parentWidget(), &program.Window());
    const std::string* stored = program.Tables().EventTable.Find("Form1.Form1ppmCut.OnClick");
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(*stored, "Beep");
    // An item without code opens an empty page; emptied code leaves no entry.
    menu.Dialog.activateWindow();
    ASSERT_TRUE(TakesKeys(menu.Dialog));
    QTest::mouseClick(subroutines, Qt::LeftButton);
    ASSERT_TRUE(TakesKeys(code));
    program.Key(Qt::Key_A, Qt::ControlModifier);
    program.Key(Qt::Key_Delete);
    program.Key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(program.Tables().EventTable.Find("Form1.Form1ppmCut.OnClick"), nullptr);
    menu.Dialog.activateWindow();
    ASSERT_TRUE(TakesKeys(menu.Dialog));
    menu.Ok();
  });
  EXPECT_EQ(program.Tables().PopUpMenus.At(1)->Items.size(), 8U);
  EXPECT_EQ(program.Tables().JumpKey, "");
}

TEST_F(MenuDesigners, TwoFormsWithMenusPopUpsAndCodeGoToSourceAndComeBackFromDisk) {
  const auto make = [this](const char* prefix) {
    const std::string p(prefix);
    program.Place(19, {20, 20});
    InPopUpEdit([&](const Designer& menu) {
      menu.Add("&Cut", (p + "ppCut").c_str());
      menu.Add("&More", (p + "ppMore").c_str());
      menu.Key(Qt::Key_Right, Qt::AltModifier);
      menu.Add("&Deep", (p + "ppDeep").c_str());
      // The code of a sub-item by "Subroutines", which names it in the second text box.
      menu.Key(Qt::Key_Up);
      QTest::mouseClick(menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns")),
                        Qt::LeftButton);
      TypeCode("Rem " + p + "ppDeep");
      menu.Dialog.activateWindow();
      ASSERT_TRUE(TakesKeys(menu.Dialog));
      menu.Ok();
    });
    InMenuEdit([&](const Designer& menu) {
      menu.Add("&File", (p + "File").c_str());
      menu.Key(Qt::Key_Right, Qt::AltModifier);
      menu.Add("&Open, now", (p + "Open").c_str());
      menu.Key(Qt::Key_Right, Qt::AltModifier);
      menu.Add("&Recent", (p + "Recent").c_str());
      menu.Ok();
    });
    // The code of the bar's items by presses on the form's own menu.
    for (const int item : {0, 1}) {
      program.Click(Title(1));
      auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(items, nullptr);
      program.Click(*items, items->actionGeometry(items->actions().at(item)).center());
      TypeCode("Rem " + p + (item == 0 ? "Open" : "Recent"));
    }
    program.Click(program.Surface(), {30, 30});
  };
  make("A");
  program.PressTool(9);
  program.Place(0, {40, 90});
  make("B");
  const std::string source = Source();
  for (const char* line : {"AFile.AddItems AOpen", "AOpen.Caption = \"&Open, now\"",
                           "AFile.AddItems ARecent", "ARecent.Caption = \"&Recent\"", "Rem BppDeep",
                           "Rem BRecent", "BFile.AddItems BOpen", "BppMore.AddItems BppDeep"}) {
    const bool second =
        std::string_view(line).starts_with("B") || std::string_view(line).starts_with("Rem B");
    // The arrays are those of the menu edited last, so the first form's menu is not in them.
    EXPECT_EQ(source.find(line) != std::string::npos, second) << line << "\n" << source;
  }
  const std::string first = FormFileText(program.Tables(), 1);
  const std::string second = FormFileText(program.Tables(), 2);
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("a.ftn"),
                                 program.Projects.Path("b.ftn")};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(program.Projects.Read("a.ftn"), first);
  EXPECT_EQ(program.Projects.Read("b.ftn"), second);
  program.Dialogs.OpenAnswers = {program.Projects.Path("p.tnp")};
  program.Key(Qt::Key_O, Qt::ControlModifier);
  ASSERT_EQ(program.Tables().FormsCount, 2);
  EXPECT_EQ(FormFileText(program.Tables(), 1), first);
  EXPECT_EQ(FormFileText(program.Tables(), 2), second);
  EXPECT_EQ(menus::RowsOfFormMenu(*program.Tables().User(1)),
            (Rows{"&File    (AFile)", "...&Open, now    (AOpen)", "......&Recent    (ARecent)"}));
  EXPECT_EQ(menus::RowsOfFormMenu(*program.Tables().User(2)),
            (Rows{"&File    (BFile)", "...&Open, now    (BOpen)", "......&Recent    (BRecent)"}));
  EXPECT_EQ(*program.Tables().EventTable.Find("Form1.ARecent.OnClick"), "Rem ARecent");
  EXPECT_EQ(*program.Tables().EventTable.Find("Form2.BppDeep.OnClick"), "Rem BppDeep");
  EXPECT_EQ(Source(), source);
  // What the designer shows is what was made.
  InMenuEdit([](const Designer& menu) {
    EXPECT_EQ(menu.Shown(), (Rows{"&File    (AFile)", "...&Open, now    (AOpen)",
                                  "......&Recent    (ARecent)", "", ""}));
    menu.Cancel();
  });
}

}  // namespace
}  // namespace tarnwick
