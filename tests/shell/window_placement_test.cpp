#include "shell/window_placement.h"

#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class WindowPlacementTest : public ShellTest {
 protected:
  Settings settings{ports.Profiles, std::string(kProgram)};
};

TEST_F(WindowPlacementTest, AWindowThatFitsStaysWhereItIs) {
  EXPECT_EQ(FitInto({100, 50, 800, 600}, {0, 0, 1366, 728}), (WindowRect{100, 50, 800, 600}));
}

TEST_F(WindowPlacementTest, AWindowLargerThanTheScreenFillsItsFreeArea) {
  EXPECT_EQ(FitInto({-20, 10, 1400, 900}, {0, 24, 1366, 728}), (WindowRect{0, 24, 1366, 728}));
}

TEST_F(WindowPlacementTest, AWindowPastAnEdgeMovesBackWithinIt) {
  EXPECT_EQ(FitInto({1200, 700, 400, 300}, {0, 0, 1366, 768}), (WindowRect{966, 468, 400, 300}));
}

TEST_F(WindowPlacementTest, ACodeWindowLeavesTheUpperLeftToTheDesignForms) {
  const WindowRect least{0, 0, 640, 400};
  // The program fills a screen of 1366 by 768 pixels.
  const WindowRect place = PlaceBeside({4, 32, 1358, 732}, least, {4, 32, 1358, 732});
  EXPECT_EQ(place, (WindowRect{466, 194, 896, 570}));
}

TEST_F(WindowPlacementTest, ACodeWindowFitsOnASmallScreen) {
  const WindowRect least{0, 0, 640, 400};
  EXPECT_EQ(PlaceBeside({4, 32, 1016, 564}, least, {4, 32, 1016, 564}),
            (WindowRect{350, 157, 670, 439}));
  EXPECT_EQ(PlaceBeside({4, 32, 632, 444}, least, {4, 32, 632, 444}),
            (WindowRect{4, 76, 632, 400}));
  EXPECT_EQ(PlaceBeside({0, 0, 300, 200}, least, {0, 0, 320, 240}), (WindowRect{0, 0, 320, 240}));
}

TEST_F(WindowPlacementTest, EachWindowHasAPlaceOfItsOwn) {
  WritePlace(settings, "FormCodigo", {10, 20, 700, 500});
  EXPECT_EQ(ReadPlace(settings, "FormCodigo"), (WindowRect{10, 20, 700, 500}));
  EXPECT_EQ(ReadPlace(settings, "FormViewCodes").Width, 0);
}

TEST_F(WindowPlacementTest, WhatIsWrittenComesBack) {
  WritePlacement(settings, {{-8, 12, 1024, 700}, true, {700, 290}, {400, 120}, 155});
  const WindowPlacement back = ReadPlacement(settings);
  EXPECT_EQ(back.Window, (WindowRect{-8, 12, 1024, 700}));
  EXPECT_TRUE(back.Maximised);
  EXPECT_EQ(back.Columns, (std::vector<int>{700, 290}));
  EXPECT_EQ(back.Panels, (std::vector<int>{400, 120}));
  EXPECT_EQ(back.Findings, 155);
}

TEST_F(WindowPlacementTest, AFirstRunAndSpoiltSettingsGiveNoPlace) {
  EXPECT_EQ(ReadPlacement(settings).Window.Width, 0);
  for (const char* spoilt : {"1,2,3", "1,2,x,4", "1,2,0,4", "1,2,3,9999999999", ",,,"}) {
    settings.Write("Window", "Place", spoilt);
    EXPECT_EQ(ReadPlacement(settings).Window.Width, 0) << spoilt;
  }
  settings.Write("Window", "Columns", "700,-1");
  EXPECT_TRUE(ReadPlacement(settings).Columns.empty());
  for (const char* spoilt : {"-5", "1,2", "x"}) {
    settings.Write("Window", "Findings", spoilt);
    EXPECT_EQ(ReadPlacement(settings).Findings, 0) << spoilt;
  }
}

TEST_F(WindowPlacementTest, PanelsComeBackAsTheyWereLeft) {
  Start();
  main.Commands().Run(Command::Properties);
  main.Commands().Run(Command::ObjectBar);
  tables().AccionProject = "save";
  ASSERT_TRUE(main.Close());
  MDIForm1 next(ports.All(), instances, std::string(kProgram));
  next.Load(views);
  EXPECT_FALSE(next.Commands().PanelShown(Panel::Properties));
  EXPECT_FALSE(next.Sheet().PanelVisible());
  EXPECT_TRUE(next.Commands().PanelShown(Panel::Forms));
  EXPECT_TRUE(next.Commands().PanelShown(Panel::ObjectBar));
}

}  // namespace
}  // namespace tarnwick
