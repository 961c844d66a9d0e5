#include "project/compile.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "fakes/generated.h"
#include "text/strings.h"

namespace tarnwick::test {

using namespace project;

namespace {

TEST(MainForm, DeletedMainFormGivesWayToTheFirstOfTheList) {
  ProjectBuilder project;
  project.AddForm("One");
  project.AddForm("Two");
  project.Tables.MainFormName = "Two (two.ftn)";
  project.Form(2).Remove();
  CheckMainForm(project.Tables);
  EXPECT_EQ(project.Tables.MainFormName, "One ()");
}

TEST(MainForm, MainFormThatWasNotRemovedStays) {
  ProjectBuilder project;
  project.AddForm("One");
  project.AddForm("Two");
  project.Tables.MainFormName = "Two (two.ftn)";
  project.Form(1).Remove();
  CheckMainForm(project.Tables);
  EXPECT_EQ(project.Tables.MainFormName, "Two (two.ftn)");
  project.Tables.MainFormName = "Nobody";
  CheckMainForm(project.Tables);
  EXPECT_EQ(project.Tables.MainFormName, "Nobody");
}

TEST(MainForm, MainFormOfAnEmptyListStays) {
  ProjectBuilder project;
  project.AddForm("One").Remove();
  CheckMainForm(project.Tables);
  EXPECT_EQ(project.Tables.MainFormName, "One ()");
}

class CommandLine : public ::testing::Test {
 protected:
  CommandLine() {
    project.AddForm();
    ports.Files.Put("C:\\Tarnwick\\UnTitle.com", "");
    ports.Files.Put("C:\\Tarnwick\\IconApp.ico", "");
  }
  std::string Of(const std::string& source) {
    return CompilerCommandLine(project.Tables, ports.Files, source);
  }
  ProjectBuilder project;
  FakePorts ports;
};

TEST_F(CommandLine, NamesIconSourceTargetAndProgram) {
  EXPECT_EQ(Of("C:\\Tarnwick\\UnTitle.com"),
            "C:\\Tarnwick\\Rc.exe /COMPILE  \"C:\\Tarnwick\\IconApp.ico\" "
            "\"C:\\Tarnwick\\UnTitle.com\" \"C:\\Tarnwick\\UnTitle.EXE\" "
            "\"C:\\Tarnwick\\UnTitle.exe\"");
}

TEST_F(CommandLine, SourceWithoutItsEndingGetsOneAppended) {
  ports.Files.Put("C:\\Work\\out", "");
  EXPECT_EQ(Of("C:\\Work\\out"),
            "C:\\Tarnwick\\Rc.exe /COMPILE  \"C:\\Tarnwick\\IconApp.ico\" \"C:\\Work\\out.com\" "
            "\"C:\\Work\\out.EXE\" \"C:\\Tarnwick\\UnTitle.exe\"");
}

TEST_F(CommandLine, TheCompilerOfTheProgramFolderGoesAheadOfTheOneBesideTheProgram) {
  project.Tables.ExecutableFolder = "C:\\Program Files\\Tarnwick";
  EXPECT_EQ(CompilerPath(project.Tables, ports.Files), "C:\\Tarnwick\\Rc.exe");
  ports.Files.Put("C:\\Program Files\\Tarnwick\\Rc.exe", "MZ");
  EXPECT_EQ(CompilerPath(project.Tables, ports.Files), "C:\\Program Files\\Tarnwick\\Rc.exe");
  EXPECT_EQ(Of("C:\\Tarnwick\\UnTitle.com").find("C:\\Program Files\\Tarnwick\\Rc.exe /COMPILE  "),
            0U);
  ports.Files.Put("C:\\Tarnwick\\Rc.exe", "MZ");
  EXPECT_EQ(CompilerPath(project.Tables, ports.Files), "C:\\Tarnwick\\Rc.exe");
}

TEST_F(CommandLine, EndingCountsInEitherCase) {
  ports.Files.Put("C:\\Work\\OUT.COM", "");
  EXPECT_NE(Of("C:\\Work\\OUT.COM").find("\"C:\\Work\\OUT.COM\" \"C:\\Work\\OUT.EXE\""),
            std::string::npos);
}

TEST_F(CommandLine, DotInAFolderCutsTheTargetThere) {
  ports.Files.Put("C:\\My.Work\\a.com", "");
  EXPECT_NE(Of("C:\\My.Work\\a.com").find("\"C:\\My.Work\\a.com\" \"C:\\My.EXE\""),
            std::string::npos);
}

TEST_F(CommandLine, MissingIconIsAnEmptyArgument) {
  project.Form(1).Record().IconFile = "C:\\nowhere.ico";
  EXPECT_EQ(Of("C:\\Tarnwick\\UnTitle.com").find("C:\\Tarnwick\\Rc.exe /COMPILE  \"\" \""), 0U);
}

TEST_F(CommandLine, IconIsThatOfFormOneWhateverTheMainForm) {
  ports.Files.Put("C:\\one.ico", "");
  project.AddForm("Main2").Record().IconFile = "C:\\two.ico";
  project.Tables.MainFormName = "Main2 ()";
  project.Form(1).Record().IconFile = "C:\\one.ico";
  EXPECT_NE(Of("C:\\Tarnwick\\UnTitle.com").find("/COMPILE  \"C:\\one.ico\" "), std::string::npos);
}

TEST_F(CommandLine, MissingSourceLeavesTheEndingAlone) {
  EXPECT_NE(Of("C:\\nowhere.com").find(" \".com\" \".EXE\" "), std::string::npos);
}

// The order of a whole compilation.

class RecordingHost final : public CompileHost {
 public:
  explicit RecordingHost(CallLog& log) : log_(log) {}
  void SaveProject() override { log_.Add("save"); }
  void ShowContainer() override { log_.Add("container shown"); }
  void HideContainer() override { log_.Add("container hidden"); }
  void ShowDesignForm(DesignForm& form, bool visible) override {
    log_.Add(form.KeyPrefix() + (visible ? " shown" : " hidden"));
  }

 private:
  CallLog& log_;
};

class Compilation : public ::testing::Test {
 protected:
  void Run() {
    RecordingHost host(ports.Log);
    GenerateProgram(project.Tables, state, host, ports.All(), "C:\\Tarnwick\\UnTitle.com");
  }
  ProjectBuilder project;
  FakePorts ports;
  GeneratorState state;
};

TEST_F(Compilation, StepsComeInTheirOrder) {
  project.AddForm();
  project.AddForm();
  Run();
  const std::vector<std::string>& log = ports.Log.Entries();
  ASSERT_EQ(log.size(), 9U);
  EXPECT_EQ(Lines(log.begin(), log.end() - 1),
            (Lines{"save", "container hidden", "Form1 hidden", "Form1 hidden", "Form2 hidden",
                   "replace C:\\Tarnwick\\UnTitle.com", "Form1 shown", "container shown"}));
  EXPECT_EQ(log.back().find("start C:\\Tarnwick\\Rc.exe /COMPILE  "), 0U);
}

TEST_F(Compilation, WritesTheGeneratedText) {
  project.AddForm();
  Run();
  GeneratorState fresh;
  EXPECT_EQ(ports.Files.Bytes("C:\\Tarnwick\\UnTitle.com"), GenerateSource(project.Tables, fresh));
}

TEST_F(Compilation, MainFormIsSettledBeforeTheProjectIsSaved) {
  project.AddForm("One");
  project.AddForm("Two");
  project.Tables.MainFormName = "Two ()";
  project.Form(2).Remove();
  class SavingHost final : public CompileHost {
   public:
    explicit SavingHost(const ProjectTables& tables) : tables_(tables) {}
    void SaveProject() override { Saved = tables_.MainFormName; }
    void ShowContainer() override {}
    void HideContainer() override {}
    void ShowDesignForm(DesignForm& /*form*/, bool /*visible*/) override {}
    std::string Saved;

   private:
    const ProjectTables& tables_;
  } host(project.Tables);
  GenerateProgram(project.Tables, state, host, ports.All(), "C:\\x.com");
  EXPECT_EQ(host.Saved, "One ()");
}

TEST_F(Compilation, OnlyTheCurrentFormEndsVisible) {
  project.AddForm().User().Visible = true;
  project.AddForm().User().Visible = true;
  project.Tables.CurrentForm = &project.Form(2).User();
  Run();
  EXPECT_FALSE(project.Form(1).User().Visible);
  EXPECT_TRUE(project.Form(2).User().Visible);
}

TEST_F(Compilation, FailedWriteStillStartsTheCompiler) {
  project.AddForm();
  ports.Files.SetReadOnly(true);
  Run();
  EXPECT_EQ(ports.Log.Count("start "), 1U);
}

TEST_F(Compilation, CompilerThatCannotBeStartedIsNotReported) {
  project.AddForm();
  ports.Processes.Succeeds = false;
  Run();
  EXPECT_EQ(ports.Log.Count("show "), 0U);
  EXPECT_TRUE(project.Form(1).User().Visible);
}

TEST_F(Compilation, RunsWithoutAFormInFocus) {
  project.AddForm();
  project.Tables.CurrentForm = nullptr;
  Run();
  EXPECT_EQ(ports.Log.Count("start "), 1U);
}

}  // namespace
}  // namespace tarnwick::test
