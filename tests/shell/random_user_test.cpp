#include "random_user.h"

#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

/// Rows enough to type into, for every kind that has a caption, a text or a place.
std::string GridFile() {
  std::string text;
  for (const std::string_view kind :
       {"FORM", "BUTTON", "LABEL", "IMAGE", "CHECKBOX", "OPTIONBUTTON", "TEXTBOX", "RICHTEXTBOX",
        "LISTBOX", "COMBOBOX", "TIME", "OPENDIALOG", "SAVEDIALOG", "TRANSPARENTFRAME"}) {
    text.append("[").append(kind).append("]\x8D");
    text +=
        "Caption\x95Text\x95Left\x95Top\x95Width\x95Height\x95Hint\x95TabOrder\x95"
        "Color\x95"
        "FontColor\x95Interval\x95Title\x95"
        "Filter\x95"
        "Columns\x8E\r\n";
  }
  return text;
}

class RandomUserTest : public ShellTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  void SetUp() override {
    ports.Files.Put(std::string(kProgram) + "\\Add004.tn", GridFile());
    Start();
  }
};

TEST_P(RandomUserTest, WhateverIsDoneTheWindowStaysSoundAndFilesReadBackTheSame) {
  RandomUser user(main, ports, GetParam());
  user.SetCursor = [this](int form, ScreenPoint place) { view.GesturesOf(form).Cursor = place; };
  for (int round = 0; round < 6; ++round) {
    for (int i = 0; i < 60; ++i) {
      user.Act();
      ASSERT_EQ(user.Fault(), "") << user.Deeds();
    }
    ASSERT_EQ(user.SaveAndReload(), "") << user.Deeds();
    log().Clear();
  }
  EXPECT_GT(user.ObjectsRead(), 30U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUserTest, ::testing::Range(1U, 21U));

}  // namespace
}  // namespace tarnwick
