// Everything in the dialogs of the property grid has a name and can be reached by keys alone.
#include <QApplication>
#include <QDialog>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "program.h"
#include "reach.h"

namespace tarnwick {
namespace {

/// A row of the grid whose button opens a dialog.
struct DialogRow {
  const char* Dialog;
  int Tool;  ///< places an object that has the row
  std::string_view Row;
};

class DialogReach : public ::testing::TestWithParam<DialogRow> {
 protected:
  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  /// Sweeps the dialog that the button of a grid row opens.
  void SweepRow(std::string_view name) {
    program.User.Do([this](QDialog& dialog) { SweepOpen(dialog); });
    program.PressRowButton(name);
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

TEST_P(DialogReach, NamesEverythingAndIsReachedByKeys) {
  program.Place(GetParam().Tool, {20, 20});
  SweepRow(GetParam().Row);
}

constexpr DialogRow kDialogs[] = {
    {"TheFont", 0, "Font"},          {"TheItems", 4, "AddItems"},
    {"TheColour", 0, "FontColor"},   {"ThePicture", 0, "BmpHandle"},
    {"TheFolder", 12, "InitialDir"}, {"TheRowsOfAPopUpMenu", 19, "AddItems"},
};
INSTANTIATE_TEST_SUITE_P(Rows, DialogReach, testing::ValuesIn(kDialogs),
                         [](const auto& tested) { return std::string(tested.param.Dialog); });

}  // namespace
}  // namespace tarnwick
