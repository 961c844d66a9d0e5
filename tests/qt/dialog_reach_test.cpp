// Everything in the dialogs of the property grid has a name and can be reached by keys alone.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QToolButton>
#include <string_view>

#include <gtest/gtest.h>

#include "program.h"
#include "reach.h"

namespace tarnwick {
namespace {

class DialogReach : public ::testing::Test {
 protected:
  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  /// Sweeps the dialog that the button of a grid row opens.
  void SweepRow(std::string_view name) {
    const PropertySheet& sheet = program.Shell().Sheet();
    int row = 0;
    while (row < sheet.RowCount() && sheet.Label(row) != name) ++row;
    ASSERT_LT(row, sheet.RowCount()) << name;
    program.Click(program.Find<QLabel>(QStringLiteral("Label_%1").arg(row)));
    auto& first = program.Find<QToolButton>(QStringLiteral("Boton1"));
    auto& second = program.Find<QToolButton>(QStringLiteral("Boton2"));
    QToolButton& shown = first.isVisible() ? first : second;
    ASSERT_TRUE(shown.isVisible()) << name;
    program.User.Do([this](QDialog& dialog) { SweepOpen(dialog); });
    program.Click(shown);
    program.Settle();
    ASSERT_TRUE(program.User.Done()) << name;
  }
  static void SweepOpen(QDialog& dialog) {
    const std::string title = dialog.windowTitle().toStdString();
    // The buttons of the toolkit's own dialogs say what they do.
    if (!dialog.inherits("QColorDialog") && !dialog.inherits("QFileDialog")) {
      EXPECT_EQ(Text(Tipless(dialog)), "") << title;
    }
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog)) << title;
    EXPECT_FALSE(title.empty());
    EXPECT_NE(QApplication::focusWidget(), nullptr) << title;
    EXPECT_EQ(Text(Nameless(dialog)), "") << title;
    EXPECT_EQ(Text(Unreached(dialog)), "") << title;
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible()) << title << " stays after Esc";
  }

  Program program{Program::FileDialogs::Real};
};

TEST_F(DialogReach, TheFont) {
  program.Place(0, {20, 20});
  SweepRow("Font");
}

TEST_F(DialogReach, TheItems) {
  program.Place(4, {20, 20});
  SweepRow("AddItems");
}

TEST_F(DialogReach, TheColour) {
  program.Place(0, {20, 20});
  SweepRow("FontColor");
}

TEST_F(DialogReach, ThePicture) {
  program.Place(0, {20, 20});
  SweepRow("BmpHandle");
}

TEST_F(DialogReach, TheFolder) {
  program.Place(12, {20, 20});
  SweepRow("InitialDir");
}

TEST_F(DialogReach, TheRowsOfAPopUpMenu) {
  program.Place(19, {20, 20});
  SweepRow("AddItems");
}

}  // namespace
}  // namespace tarnwick
