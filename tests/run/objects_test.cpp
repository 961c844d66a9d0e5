// Each kind of object: what it shows of its properties, and what the user does with it.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextEdit>

#include <gtest/gtest.h>

#include "run/live_program.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;

/// An event of `E` prints its name.
std::string Prints(const std::string& object, const std::string& event) {
  return "SUB " + event + "Of" + object + "\nPRINT \"" + event + " \";\nEND SUB\n" + object + "." +
         event + " = " + event + "Of" + object + "\n";
}

TEST(RunObjectsTest, PlaceVisibilityAndHintsFollowTheRecord) {
  for (const std::string kind : {"QBUTTON", "QEDIT", "QRICHEDIT", "QLABEL", "QLISTBOX", "QCOMBOBOX",
                                 "QCHECKBOX", "QRADIOBUTTON", "QIMAGE"}) {
    const bool sizes_itself = kind == "QLABEL" || kind == "QIMAGE";
    LiveProgram live(FormWith("DIM O AS " + kind + ": O.Parent = F\n" +
                                  (sizes_itself ? "O.AutoSize = 0\n" : "") +
                                  "O.Left = 12: O.Top = 8: O.Width = 90: O.Height = 40\n"
                                  "O.Hint = \"tip\": O.ShowHint = 1: O.Cursor = -21\n"
                                  "DIM B AS QBUTTON: B.Parent = F: B.Top = 100",
                              "SUB OnB\nO.Left = 20: O.Width = 60: O.Enabled = 0\n"
                              "O.Visible = 0\nEND SUB\nB.OnClick = OnB"));
    live.Then([&] {
      const QWidget& widget = *live.Widget("O");
      EXPECT_EQ(widget.geometry(), QRect(12, 8, 90, 40)) << kind;
      EXPECT_EQ(widget.toolTip(), QStringLiteral("tip")) << kind;
      EXPECT_EQ(widget.cursor().shape(), Qt::PointingHandCursor) << kind;
      EXPECT_TRUE(widget.isVisible()) << kind;
      QTest::mouseClick(live.Widget("B"), Qt::LeftButton);
      EXPECT_EQ(widget.geometry(), QRect(20, 8, 60, 40)) << kind;
      EXPECT_FALSE(widget.isEnabled()) << kind;
      EXPECT_FALSE(widget.isVisible()) << kind;
    });
    live.Run();
  }
}

TEST(RunObjectsTest, AButtonIsPressedByMouseAndByItsAccessKey) {
  LiveProgram live(
      FormWith("DIM B AS QBUTTON: B.Parent = F: B.Caption = \"&Go\"",
               Prints("B", "OnClick") + Prints("B", "OnMouseDown") + Prints("B", "OnMouseUp")));
  live.Then([&] {
    QTest::mouseClick(live.Widget("B"), Qt::LeftButton);
    QTest::keyClick(live.Widget("F"), Qt::Key_G, Qt::AltModifier);
  });
  live.Then([] {});
  live.Then([] {});
  live.Then([] {});
  live.Then([] {});
  live.Then([] {});
  live.Then([] {});
  live.Run();
  EXPECT_TRUE(live.Printed.starts_with("OnMouseDown OnMouseUp OnClick ")) << live.Printed;
  EXPECT_EQ(std::count(live.Printed.begin(), live.Printed.end(), 'C'), 2) << live.Printed;
}

TEST(RunObjectsTest, ALabelAndAnImageAreClickedAndTellTheMouse) {
  for (const char* const kind : {"QLABEL", "QIMAGE"}) {
    LiveProgram live(FormWith(
        std::string("DIM O AS ") + kind +
            ": O.Parent = F: O.AutoSize = 0: O.Left = 10: O.Top = 10: O.Width = 60",
        "SUB Down (Btn AS INTEGER, X AS INTEGER, Y AS INTEGER, Shift AS INTEGER)\n"
        "PRINT Btn; \",\"; X; \",\"; Y; \",\"; Shift; \" \";\nEND SUB\nO.OnMouseDown = Down\n" +
            Prints("O", "OnClick") + Prints("O", "OnDblClick") + Prints("F", "OnMouseDown")));
    live.Then([&] {
      QTest::mouseClick(live.Widget("O"), Qt::LeftButton, Qt::ShiftModifier, QPoint(5, 6));
      QTest::mouseClick(live.Widget("O"), Qt::RightButton, {}, QPoint(3, 4));
      QTest::mouseDClick(live.Widget("O"), Qt::LeftButton, {}, QPoint(1, 1));
    });
    live.Run();
    EXPECT_TRUE(live.Printed.starts_with("0,5,6,9 OnClick 1,3,4,16 ")) << live.Printed;
    EXPECT_NE(live.Printed.find("OnDblClick"), std::string::npos) << kind;
    EXPECT_EQ(live.Printed.find("OnMouseDown"), std::string::npos) << "none of the form's";
  }
}

TEST(RunObjectsTest, AnEditTakesKeysIntoTheRecordAheadOfItsEvent) {
  LiveProgram live(FormWith("DIM E AS QEDIT: E.Parent = F: E.MaxLength = 4",
                            "SUB Typed\nPRINT E.Text; \" \";\nEND SUB\nE.OnChange = Typed"));
  live.Then([&] {
    QTest::keyClicks(live.Widget("E"), QStringLiteral("abcde"));
    EXPECT_EQ(live.Get("E", "SelStart"), "4");
    QTest::keyClick(live.Widget("E"), Qt::Key_Backspace);
    EXPECT_EQ(live.Get("E", "Modified"), "1");
  });
  live.Run();
  EXPECT_EQ(live.Printed, "a ab abc abcd abc ");
}

TEST(RunObjectsTest, AnEditShowsTextSelectionLettersAndLocks) {
  LiveProgram live(
      FormWith("DIM E AS QEDIT: E.Parent = F: E.Text = \"first\": E.SelStart = 1: E.SelLength = 3\n"
               "DIM R AS QEDIT: R.Parent = F: R.ReadOnly = 1: R.Text = \"fixed\"\n"
               "DIM U AS QEDIT: U.Parent = F: U.CharCase = 1"));
  live.Then([&] {
    EXPECT_EQ(live.The<QLineEdit>("E").text(), QStringLiteral("first"));
    EXPECT_TRUE(live.The<QLineEdit>("R").isReadOnly());
    live.Widget("U")->setFocus();
    QTest::keyClicks(live.Widget("U"), QStringLiteral("ab"));
    EXPECT_EQ(live.Get("U", "Text"), "AB");
  });
  live.Run();
}

TEST(RunObjectsTest, ARichEditCountsLineEndsTwice) {
  LiveProgram live(
      FormWith("DIM E AS QRICHEDIT: E.Parent = F\n"
               "E.Text = \"ab\" + CHR$(13) + CHR$(10) + \"cd\" + CHR$(13) + CHR$(10) + "
               "\"ef\"",
               "DIM B AS QBUTTON: B.Parent = F\n"
               "SUB OnB\nE.SelStart = 8: E.SelLength = 2\nPRINT E.SelText;\n"
               "E.SelText = \"x\"\nEND SUB\nB.OnClick = OnB"));
  live.Then([&] {
    auto& edit = live.The<QTextEdit>("E");
    EXPECT_EQ(edit.toPlainText(), QStringLiteral("ab\ncd\nef"));
    QTest::mouseClick(live.Widget("B"), Qt::LeftButton);
    EXPECT_EQ(live.Get("E", "Text"), "ab\r\ncd\r\nx");
    EXPECT_EQ(live.Get("E", "WhereY"), "2");
    edit.moveCursor(QTextCursor::Start);
    EXPECT_EQ(live.Get("E", "SelStart"), "0");
    edit.moveCursor(QTextCursor::Down);
    EXPECT_EQ(live.Get("E", "SelStart"), "4");
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(live.Get("E", "Text"), "ab\r\n\r\ncd\r\nx");
    EXPECT_EQ(live.Get("E", "Modified"), "1");
  });
  live.Run();
  EXPECT_EQ(live.Printed, "ef");
}

TEST(RunObjectsTest, ARichEditWrapsAndHasTheBarsThatAreWanted) {
  LiveProgram live(
      FormWith("DIM E AS QRICHEDIT: E.Parent = F: E.WordWrap = 1: E.ScrollBars = 2\n"
               "E.HideScrollBars = 0\n"
               "DIM N AS QRICHEDIT: N.Parent = F: N.WordWrap = 0: N.ScrollBars = 0"));
  live.Then([&] {
    EXPECT_EQ(live.The<QTextEdit>("E").lineWrapMode(), QTextEdit::WidgetWidth);
    EXPECT_EQ(live.The<QTextEdit>("E").verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(live.The<QTextEdit>("N").lineWrapMode(), QTextEdit::NoWrap);
    EXPECT_EQ(live.The<QTextEdit>("N").verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  });
  live.Run();
}

TEST(RunObjectsTest, AListIsPickedByMouseAndArrowKeys) {
  LiveProgram live(
      FormWith("DIM L AS QLISTBOX: L.Parent = F: L.AddItems \"one\", \"two\", \"three\"",
               "SUB Picked\nPRINT L.ItemIndex;\nEND SUB\nL.OnClick = Picked"));
  live.Then([&] {
    auto& list = live.The<QListWidget>("L");
    ASSERT_EQ(list.count(), 3);
    const QPoint second = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(2)).center());
  });
  live.Run();
  EXPECT_EQ(live.Printed, "122");
}

TEST(RunObjectsTest, OfManyEntriesEachClickCountsAtOnce) {
  LiveProgram live(
      FormWith("DIM L AS QLISTBOX: L.Parent = F: L.MultiSelect = 1\n"
               "L.AddItems \"one\", \"two\", \"three\"",
               "SUB Picked\nPRINT L.ItemIndex; \":\"; L.SelCount; \" \";\nEND SUB\n"
               "L.OnClick = Picked"));
  live.Then([&] {
    auto& list = live.The<QListWidget>("L");
    const auto click = [&](int row, Qt::KeyboardModifiers keys) {
      QTest::mouseClick(list.viewport(), Qt::LeftButton, keys,
                        list.visualItemRect(list.item(row)).center());
    };
    click(0, {});
    click(2, Qt::ControlModifier);
    click(2, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "0:1 2:2 2:1 1:1 1:2 ");
}

TEST(RunObjectsTest, TheFilterThatIsChosenComesBack) {
  LiveProgram live(
      FormWith("DIM D AS QSAVEDIALOG: D.Filter = \"Texts|*.txt|Lists|*.lst\"",
               "DIM B AS QBUTTON: B.Parent = F\n"
               "SUB OnB\nIF D.Execute THEN PRINT D.FilterIndex;\nEND SUB\nB.OnClick = OnB"));
  live.Then([&] { QTest::mouseClick(live.Widget("B"), Qt::LeftButton); });
  live.Then([&] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->selectNameFilter(dialog->nameFilters().at(1));
    auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(QString::fromStdString(live.Folder.Native("a.lst")));
    QTest::keyClick(name, Qt::Key_Return);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "2");
}

TEST(RunObjectsTest, AComboIsPickedByKeysAndTyped) {
  LiveProgram live(
      FormWith("DIM C AS QCOMBOBOX: C.Parent = F: C.Style = 2: C.AddItems \"one\", \"two\"\n"
               "DIM E AS QCOMBOBOX: E.Parent = F: E.Top = 40: E.AddItems \"red\", \"blue\"",
               "SUB Picked\nPRINT C.ItemIndex; C.Text; \" \";\nEND SUB\nC.OnChange = Picked\n"
               "SUB Typed\nPRINT E.Text; \" \";\nEND SUB\nE.OnChange = Typed"));
  live.Then([&] {
    live.Widget("C")->setFocus();
    QTest::keyClick(live.Widget("C"), Qt::Key_Down);
    QTest::keyClick(live.Widget("C"), Qt::Key_Down);
    EXPECT_EQ(live.The<QComboBox>("C").currentIndex(), 1);
    QLineEdit* const line = live.The<QComboBox>("E").lineEdit();
    ASSERT_NE(line, nullptr);
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("re"));
  });
  live.Run();
  EXPECT_EQ(live.Printed, "0one 1two r re ");
}

TEST(RunObjectsTest, BoxesToggleAndRadioButtonsExclude) {
  LiveProgram live(
      FormWith("DIM C AS QCHECKBOX: C.Parent = F\n"
               "DIM R(2) AS QRADIOBUTTON\nR(1).Parent = F: R(2).Parent = F\n"
               "R(1).Top = 40: R(2).Top = 60: R(1).Checked = 1",
               Prints("C", "OnClick")));
  live.Then([&] {
    QTest::mouseClick(live.Widget("C"), Qt::LeftButton);
    EXPECT_EQ(live.Get("C", "Checked"), "1");
    live.Widget("C")->setFocus();
    QTest::keyClick(live.Widget("C"), Qt::Key_Space);
    EXPECT_EQ(live.Get("C", "Checked"), "0");
    QTest::mouseClick(live.Widget("R(2)"), Qt::LeftButton);
    EXPECT_FALSE(live.The<QAbstractButton>("R(1)").isChecked());
    EXPECT_EQ(live.Get("R(1)", "Checked"), "0");
    QTest::mouseClick(live.Widget("R(2)"), Qt::LeftButton);
    EXPECT_TRUE(live.The<QAbstractButton>("R(2)").isChecked());
  });
  live.Run();
  EXPECT_EQ(live.Printed, "OnClick OnClick ");
}

TEST(RunObjectsTest, MenusShowTheirTreeAndRaiseTheirClicks) {
  LiveProgram live(
      FormWith("DIM M AS QMAINMENU: M.Parent = F\nDIM T AS QMENUITEM: T.Caption = \"&File\"\n"
               "DIM A AS QMENUITEM: A.Caption = \"&New\": A.ShortCut = \"Ctrl+N\"\n"
               "DIM S AS QMENUITEM: S.Caption = \"-\"\nDIM C AS QMENUITEM: C.Caption = \"Chosen\"\n"
               "M.AddItems T: T.AddItems A, S, C: C.Checked = 1",
               Prints("A", "OnClick") + Prints("T", "OnClick")));
  live.Then([&] {
    auto* const bar = live.Widget("F")->findChild<QMenuBar*>();
    ASSERT_EQ(bar->actions().size(), 1);
    QMenu* const file = bar->actions().at(0)->menu();
    ASSERT_EQ(file->actions().size(), 3);
    EXPECT_TRUE(file->actions().at(1)->isSeparator());
    EXPECT_TRUE(file->actions().at(2)->isChecked());
    EXPECT_EQ(live.Get("F", "ClientHeight"), "188");
    QTest::keyClick(live.Widget("F"), Qt::Key_N, Qt::ControlModifier);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().at(0)).center());
  });
  live.Then([&] {
    QMenu* const open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(open, nullptr);
    QTest::keyClick(open, Qt::Key_N);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "OnClick OnClick OnClick ");
}

TEST(RunObjectsTest, KeysOfAMenuThatChangesReachItsNewRows) {
  LiveProgram live(
      FormWith("DIM M AS QMAINMENU: M.Parent = F\nDIM T AS QMENUITEM: T.Caption = \"&File\"\n"
               "DIM A AS QMENUITEM: A.Caption = \"New\": A.ShortCut = \"Ctrl+N\"\n"
               "M.AddItems T: T.AddItems A",
               "SUB Renamed\nPRINT A.Caption; \" \";\nA.Caption = A.Caption + \"!\"\nEND SUB\n"
               "A.OnClick = Renamed\n"));
  for (int i = 0; i < 3; ++i) {
    live.Then([&] { QTest::keyClick(live.Widget("F"), Qt::Key_N, Qt::ControlModifier); });
  }
  live.Run();
  EXPECT_EQ(live.Printed, "New New! New!! ");
}

TEST(RunObjectsTest, ARightClickOpensThePopupMenu) {
  LiveProgram live(
      FormWith("DIM P AS QPOPUPMENU\nDIM A AS QMENUITEM: A.Caption = \"Do\": P.AddItems A\n"
               "DIM L AS QLABEL: L.Parent = F: L.Caption = \"here\": L.PopupMenu = P",
               Prints("P", "OnPopup") + Prints("A", "OnClick")));
  live.Then([&] { QTest::mouseClick(live.Widget("L"), Qt::RightButton); });
  live.Then([&] {
    QMenu* const open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(open, nullptr);
    QTest::mouseClick(open, Qt::LeftButton, {},
                      open->actionGeometry(open->actions().at(0)).center());
  });
  live.Run();
  EXPECT_EQ(live.Printed, "OnPopup OnClick ");
}

TEST(RunObjectsTest, DrawingsStayUntilAPictureIsAssigned) {
  LiveProgram live(
      FormWith("DIM I AS QIMAGE: I.Parent = F: I.Width = 20: I.Height = 20\n"
               "I.FillRect 0, 0, 20, 20, &HFF\nI.Line 0, 0, 5, 0, &HFF0000\n"
               "PRINT I.Pixel(4, 0); \" \"; I.Pixel(5, 0)"));
  live.Then([&] {
    const QImage shown = live.Widget("I")->grab().toImage();
    EXPECT_EQ(shown.pixelColor(10, 10), QColor(255, 0, 0));
    EXPECT_EQ(shown.pixelColor(2, 0), QColor(0, 0, 255));
  });
  live.Run();
  EXPECT_EQ(live.Printed, "16711680 255\n");
}

TEST(RunObjectsTest, ClipboardAndScreenAreTheSystems) {
  LiveProgram live(FormWith("Clipboard.Text = \"copied\"\nPRINT Clipboard.Text; Screen.Width > 0"));
  live.Then([] { EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("copied")); });
  live.Run();
  EXPECT_EQ(live.Printed, "copied-1\n");
}

TEST(RunObjectsTest, AViewerShowsThePageBehindAbout) {
  LiveProgram live(FormWith("DIM H AS QOLECONTAINER: H.Parent = F\n",
                            "SUB Shown\nH.createObject(\"Shell.Explorer.1\")\n"
                            "H.Navigate(\"about:<b>Hello</b>\")\nEND SUB\nF.OnShow = Shown"));
  live.Then([&] { EXPECT_EQ(live.The<QTextBrowser>("H").toPlainText(), QStringLiteral("Hello")); });
  live.Run();
}

TEST(RunObjectsTest, AlignDocksWithinTheForm) {
  LiveProgram live(
      FormWith("DIM T AS QLABEL: T.Parent = F: T.AutoSize = 0: T.Height = 30: T.Align = 1\n"
               "DIM C AS QRICHEDIT: C.Parent = F: C.Align = 5"));
  live.Then([&] {
    EXPECT_EQ(live.Widget("T")->geometry(), QRect(0, 0, 312, 30));
    EXPECT_EQ(live.Widget("C")->geometry(), QRect(0, 30, 312, 178));
    EXPECT_EQ(live.Get("C", "Height"), "178");
  });
  live.Run();
}

}  // namespace
}  // namespace tarnwick
