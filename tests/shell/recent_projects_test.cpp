#include "shell/recent_projects.h"

#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class RecentProjectsTest : public ShellTest {
 protected:
  Settings settings{ports.Profiles, std::string(kProgram)};
  RecentProjects recent{settings};
};

TEST_F(RecentProjectsTest, TheLastOneStandsFirstAndEachStandsOnce) {
  recent.Add("Z:\\a.tnp");
  recent.Add("Z:\\b.tnp");
  recent.Add("Z:\\A.TNP");
  EXPECT_EQ(recent.List(), (std::vector<std::string>{"Z:\\A.TNP", "Z:\\b.tnp"}));
}

TEST_F(RecentProjectsTest, EightAreKept) {
  for (int i = 1; i <= 9; ++i) recent.Add("Z:\\" + std::to_string(i) + ".tnp");
  ASSERT_EQ(recent.List().size(), 8U);
  EXPECT_EQ(recent.List().front(), "Z:\\9.tnp");
  EXPECT_EQ(recent.List().back(), "Z:\\2.tnp");
  EXPECT_EQ(settings.Read("Recent", "9"), "") << "no more than that is written";
}

TEST_F(RecentProjectsTest, ClearEmptiesTheList) {
  recent.Add("Z:\\a.tnp");
  recent.Clear();
  EXPECT_TRUE(recent.List().empty());
}

TEST_F(RecentProjectsTest, SavedAndOpenedProjectsComeIntoTheList) {
  Start();
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::New);
  EXPECT_EQ(main.Projects().Recent(), std::vector<std::string>{"Z:\\p\\a.tnp"});
  log().Clear();
  main.Commands().OpenRecent("Z:\\p\\a.tnp");
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\a.tnp");
  EXPECT_EQ(log().Count("view recent"), 1U);
}

TEST_F(RecentProjectsTest, AProjectThatHasGoneLeavesTheListWithAWord) {
  Start();
  recent.Add("Z:\\gone.tnp");
  log().Clear();
  main.Commands().OpenRecent("Z:\\gone.tnp");
  EXPECT_EQ(log().Count("view recent"), 1U) << "the menu loses its row";
  EXPECT_EQ(view.Status, "Not opened: Z:\\gone.tnp: there is no such file");
  EXPECT_TRUE(recent.List().empty());
}

}  // namespace
}  // namespace tarnwick
