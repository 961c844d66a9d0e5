// The dialogs of the property panel, accepted and cancelled, by real presses.
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/grid/property_panel.h"

namespace tarnwick {
namespace {

class PropertyPickers : public testing::Test {
 protected:
  Program program{Program::FileDialogs::Real};

  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  int RowOf(std::string_view name) {
    const PropertySheet& sheet = program.Shell().Sheet();
    for (int row = 0; row < sheet.RowCount(); ++row) {
      if (sheet.Label(row) == name) return row;
    }
    ADD_FAILURE() << "no row " << name;
    return 0;
  }
  void Enter(std::string_view row) {
    program.Click(program.Find<QLabel>(QStringLiteral("Label_%1").arg(RowOf(row))));
  }
  QLineEdit& Cell(std::string_view row) {
    return program.Find<QLineEdit>(QStringLiteral("Text_%1").arg(RowOf(row)));
  }
  std::string Shown(std::string_view row) { return Cell(row).text().toStdString(); }
  std::string WritePicture(const char* name) {
    QImage picture(24, 24, QImage::Format_RGB32);
    picture.fill(Qt::red);
    EXPECT_TRUE(picture.save(QString::fromStdString(program.Projects.Native(name)), "BMP"));
    return program.Projects.Path(name);
  }
  static void Choose(QDialog& dialog, const std::string& native) {
    auto* files = qobject_cast<QFileDialog*>(&dialog);
    ASSERT_NE(files, nullptr);
    files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
        ->setText(QString::fromStdString(native));
    QTest::keyClick(files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
  }
  static void Cancel(QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }
};

TEST_F(PropertyPickers, APictureIsChosenAndShowsOnTheButtonAndInItsRow) {
  const std::string path = WritePicture("red.bmp");
  DesignControl* button = program.Place(0, {20, 20});
  program.User.Do([&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Picture");
    Choose(dialog, program.Projects.Native("red.bmp"));
  });
  program.PressRowButton("BmpHandle");
  EXPECT_EQ(Shown("BmpHandle"), path);
  EXPECT_EQ(button->Picture, path);
  EXPECT_NE(program.Source().find("Frm1Btn1_Bmp"), std::string::npos) << program.Source();
  const QImage row = Cell("BmpHandle").parentWidget()->grab().toImage();
  EXPECT_EQ(row.pixelColor(Cell("BmpHandle").x() - 9, row.height() / 2), QColor(Qt::red));
}

TEST_F(PropertyPickers, EveryCancelledDialogChangesNothing) {
  DesignControl* button = program.Place(0, {20, 20});
  program.Place(12, {120, 20});
  const std::string before = program.Source();
  program.Click(program.Surface(), {30, 30});
  ASSERT_EQ(program.Selected(), button);
  for (const char* row : {"BmpHandle", "Font", "FontColor"}) {
    const std::string shown = Shown(row);
    program.User.Do(Cancel);
    program.PressRowButton(row);
    EXPECT_TRUE(program.User.Done()) << row;
    EXPECT_EQ(Shown(row), shown) << row;
  }
  program.Click(program.Surface(), {130, 30});
  for (const char* row : {"FileName", "InitialDir"}) {
    const std::string shown = Shown(row);
    program.User.Do(Cancel);
    program.PressRowButton(row);
    EXPECT_EQ(Shown(row), shown) << row;
  }
  program.Click(program.Surface(), {300, 250});
  for (const char* row : {"IcoHandle", "Icon(App)", "Color"}) {
    const std::string shown = Shown(row);
    program.User.Do(Cancel);
    program.PressRowButton(row);
    EXPECT_EQ(Shown(row), shown) << row;
  }
  EXPECT_EQ(button->FontName, "MS Sans Serif");
  EXPECT_EQ(program.Source(), before);
}

TEST_F(PropertyPickers, AnIconIsChosenAndResetGoesBackToTheDefault) {
  program.User.Do([&](QDialog& dialog) { Choose(dialog, program.Home.Native("IconApp.ico")); });
  program.PressRowButton("IcoHandle");
  EXPECT_EQ(Shown("IcoHandle"), program.Home.Path("IconApp.ico"));
  EXPECT_EQ(Shown("Icon(App)"), program.Home.Path("IconApp.ico"));
  program.Click(program.Find<QToolButton>(QStringLiteral("Boton3")));
  EXPECT_EQ(Shown("IcoHandle"), "(Default)");
}

TEST_F(PropertyPickers, AColourIsChosenAndShowsOnTheForm) {
  program.User.Do([](QDialog& dialog) {
    auto* colours = qobject_cast<QColorDialog*>(&dialog);
    ASSERT_NE(colours, nullptr);
    EXPECT_EQ(colours->currentColor(), QColor(192, 192, 192));
    colours->setCurrentColor(QColor(255, 0, 0));
    colours->accept();
  });
  program.PressRowButton("Color");
  EXPECT_EQ(Shown("Color"), "255");
  EXPECT_EQ(program.Form().BackColor, 255);
  EXPECT_NE(program.Source().find("Form1.Color = 255"), std::string::npos);
}

TEST_F(PropertyPickers, AFontIsChosenInItsDialog) {
  DesignControl* button = program.Place(0, {20, 20});
  program.User.Do([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "FontDialog");
    dialog.findChild<QFontComboBox*>()->setCurrentText(QStringLiteral("Courier New"));
    dialog.findChild<QDoubleSpinBox*>()->setValue(14);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  program.PressRowButton("Font");
  EXPECT_EQ(button->FontName, "Courier New");
  EXPECT_EQ(button->FontSize, 14);
  EXPECT_EQ(Shown("Font"), "Courier New");
}

TEST_F(PropertyPickers, TheFontDialogKeepsFractionsAndOffersOnlyWhatIsStored) {
  DesignControl* button = program.Place(0, {20, 20});
  button->FontSize = 8.25F;
  button->FontUnderline = true;
  program.User.Do([](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QDoubleSpinBox*>()->text(), "8.25");
    EXPECT_EQ(dialog.findChildren<QCheckBox*>().size(), 2);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  program.PressRowButton("Font");
  EXPECT_EQ(button->FontSize, 8.25F);
  EXPECT_TRUE(button->FontUnderline);
  program.User.Do([](QDialog& dialog) {
    auto* size = dialog.findChild<QDoubleSpinBox*>();
    size->setFocus();
    size->selectAll();
    QTest::keyClicks(size, QStringLiteral("7.5"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  program.PressRowButton("Font");
  EXPECT_EQ(button->FontSize, 7.5F);
}

TEST_F(PropertyPickers, TheItemDialogKeepsEveryByteThatItDidNotEdit) {
  DesignControl* list = program.Place(4, {20, 20});
  auto* record = program.Record().ListBoxes.At(1);
  ASSERT_NE(record, nullptr);
  const std::string items =
      "hard\xA0"
      "blank\x95tab\there\x95\x81\x8D\x95";
  record->Items = items;
  program.User.Do(
      [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier); });
  program.PressRowButton("AddItems");
  EXPECT_EQ(record->Items, items);
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QPlainTextEdit*>(QStringLiteral("TextAdd"));
    text->moveCursor(QTextCursor::End);
    QTest::keyClicks(text, QStringLiteral("new"));
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
  });
  program.PressRowButton("AddItems");
  EXPECT_EQ(record->Items, items + "new\x95");
  EXPECT_EQ(list->Items.size(), 4U);
}

TEST_F(PropertyPickers, TheItemDialogShowsAQuestionMarkForWhatTheListCannotHold) {
  DesignControl* list = program.Place(4, {20, 20});
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QPlainTextEdit*>(QStringLiteral("TextAdd"));
    text->insertPlainText(QStringLiteral("a\u0152b\u2022c\u4E2D"));
    EXPECT_EQ(text->toPlainText(), "a?b?c?");
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
  });
  program.PressRowButton("AddItems");
  EXPECT_EQ(list->Items, std::vector<std::string>{"a?b?c?"});
}

TEST_F(PropertyPickers, AFolderIsChosen) {
  program.Place(12, {20, 20});
  program.User.Do([&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Folder");
    Choose(dialog, program.Projects.Native());
  });
  program.PressRowButton("InitialDir");
  EXPECT_EQ(Shown("InitialDir"), program.Projects.Path());
  EXPECT_NE(program.Source().find(program.Projects.Path()), std::string::npos);
}

TEST_F(PropertyPickers, AnyFileAndAPageAreChosen) {
  program.Projects.Write("any.dat", "x");
  program.Projects.Write("page.html", "x");
  program.Place(12, {20, 20});
  program.User.Do([&](QDialog& dialog) { Choose(dialog, program.Projects.Native("any.dat")); });
  program.PressRowButton("FileName");
  EXPECT_EQ(Shown("FileName"), program.Projects.Path("any.dat"));
  program.Place(16, {80, 20});
  program.User.Do([&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Page");
    Choose(dialog, program.Projects.Native("page.html"));
  });
  program.PressRowButton("Navigate");
  EXPECT_EQ(Shown("Navigate"), program.Projects.Path("page.html"));
}

TEST_F(PropertyPickers, ItemsAreEditedOneALineAndShowOnTheForm) {
  DesignControl* list = program.Place(4, {20, 20});
  program.User.Do([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "FormAddItems");
    EXPECT_EQ(dialog.windowTitle(), "Items");
    auto* text = dialog.findChild<QPlainTextEdit*>(QStringLiteral("TextAdd"));
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("Apple"));
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, QStringLiteral("Pear"));
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
  });
  program.PressRowButton("AddItems");
  EXPECT_EQ(list->Items, (std::vector<std::string>{"Apple", "Pear"}));
  EXPECT_EQ(Shown("AddItems"), "Items");
  EXPECT_NE(program.Source().find("\"Apple\""), std::string::npos) << program.Source();
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QPlainTextEdit*>(QStringLiteral("TextAdd"));
    EXPECT_EQ(text->toPlainText(), "Apple\nPear\n");
    text->setPlainText(QStringLiteral("Gone"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  program.PressRowButton("AddItems");
  EXPECT_EQ(list->Items, (std::vector<std::string>{"Apple", "Pear"}));
}

TEST_F(PropertyPickers, WhatThePanelEditsIsThereAfterSavingAndOpening) {
  program.Place(0, {20, 20});
  Enter("Caption");
  program.Type("Go");
  Enter("Left");
  program.Type("77");
  Enter("Visible");
  program.Type("False");
  const std::string source = program.Source();
  program.User.Do([&](QDialog& dialog) { Choose(dialog, program.Projects.Native("a.tnp")); });
  program.User.Do([&](QDialog& dialog) { Choose(dialog, program.Projects.Native("a.ftn")); });
  program.Key(Qt::Key_S, Qt::ControlModifier);
  program.Shell().Commands().Run(Command::New);
  program.User.Do([&](QDialog& dialog) { Choose(dialog, program.Projects.Native("a.tnp")); });
  program.Key(Qt::Key_O, Qt::ControlModifier);
  program.Click(program.Surface(), {87, 30});
  ASSERT_NE(program.Selected(), nullptr);
  EXPECT_EQ(Shown("Caption"), "Go");
  EXPECT_EQ(Shown("Left"), "77");
  EXPECT_EQ(Shown("Visible"), "False");
  EXPECT_EQ(program.Source(), source);
}

}  // namespace
}  // namespace tarnwick
