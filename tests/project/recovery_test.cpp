#include "project/recovery.h"

#include <gtest/gtest.h>

#include "fakes/fake_instance_folders.h"
#include "fakes/fake_project.h"

namespace tarnwick::project {
namespace {

class RecoveryTest : public ::testing::Test {
 protected:
  test::FakeProject project;
  FakeInstanceFolders folders{project.Ports.Files};
  int second = 0;
  TypedCode typed;
  Recovery recovery{project.Tables,
                    project.Ports.Files,
                    folders,
                    "C:\\T\\recovery",
                    [this] { return "time " + std::to_string(100 + second++); },
                    [this] { return typed; }};

  void SetUp() override {
    project.Load("[Form](1) {F}\r\n");
    recovery.Begin();
    recovery.Settle();
  }
  [[nodiscard]] bool IsKept() {
    return project.Ports.Files.Exists("C:\\T\\recovery\\1\\unsaved.tnr");
  }
};

TEST_F(RecoveryTest, AnUnchangedProjectIsNotKept) {
  EXPECT_FALSE(recovery.Keep());
  EXPECT_FALSE(IsKept());
}

TEST_F(RecoveryTest, AChangeIsWrittenOnceAndASettledProjectTakesItAway) {
  project.Form(1).Hint = "new";
  EXPECT_TRUE(recovery.Keep());
  EXPECT_TRUE(IsKept());
  project.Ports.Log.Clear();
  EXPECT_TRUE(recovery.Keep());
  EXPECT_EQ(project.Ports.Log.Count("replace"), 0U);
  recovery.Settle();
  EXPECT_FALSE(IsKept());
}

TEST_F(RecoveryTest, ASettledProjectOfWhichNothingWasKeptRemovesNoFile) {
  project.Ports.Log.Clear();
  recovery.Settle();
  EXPECT_EQ(project.Ports.Log.Count("replace"), 1U) << "the name of the project";
  EXPECT_EQ(project.Ports.Log.Count("remove"), 0U);
}

TEST_F(RecoveryTest, AChangeTakenBackByHandIsNotKeptAnyMore) {
  project.Form(1).Hint = "new";
  recovery.Keep();
  project.Form(1).Hint.clear();
  EXPECT_FALSE(recovery.Keep());
  EXPECT_FALSE(IsKept());
}

TEST_F(RecoveryTest, CodeBeingTypedIsKeptThoughTheProjectHasNotChanged) {
  typed = {{"Form1.OnShow", "Beep"}};
  EXPECT_FALSE(recovery.Keep()) << "the project is what is saved";
  EXPECT_FALSE(recovery.Changed());
  EXPECT_TRUE(IsKept());
  project.Ports.Log.Clear();
  recovery.Keep();
  EXPECT_EQ(project.Ports.Log.Count("replace"), 0U);
  typed = {{"Form1.OnShow", "Beep 2"}};
  recovery.Keep();
  EXPECT_EQ(project.Ports.Log.Count("replace"), 1U);
  typed.clear();
  recovery.Keep();
  EXPECT_FALSE(IsKept()) << "it was accepted, or typed away";
}

TEST_F(RecoveryTest, CodeThatWasTypedStaysOnOfferWithTheProjectThatIsLeft) {
  typed = {{"Form1.OnShow", "Beep"}};
  recovery.LeaveBehind();
  const auto offers = recovery.Offers();
  ASSERT_EQ(offers.size(), 1U);
  EXPECT_EQ(offers[0].Project.Forms.at(0).Code, (TypedCode{{".OnShow", "Beep"}}));
}

TEST_F(RecoveryTest, ASaveLeavesTheTypedCodeToTheNextKeeping) {
  typed = {{"Form1.OnShow", "Beep"}};
  recovery.Keep();
  recovery.Settle();
  EXPECT_FALSE(recovery.Keep());
  EXPECT_TRUE(IsKept());
}

TEST_F(RecoveryTest, NoFileOfTheProjectIsTouched) {
  project.Form(1).Hint = "new";
  project.Ports.Log.Clear();
  recovery.Keep();
  recovery.LeaveBehind();
  recovery.End();
  for (const std::string& entry : project.Ports.Log.Entries()) {
    EXPECT_EQ(entry.find("C:\\Work"), std::string::npos) << entry;
  }
}

TEST_F(RecoveryTest, TheLastTenAreKeptAndTheNewestStandsFirst) {
  for (int i = 1; i <= 12; ++i) {
    project.Form(1).Hint = std::to_string(i);
    recovery.LeaveBehind();
  }
  const auto offers = recovery.Offers();
  ASSERT_EQ(offers.size(), Recovery::kMostKept);
  EXPECT_NE(offers.front().Project.Forms.at(0).Text.find("12"), std::string::npos);
  EXPECT_GT(offers.front().Project.When, offers.back().Project.When);
}

TEST_F(RecoveryTest, AnEndWithNothingLeftBehindTakesTheFolderAway) {
  recovery.End();
  EXPECT_TRUE(folders.List("C:\\T\\recovery").empty());
}

TEST_F(RecoveryTest, NothingIsWrittenAfterTheEnd) {
  recovery.End();
  project.Form(1).Hint = "new";
  project.Ports.Log.Clear();
  recovery.Keep();
  recovery.LeaveBehind();
  recovery.Settle();
  EXPECT_EQ(project.Ports.Log.Entries(), std::vector<std::string>());
}

TEST_F(RecoveryTest, AnEndKeepsTheFolderOfWorkThatWasLeftBehind) {
  project.Form(1).Hint = "new";
  recovery.LeaveBehind();
  recovery.End();
  EXPECT_EQ(recovery.Offers().size(), 1U);
}

TEST_F(RecoveryTest, ADamagedKeptFileIsPassedOver) {
  project.Form(1).Hint = "new";
  recovery.LeaveBehind();
  project.Ports.Files.Put("C:\\T\\recovery\\1\\left-7.tnr", "Tarnwick recovery 1\r\nWhen 4");
  EXPECT_EQ(recovery.Offers().size(), 1U);
}

}  // namespace
}  // namespace tarnwick::project
