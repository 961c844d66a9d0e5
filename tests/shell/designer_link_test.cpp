// What design surfaces and property sheet ask of the main window.
#include "delivered_files.h"
#include "shell_fixture.h"

namespace tarnwick {
namespace {

class DesignerLinkTest : public ShellTest {
 protected:
  void SetUp() override {
    PutDeliveredFiles(ports.Files, std::string(kProgram));
    Start();
  }
};

TEST_F(DesignerLinkTest, WhileTheCodeIsOpenAPressSelectsNothingAndBringsItToTheFront) {
  Place(0, 20, 20);
  const ControlRef button = surface().Form().ControlSel;
  surface().SelectForm();
  windows.CodeOpen = true;
  log().Clear();
  surface().Gestures().ObjectMouseDown(button, kLeftButton, 0, Twips(2), Twips(2));
  surface().Gestures().MouseUp();
  EXPECT_EQ(surface().Form().NameObjet, "Form");
  EXPECT_EQ(surface().Form().ControlSel, nullptr);
  EXPECT_GE(log().Count("windows code to front"), 1U);
}

TEST_F(DesignerLinkTest, WhileTheCodeIsOpenAPressOnTheFormKeepsTheSelection) {
  Place(0, 20, 20);
  windows.CodeOpen = true;
  log().Clear();
  surface().Gestures().Form_MouseDown(kLeftButton, 0, Twips(200), Twips(200));
  surface().Gestures().MouseUp();
  EXPECT_EQ(surface().Form().NameObjet, "Button1");
  EXPECT_GE(log().Count("windows code to front"), 1U);
}

TEST_F(DesignerLinkTest, WithTheCodeClosedAPressSelects) {
  Place(0, 20, 20);
  surface().Gestures().Form_MouseDown(kLeftButton, 0, Twips(200), Twips(200));
  surface().Gestures().MouseUp();
  EXPECT_EQ(surface().Form().NameObjet, "Form");
  EXPECT_EQ(log().Count("windows code to front"), 0U);
}

TEST_F(DesignerLinkTest, ARecolouredFormDrawsItsPointsAgainAndTakesTheFocus) {
  const ControlRef handle = surface().Form().Element(Kind::Handle, 0);
  ASSERT_NE(handle, nullptr);
  const float width = handle->Width;
  handle->Width = 1;
  surface().SelectForm();
  PropertySheet& sheet = main.Sheet();
  sheet.ShowSelection();
  int row = 0;
  while (row < sheet.RowCount() && sheet.Label(row) != "Color") ++row;
  sheet.SelectRow(row);
  view.GestureLog.Clear();
  ASSERT_TRUE(sheet.ApplyText("255"));
  EXPECT_EQ(handle->Width, width) << "points and handles are drawn together";
  EXPECT_EQ(view.GestureLog.Count("focus"), 1U);
}

TEST_F(DesignerLinkTest, AFileThatTheDesktopNamesBeforeTheStartIsThroughIsLeft) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  MDIForm1 next(ports.All(), instances, std::string(kProgram));
  next.Load(views);
  log().Clear();
  next.OpenNamed("Z:\\p\\a.tnp");
  EXPECT_EQ(next.Tables().FormsCount, 0);
  EXPECT_EQ(log().Count("read"), 0U);
  next.Time_Timer();
  next.OpenNamed("Z:\\p\\a.tnp");
  EXPECT_EQ(next.Tables().ProjectFile, "Z:\\p\\a.tnp");
}

}  // namespace
}  // namespace tarnwick
