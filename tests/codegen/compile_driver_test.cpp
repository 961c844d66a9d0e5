#include "codegen/compile_driver.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "codegen/generated.h"
#include "fakes/fake_ports.h"
#include "text/strings.h"

namespace tarnwick::test {
namespace {

TEST(CompileDriver, ProjectWithoutAFormInSlotOneHasNoIncludeLine) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm("Gone");
  project.AddForm("Here");
  form1.Remove();
  CheckMainForm(project.Tables);
  const Lines lines = Generate(project);
  EXPECT_TRUE(Starting(lines, "$Include").empty());
  EXPECT_TRUE(Has(lines, "Here.Width = 400"));
  EXPECT_FALSE(Has(lines, "Gone.Width = 400"));
  EXPECT_TRUE(Has(lines, "Here.ShowModal"));
}

TEST(CompileDriver, StartLineReadsTheRecordOfARemovedFirstForm) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm("Gone");
  form1.Add(Kind::TransparentFrame, "Glass");
  project.AddForm("Here");
  form1.Remove();
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Gone.Show"));
  EXPECT_FALSE(Has(lines, "Sub TrnspAbrFrm1"));
}

TEST(CompileDriver, DeletedMainFormGivesWayToTheFirstOfTheList) {
  ProjectBuilder project;
  project.AddForm("One");
  project.AddForm("Two");
  project.Tables.MainFormName = "Two (two.ftn)";
  project.Form(2).Remove();
  CheckMainForm(project.Tables);
  EXPECT_EQ(project.Tables.MainFormName, "One ()");
}

TEST(CompileDriver, MainFormThatWasNotRemovedStays) {
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

TEST(CompileDriver, MainFormOfAnEmptyListStays) {
  ProjectBuilder project;
  project.AddForm("One").Remove();
  CheckMainForm(project.Tables);
  EXPECT_EQ(project.Tables.MainFormName, "One ()");
}

TEST(CompileDriver, StartLineNamesTheMainForm) {
  ProjectBuilder project;
  project.AddForm();
  project.AddForm("Main2");
  project.Tables.MainFormName = "Main2 (main.ftn)";
  EXPECT_TRUE(Has(Generate(project), "Main2.ShowModal"));
}

TEST(CompileDriver, TransparentFrameOnFormOneDivertsTheStartLine) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::TransparentFrame, "Glass");
  project.AddForm("Main2");
  project.Tables.MainFormName = "Main2 ()";
  GeneratorState state;
  const std::string text = GenerateSource(project.Tables, state);
  // The call loses the CR behind it; the main form is not asked for.
  EXPECT_EQ(text.substr(text.size() - 17), "\r\nTrnspAbrFrm1\n\r\n");
  EXPECT_EQ(text.find("Main2.ShowModal"), std::string::npos);
}

TEST(CompileDriver, SubOfTheTransparentFrame) {
  ProjectBuilder project;
  project.AddForm();
  const BuiltForm form = project.AddForm("Glassy");
  form.Add(Kind::TransparentFrame, "Glass");
  form.Add(Kind::TransparentFrame, "Second");
  FormRec& record = form.Record();
  record.TfAlign = 1;
  record.TfTranspColor = 16777215;
  record.TfTransparency = 60;
  record.TfTop = 2;
  record.TfLeft = -3;
  record.TfWidth = 105;
  record.TfHeight = 106;
  const Lines lines = Generate(project);
  EXPECT_EQ(Between(lines, "Sub TrnspAbrFrm2", "End Sub"),
            (Lines{"Sub TrnspAbrFrm2", "Glass.Parent = Glassy", "Glass.Align = 1",
                   "Glass.TransparentColor = 16777215", "Glass.Transparency = 60", "Glass.Top = 2",
                   "Glass.Left = -3", "Glass.Width = 105", "Glass.Height = 106", "Glassy.Show",
                   "Do", "DoEvents", "Loop Until Glassy.Visible = 0", "End Sub"}));
  EXPECT_LT(PositionOf(lines, "End Sub"),
            PositionOf(lines, "$Include \"C:\\Tarnwick\\Tarnwick1.lib\""));
}

TEST(CompileDriver, ShowHintOfAFormWithATransparentFrameIsRewrittenToo) {
  ProjectBuilder project;
  project.AddForm();
  project.AddForm().Add(Kind::TransparentFrame, "Glass");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Form1.ShowHint = 1"));
  EXPECT_TRUE(Has(lines, "TrnspAbrFrm2int = 1"));
}

TEST(CompileDriver, ShowCallsInUserCodeAreRewrittenFormByForm) {
  ProjectBuilder project;
  project.AddForm()
      .Add(Kind::Button, "B1")
      .Code(Event::OnClick, "form2.show\r\nForm3.ShowModal\r\nForm1.Show");
  project.AddForm().Add(Kind::TransparentFrame, "Glass2");
  project.AddForm().Add(Kind::TransparentFrame, "Glass3");
  GeneratorState state;
  const std::string text = GenerateSource(project.Tables, state);
  EXPECT_NE(text.find("Sub B1_OnClick\r\nTrnspAbrFrm2\nTrnspAbrFrm3odal\r\nForm1.Show\r\nEnd Sub"),
            std::string::npos);
}

/// What a project of 300 buttons hands on, with a frame on its second form or without.
std::vector<std::string> PiecesOf(bool framed) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  for (int n = 1; n <= 300; ++n) form.Add(Kind::Button, "B" + std::to_string(n));
  form.Code(Event::OnShow, "Form2.Show");
  project.AddForm().Add(framed ? Kind::TransparentFrame : Kind::Label, "Last");
  GeneratorState state;
  std::vector<std::string> pieces;
  WriteSource(project.Tables, state, [&](std::string_view piece) { pieces.emplace_back(piece); });
  return pieces;
}

void ExpectWhole(const std::string& text, const std::string& call) {
  EXPECT_TRUE(text.starts_with("Dim Font As QFont\r\nDim Form1 As QForm\r\n"));
  EXPECT_TRUE(text.ends_with("Form1.ShowModal\r\n\r\n"));
  EXPECT_NE(text.find("Sub Form1_OnShow\r\n" + call), std::string::npos);
  std::size_t at = 0;
  for (int n = 1; n <= 300; ++n) {
    at = text.find("\r\nB" + std::to_string(n) + ".Layout = 2\r\n", at);
    ASSERT_NE(at, std::string::npos) << n;
  }
}

TEST(CompileDriver, ALongTextIsHandedOnInPiecesInItsOrder) {
  const std::vector<std::string> pieces = PiecesOf(false);
  EXPECT_GT(pieces.size(), 3U);
  ExpectWhole(Join(pieces, ""), "Form2.Show\r\n");
}

TEST(CompileDriver, ATextWithAFrameIsHandedOnWithItsCallsDiverted) {
  ExpectWhole(Join(PiecesOf(true), ""), "TrnspAbrFrm2\n");
}

TEST(CompileDriver, FreeLinesOfAllHtmlViewersEndTheProgram) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm();
  form1.Add(Kind::HtmlViewer, "Html1");
  form1.Add(Kind::HtmlViewer, "Html2");
  project.AddForm().Add(Kind::HtmlViewer, "Html3");
  const Lines lines = Generate(project);
  const Lines end(lines.end() - 5, lines.end());
  EXPECT_EQ(end, (Lines{"Form1.ShowModal", "Html1.Free", "Html2.Free", "Html3.Free", ""}));
}

TEST(CompileDriver, RemovedFormIsSkippedByEverySection) {
  ProjectBuilder project;
  project.AddForm();
  const BuiltForm form2 = project.AddForm("Gone");
  form2.Add(Kind::HtmlViewer, "GoneHtml");
  form2.Add(Kind::TransparentFrame, "GoneGlass");
  form2.Code(Event::OnClick, "gone");
  form2.Remove();
  GeneratorState state;
  const std::string text = GenerateSource(project.Tables, state);
  EXPECT_EQ(text.find("Gone"), std::string::npos);
  EXPECT_EQ(text.find("gone"), std::string::npos);
}

TEST(CompileDriver, ProjectWithoutFormsStillHasItsFrame) {
  ProjectBuilder project;
  EXPECT_EQ(Generate(project), (Lines{"Dim Font As QFont", "", "Form1.ShowModal", ""}));
}

// The command line of the compiler.

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
  void MoveContainer(int top) override { log_.Add("container at " + std::to_string(top)); }
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
  ports.Screen.Height = 768;
  Run();
  const std::vector<std::string>& log = ports.Log.Entries();
  ASSERT_EQ(log.size(), 13U);
  EXPECT_EQ(
      Lines(log.begin(), log.end() - 1),
      (Lines{"save", "container hidden", "container at 1768", "container shown", "Form1 hidden",
             "Form1 hidden", "Form2 hidden", "replace C:\\Tarnwick\\UnTitle.com",
             "container hidden", "container at 0", "Form1 shown", "container shown"}));
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
    void MoveContainer(int /*top*/) override {}
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
