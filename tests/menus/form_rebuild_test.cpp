#include "menus/form_rebuild.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"
#include "fakes/random_project.h"

namespace tarnwick::menus {
namespace {

using test::FakeProject;
using test::RandomProject;

const std::string kTemporary = "C:\\Tarnwick\\~1.txt";
const Rows kRows{"&File    (mnuFile)",
                 "...&New    (mnuNew)",
                 "......&Deep    (mnuDeep)",
                 "...-    (sep1)",
                 "&Help    (mnuHelp)",
                 "",
                 ""};

const std::string kFormText =
    "[Form](1) {Main}  Left<1>Left   Width<300>Width   Height<200>Height  String<Hi>String  "
    "Click<Beep>Click\r\n\r\n"
    "[Button]   (1) {Go}  Left<10>Left   Top<20>Top   Width<75>Width   Height<25>Height   "
    "String<Go>String  Click<Main.Close>Click\r\n\r\n"
    "[Label]   (1) {Lab}  Left<5>Left   Top<6>Top  String<a>String\r\n";

class FormRebuild : public ::testing::Test {
 protected:
  FormRebuild() { project.Load(kFormText); }
  FakeProject project;
  ProjectTables& tables = project.Tables;
};

TEST_F(FormRebuild, GivesTheFormTheMenuOfTheRows) {
  ASSERT_TRUE(RebuildFormWithMenu(project.Context, 1, kRows));
  EXPECT_EQ(RowsOfFormMenu(project.User()), Rows(kRows.begin(), kRows.end() - 2));
  EXPECT_TRUE(project.User().MenuBarVisible());
  EXPECT_EQ(tables.MenuTitles.size(), 3U);
  EXPECT_EQ(tables.MenuItems.size(), 4U);
  EXPECT_EQ(tables.MenuItems.at(2).Caption, "...&Deep");
}

TEST_F(FormRebuild, TheUsedEntriesOfTheRowsArrayAreEmptied) {
  RebuildFormWithMenu(project.Context, 1, kRows);
  ASSERT_EQ(tables.MenuRows.size(), 6U);
  for (const std::string& row : tables.MenuRows) EXPECT_EQ(row, "");
}

TEST_F(FormRebuild, GoesThroughTheTemporaryTextOfTheProgramFolder) {
  project.Ports.Log.Clear();
  RebuildFormWithMenu(project.Context, 1, kRows);
  EXPECT_EQ(project.Ports.Log.Entries().at(0), "replace " + kTemporary);
  EXPECT_EQ(project.Ports.Log.Entries().at(1), "read " + kTemporary);
  EXPECT_EQ(project.Ports.Files.Bytes(kTemporary), project.Saved());
}

TEST_F(FormRebuild, KeepsNumberFileListAndMainForm) {
  const auto lines = tables.ListaFrms.Lines().size();
  RebuildFormWithMenu(project.Context, 1, kRows);
  EXPECT_EQ(tables.FormsCount, 1);
  EXPECT_EQ(project.Form().FileName, "C:\\Work\\a.ftn");
  EXPECT_EQ(project.Form().Removed, 0);
  EXPECT_EQ(tables.MainFormName, "F (a.ftn)");
  EXPECT_EQ(tables.ListaFrms.Lines().size(), lines);
  EXPECT_EQ(tables.LoadingProject, 0);
}

TEST_F(FormRebuild, TheNewWindowIsTheCurrentOneWithTheFormSelectedAndComesUp) {
  const DesignForm* before = &project.User();
  project.User().NameObjet = "Button1";
  project.User().ControlSel = project.User().Element(Kind::Button, 1);
  project.Ports.Log.Clear();
  RebuildFormWithMenu(project.Context, 1, kRows);
  EXPECT_NE(tables.CurrentForm, before);
  EXPECT_EQ(tables.CurrentForm, &project.User());
  EXPECT_EQ(project.User().NameObjet, "Form");
  EXPECT_EQ(project.User().ControlSel, nullptr);
  EXPECT_GE(project.Ports.Log.Find("activate 1"), 0);
  EXPECT_LT(project.Ports.Log.Find("opened 1"), project.Ports.Log.Find("activate 1"));
  EXPECT_LT(project.Ports.Log.Find("closing 1"), project.Ports.Log.Find("opened 1"));
  EXPECT_EQ(project.Ports.Log.Find("hide"), -1);
}

TEST_F(FormRebuild, OkOnUnchangedRowsWritesAndReadsAllTheSame) {
  RebuildFormWithMenu(project.Context, 1, kRows);
  const std::string saved = project.Saved();
  project.Ports.Log.Clear();
  RebuildFormWithMenu(project.Context, 1, RowsOfFormMenu(project.User()));
  EXPECT_EQ(project.Ports.Log.Count("replace " + kTemporary), 1U);
  EXPECT_EQ(project.Saved(), saved);
  EXPECT_EQ(tables.MenuTitles.size(), 3U);
}

TEST_F(FormRebuild, NoRowWithTextTakesTheMenuAway) {
  for (const Rows& none : {Rows{}, Rows{"", ""}, Rows{"", "...", "......"}}) {
    RebuildFormWithMenu(project.Context, 1, kRows);
    RebuildFormWithMenu(project.Context, 1, none);
    EXPECT_FALSE(project.User().MenuBarVisible());
    EXPECT_TRUE(RowsOfFormMenu(project.User()).empty());
    EXPECT_EQ(tables.MenuRows.size(), 1U);
    EXPECT_EQ(tables.MenuTitles.size(), 1U);
    EXPECT_EQ(tables.MenuItems.size(), 1U);
    EXPECT_EQ(project.Ports.Files.Bytes(kTemporary), project.Saved());
    EXPECT_EQ(project.Control(Kind::Button).Tag, "Go");
  }
}

TEST_F(FormRebuild, NestedRowsWithoutATitleMakeNoMenu) {
  RebuildFormWithMenu(project.Context, 1, {"...Lost    (lost)"});
  EXPECT_FALSE(project.User().MenuBarVisible());
  ASSERT_EQ(tables.MenuItems.size(), 2U);
  EXPECT_EQ(tables.MenuItems.at(1).Parent, 0);
}

TEST_F(FormRebuild, ALockStaysOnTheForm) {
  project.User().m_bDesignMode = false;
  RebuildFormWithMenu(project.Context, 1, kRows);
  EXPECT_FALSE(project.User().m_bDesignMode);
}

TEST_F(FormRebuild, EventKeysOfFormAndObjectsAreThoseOfTheText) {
  tables.EventTable.Replace("Form1.Button9.OnClick", "left behind");
  tables.EventTable.Replace("Form1.OnHint", "  padded  ");
  tables.EventTable.Replace("Form10.Button1.OnClick", "another form");
  RebuildFormWithMenu(project.Context, 1, kRows);
  EXPECT_EQ(project.Code("Form1.Button9.OnClick"), "(none)");
  EXPECT_EQ(project.Code("Form1.OnHint"), "padded");
  EXPECT_EQ(project.Code("Form1.OnClick"), "Beep");
  EXPECT_EQ(project.Code("Form1.Button1.OnClick"), "Main.Close");
  EXPECT_EQ(project.Code("Form10.Button1.OnClick"), "another form");
}

TEST_F(FormRebuild, CodeOfItemsStaysUnderItsNameAlsoWhenTheItemIsRenamed) {
  RebuildFormWithMenu(project.Context, 1, kRows);
  tables.EventTable.Replace("Form1.mnuNew.OnClick", "ShowMessage(\"new\")");
  tables.EventTable.Replace("Form1.mnuDeep.OnClick", "Deep");
  Rows renamed = kRows;
  renamed.at(1) = "...&New    (mnuFresh)";
  RebuildFormWithMenu(project.Context, 1, renamed);
  EXPECT_EQ(project.Code("Form1.mnuNew.OnClick"), "ShowMessage(\"new\")");
  EXPECT_EQ(project.Code("Form1.mnuFresh.OnClick"), "(none)");
  EXPECT_EQ(project.Code("Form1.mnuDeep.OnClick"), "Deep");
  const std::string saved = project.Saved();
  EXPECT_EQ(saved.find("mnuNew"), std::string::npos);
  EXPECT_NE(saved.find("[ItemMenu]   (2)  {mnuDeep}  Click<Deep>Click"), std::string::npos);
}

TEST_F(FormRebuild, AnItemNamedLikeAnObjectKeepsItsCodeThroughTheText) {
  RebuildFormWithMenu(project.Context, 1, {"A    (a)", "...B    (Timer1)", "...C    (Label7)"});
  tables.EventTable.Replace("Form1.Label7.OnClick", "item");
  RebuildFormWithMenu(project.Context, 1, RowsOfFormMenu(project.User()));
  EXPECT_EQ(project.Code("Form1.Label7.OnClick"), "item");
}

TEST_F(FormRebuild, ANumberWithoutAFormChangesNothing) {
  const std::string saved = project.Saved();
  for (const int form : {-1, 0, 2, 99}) {
    EXPECT_FALSE(RebuildFormWithMenu(project.Context, form, kRows));
  }
  EXPECT_EQ(project.Saved(), saved);
  EXPECT_EQ(tables.MenuTitles.size(), 1U);
  EXPECT_FALSE(project.Ports.Files.Bytes(kTemporary).has_value());
}

TEST_F(FormRebuild, ATemporaryTextThatCannotBeWrittenOrReadCostsNothing) {
  RebuildFormWithMenu(project.Context, 1, kRows);
  const std::string expected = project.Saved();
  for (const int step : {1, 2}) {
    RebuildFormWithMenu(project.Context, 1, {});
    project.Ports.Files.FailAtStep(step);
    ASSERT_TRUE(RebuildFormWithMenu(project.Context, 1, kRows));
    project.Ports.Files.FailAtStep(0);
    EXPECT_EQ(project.Saved(), expected) << step;
  }
  RebuildFormWithMenu(project.Context, 1, {});
  project.Ports.Files.SetReadOnly(true);
  ASSERT_TRUE(RebuildFormWithMenu(project.Context, 1, kRows));
  EXPECT_EQ(project.Saved(), expected);
}

/// The program ends between writing the temporary text and reading it: what is on the disk then.
TEST_F(FormRebuild, ACrashBetweenWritingAndReadingLosesNoFormThatWasSaved) {
  class EndsAtRead final : public FilePort {
   public:
    explicit EndsAtRead(MemoryFiles& files) : files_(files) {}
    std::map<std::string, std::optional<std::string>> AtTheEnd;
    [[nodiscard]] bool Exists(const std::string& path) override { return files_.Exists(path); }
    [[nodiscard]] std::optional<std::string> Read(const std::string& path) override {
      for (const char* name : {"C:\\Work\\a.ftn", "C:\\Work\\Demo.tnp", "C:\\Tarnwick\\~1.txt"}) {
        AtTheEnd[name] = files_.Bytes(name);
      }
      return files_.Read(path);
    }
    bool Replace(const std::string& path, std::string_view bytes) override {
      return files_.Replace(path, bytes);
    }
    bool Remove(const std::string& path) override { return files_.Remove(path); }
    [[nodiscard]] std::string ShortPathOf(const std::string& path) override {
      return files_.ShortPathOf(path);
    }

   private:
    MemoryFiles& files_;
  };
  const auto index = project.Ports.Files.Bytes(tables.ProjectFile);
  EndsAtRead files(project.Ports.Files);
  project::ProjectContext context{tables,
                                  files,
                                  project.Ports.Messages,
                                  project.Ports.Dialogs,
                                  project.Ports.Screen,
                                  project.Observer,
                                  project.Container};
  ASSERT_TRUE(RebuildFormWithMenu(context, 1, kRows));
  EXPECT_EQ(files.AtTheEnd.at("C:\\Work\\a.ftn"), kFormText);
  EXPECT_EQ(project.Ports.Files.Bytes(tables.ProjectFile), index);
  // The temporary text is a whole form file, the new menu in it.
  FakeProject opened;
  ASSERT_TRUE(files.AtTheEnd.at("C:\\Tarnwick\\~1.txt").has_value());
  opened.Load(*files.AtTheEnd.at("C:\\Tarnwick\\~1.txt"));
  EXPECT_EQ(opened.Saved(), project.Saved());
}

TEST_F(FormRebuild, AnotherTextInThePlaceOfTheTemporaryOneIsNotRead) {
  class Foreign final : public FilePort {
   public:
    [[nodiscard]] bool Exists(const std::string&) override { return true; }
    [[nodiscard]] std::optional<std::string> Read(const std::string&) override {
      return "[Form](1) {Stranger}\r\n";
    }
    bool Replace(const std::string&, std::string_view) override { return true; }
    bool Remove(const std::string&) override { return true; }
    [[nodiscard]] std::string ShortPathOf(const std::string&) override { return {}; }
  };
  Foreign files;
  project::ProjectContext context{tables,
                                  files,
                                  project.Ports.Messages,
                                  project.Ports.Dialogs,
                                  project.Ports.Screen,
                                  project.Observer,
                                  project.Container};
  ASSERT_TRUE(RebuildFormWithMenu(context, 1, kRows));
  EXPECT_EQ(project.Form().Name, "Main");
}

/// The form's saved text without its menu and the empty lines of its controls.
std::string WithoutMenu(const std::string& text) {
  std::string kept;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at) + 2;
    const std::string line = text.substr(at, end - at);
    at = end;
    const bool menu = line.starts_with("[Menu") || line.starts_with("[ItemMenu");
    if (line != "\r\n" && !menu) kept += line;
  }
  return kept;
}

TEST(FormRebuildOfAnyForm, KeepsEveryObjectRecordEventAndOrder) {
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    FakeProject project;
    RandomProject(seed).Fill(project.Builder, {.Forms = 2, .ObjectsPerForm = 25});
    project.Tables.ProgramFolder = "C:\\Tarnwick";
    project.Tables.CurrentForm = project.Tables.User(1);
    // Once through, so that the text is what reading makes of it.
    RebuildFormWithMenu(project.Context, 1, RowsOfFormMenu(project.User(1)));
    const std::string other = project.Saved(2);
    const std::string saved = project.Saved(1);
    std::vector<std::string> order;
    for (const ControlRef& control : project.User(1).DrawOrder()) {
      if (control->Class() != ControlClass::Menu) order.push_back(control->ArrayAndIndex());
    }
    ASSERT_TRUE(RebuildFormWithMenu(project.Context, 1, kRows));
    EXPECT_EQ(WithoutMenu(project.Saved(1)), WithoutMenu(saved));
    std::vector<std::string> after;
    for (const ControlRef& control : project.User(1).DrawOrder()) {
      if (control->Class() != ControlClass::Menu) after.push_back(control->ArrayAndIndex());
    }
    EXPECT_EQ(after, order);
    EXPECT_EQ(project.Saved(2), other);
  }
}

}  // namespace
}  // namespace tarnwick::menus
