#include "codegen/program_source.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "fakes/generated.h"
#include "project/compile.h"
#include "text/strings.h"

namespace tarnwick::test {
namespace {

TEST(ProgramSource, ProjectWithoutAFormInSlotOneHasNoIncludeLine) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm("Gone");
  project.AddForm("Here");
  form1.Remove();
  project::CheckMainForm(project.Tables);
  const Lines lines = Generate(project);
  EXPECT_TRUE(Starting(lines, "$Include").empty());
  EXPECT_TRUE(Has(lines, "Here.Width = 400"));
  EXPECT_FALSE(Has(lines, "Gone.Width = 400"));
  EXPECT_TRUE(Has(lines, "Here.ShowModal"));
}

TEST(ProgramSource, StartLineReadsTheRecordOfARemovedFirstForm) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm("Gone");
  form1.Add(Kind::TransparentFrame, "Glass");
  project.AddForm("Here");
  form1.Remove();
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Gone.Show"));
  EXPECT_FALSE(Has(lines, "Sub TrnspAbrFrm1"));
}

TEST(ProgramSource, StartLineNamesTheMainForm) {
  ProjectBuilder project;
  project.AddForm();
  project.AddForm("Main2");
  project.Tables.MainFormName = "Main2 (main.ftn)";
  EXPECT_TRUE(Has(Generate(project), "Main2.ShowModal"));
}

TEST(ProgramSource, TransparentFrameOnFormOneDivertsTheStartLine) {
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

TEST(ProgramSource, SubOfTheTransparentFrame) {
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

TEST(ProgramSource, ShowHintOfAFormWithATransparentFrameIsRewrittenToo) {
  ProjectBuilder project;
  project.AddForm();
  project.AddForm().Add(Kind::TransparentFrame, "Glass");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Form1.ShowHint = 1"));
  EXPECT_TRUE(Has(lines, "TrnspAbrFrm2int = 1"));
}

TEST(ProgramSource, ShowCallsInUserCodeAreRewrittenFormByForm) {
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

TEST(ProgramSource, FreeLinesOfAllHtmlViewersEndTheProgram) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm();
  form1.Add(Kind::HtmlViewer, "Html1");
  form1.Add(Kind::HtmlViewer, "Html2");
  project.AddForm().Add(Kind::HtmlViewer, "Html3");
  const Lines lines = Generate(project);
  const Lines end(lines.end() - 5, lines.end());
  EXPECT_EQ(end, (Lines{"Form1.ShowModal", "Html1.Free", "Html2.Free", "Html3.Free", ""}));
}

TEST(ProgramSource, RemovedFormIsSkippedByEverySection) {
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

TEST(ProgramSource, ProjectWithoutFormsStillHasItsFrame) {
  ProjectBuilder project;
  EXPECT_EQ(Generate(project), (Lines{"Dim Font As QFont", "", "Form1.ShowModal", ""}));
}

// The command line of the compiler.

}  // namespace
}  // namespace tarnwick::test
