#include "random_user.h"

#include "delivered_files.h"
#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class RandomUserTest : public ShellTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  void SetUp() override {
    PutDeliveredFiles(ports.Files, std::string(kProgram));
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
