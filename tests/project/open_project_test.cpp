#include "project/open_project.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"

namespace tarnwick::test {

using namespace project;

namespace {

using Log = std::vector<std::string>;

TEST(ProjectReader, AProjectOfTheMainFormLineOnlyYieldsOneEmptyFormAndKeepsTheText) {
  FakeProject project;
  EXPECT_TRUE(project.LoadIndex("MF##Form1 (gone.ftn)"));
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Form().Name, "Form1");
  EXPECT_EQ(project.Tables.MainFormName, "Form1 (gone.ftn)");
  EXPECT_EQ(project.Tables.ListaFrms.Lines().at(0).Text, "Form1 ()");
}

TEST(ProjectReader, AnEmptyProjectWithoutThatLineNamesItsNewForm) {
  FakeProject project;
  project.Tables.MainFormName = "Old ()";
  project.LoadIndex("\r\n");
  EXPECT_EQ(project.Tables.MainFormName, "Form1 ()");
  EXPECT_EQ(project.Tables.FormsCount, 1);
}

TEST(ProjectReader, AShortProjectReadsFullyAndTheMainFormKeepsItsFormerValue) {
  FakeProject project;
  project.Tables.MainFormName = "Former (f.ftn)";
  project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {A}\r\n");
  project.Ports.Files.Put("C:\\Work\\sub\\b.ftn", "[Form](1) {B}\r\n");
  project.LoadIndex("a.ftn\r\nC:\\Work\\sub\\b.ftn\r\n");
  ASSERT_EQ(project.Tables.FormsCount, 2);
  EXPECT_EQ(project.Form(2).Name, "B");
  EXPECT_EQ(project.Tables.MainFormName, "Former (f.ftn)");
}

TEST(ProjectReader, ALineEndAtTheEndOfTheFileIsNoForm) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {A}\r\n");
  project.LoadIndex(
      "1\x95"
      "a.ftn\r\n\r\nMF##A (a.ftn)\r\n");
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Ports.Log.Count("show"), 0U);
}

TEST(ProjectReader, EverythingUpToTheFirstMarkIsDropped) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\x\x95y.ftn", "[Form](1) {A}\r\n");
  project.LoadIndex("any text\x95x\x95y.ftn\r\n");
  EXPECT_EQ(project.Form().Name, "A");
  EXPECT_EQ(project.Form().FileName, "C:\\Work\\x\x95y.ftn");
}

TEST(ProjectReader, TheMainFormMarkIsExact) {
  FakeProject project;
  project.Tables.MainFormName = "Former ()";
  project.Ports.Files.Put("C:\\Work\\mf##a", "[Form](1) {A}\r\n");
  project.LoadIndex("mf##a\r\n");
  EXPECT_EQ(project.Tables.MainFormName, "Former ()");
  EXPECT_EQ(project.Form().Name, "A");
}

TEST(ProjectReader, AFullPathOnTheProgramsDrivePassesAndOneElsewhereHangsUnderTheProject) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Else\\a.ftn", "[Form](1) {A}\r\n");
  project.Ports.Files.Put("D:\\Else\\b.ftn", "[Form](1) {B}\r\n");
  project.LoadIndex(
      "1\x95"
      "c:\\Else\\a.ftn\r\n2\x95"
      "D:\\Else\\b.ftn\r\n");
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Form().FileName, "c:\\Else\\a.ftn");
  EXPECT_EQ(
      project.Ports.Log.Count("show Error: File ' C:\\Work\\D:\\Else\\b.ftn ' does not exist!"),
      1U);
}

TEST(ProjectReader, AMissingFormIsToldAndTheRestLoads) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\b.ftn", "[Form](1) {B}\r\n");
  EXPECT_TRUE(
      project.LoadIndex("1\x95"
                        "a.ftn\r\n2\x95"
                        "b.ftn\r\nMF##A (a.ftn)\r\n"));
  EXPECT_EQ(project.Ports.Log.Count("show Error: File ' C:\\Work\\a.ftn ' does not exist!"), 1U);
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Form().Name, "B");
  EXPECT_EQ(project.Tables.MainFormName, "A (a.ftn)");
}

TEST(ProjectReader, AFormListedTwiceIsReadOnce) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {A}\r\n");
  project.LoadIndex(
      "1\x95"
      "a.ftn\r\n2\x95"
      "A.FTN\r\n");
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Ports.Log.Count("show A already exist!"), 1U);
}

TEST(ProjectReader, AReloadAfterARemovalRenumbersFormsAndKeys) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {A}\r\n");
  project.Ports.Files.Put("C:\\Work\\b.ftn",
                          "[Form](2) {B} Click<f>Click\r\n[Button](1) {X} Click<b>Click\r\n");
  project.LoadIndex(
      "1\x95"
      "a.ftn\r\n2\x95"
      "b.ftn\r\nMF##B (b.ftn)\r\n");
  EXPECT_EQ(project.Code("Form2.Button1.OnClick"), "b");
  project.Builder.Form(1).Remove();
  ASSERT_TRUE(SaveProject(project.Context, project.Tables.ProjectFile));
  ASSERT_TRUE(LoadProject(project.Context, project.Tables.ProjectFile));
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Form().Name, "B");
  EXPECT_EQ(project.Code("Form1.OnClick"), "f");
  EXPECT_EQ(project.Code("Form1.Button1.OnClick"), "b");
  EXPECT_EQ(project.Code("Form2.Button1.OnClick"), "(none)");
}

TEST(ProjectReader, LoadingEmptiesWhatWasThere) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::PopUpMenu, "P");
  project.Builder.Title("mnuOld", "Old").PopUpItem(1, "old", "Old");
  project.Tables.EventTable.Add("Form1.Button9.OnClick", "old");
  project.Load("[Form](1) {F}\r\n");
  EXPECT_EQ(project.Code("Form1.Button9.OnClick"), "(none)");
  EXPECT_EQ(project.Tables.MenuTitles.size(), 1U);
  EXPECT_EQ(project.Tables.PopUpMenus.UBound(), 0);
  EXPECT_EQ(project.User().UBound(Kind::PopUpMenu), 0);
  EXPECT_EQ(project.Tables.CurrentForm, &project.User());
}

TEST(ProjectReader, AnIndexThatCannotBeReadChangesNothing) {
  FakeProject project;
  project.Load("[Form](1) {F}\r\n");
  project.Ports.Log.Clear();
  EXPECT_FALSE(LoadProject(project.Context, "C:\\Work\\none.tnp"));
  EXPECT_EQ(project.Form().Name, "F");
  EXPECT_EQ(project.Tables.LoadingProject, 0);
  EXPECT_EQ(project.Ports.Log.Entries(), Log{"read C:\\Work\\none.tnp"});
}

TEST(ProjectReader, TheContainerIsHiddenFirstAndShownWithTheFirstFormAtTheEnd) {
  FakeProject project;
  project.Builder.AddForm();
  project.Load("[Form](1) {F}\r\n");
  EXPECT_EQ(project.Ports.Log.Entries(),
            (Log{"read C:\\Work\\Demo.tnp", "hide", "closing 1", "list", "read C:\\Work\\a.ftn",
                 "opened 1", "bar 1", "list", "list", "activate 1", "container", "current"}))
      << "the list is told of the form, then of the main form's name behind it";
  EXPECT_EQ(project.Tables.LoadingProject, 0);
}

TEST(ProjectReader, AReadThatFailsAtAnyStepLeavesAProjectToWorkOn) {
  for (int step = 1; step <= 3; ++step) {
    FakeProject project;
    project.Builder.AddForm();
    project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {A}\r\n");
    project.Ports.Files.Put("C:\\Work\\b.ftn", "[Form](2) {B}\r\n");
    project.Ports.Files.FailAtStep(step);
    const bool read = project.LoadIndex(
        "1\x95"
        "a.ftn\r\n2\x95"
        "b.ftn\r\nMF##A (a.ftn)\r\n");
    EXPECT_EQ(read, step != 1);
    EXPECT_EQ(project.Tables.FormsCount, 1) << step;
    EXPECT_EQ(project.Form().Name, step == 1 ? "Form1" : step == 2 ? "B" : "A");
    EXPECT_EQ(project.Tables.LoadingProject, 0);
    EXPECT_TRUE(SaveProject(project.Context, project.Tables.ProjectFile) || step == 1);
  }
}

}  // namespace
}  // namespace tarnwick::test
