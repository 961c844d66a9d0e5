// The check of a project's code, in the text that is generated from it.
#include "project/check_code.h"

#include <gtest/gtest.h>

#include "fakes/fake_project.h"

namespace tarnwick::project {
namespace {

class CheckCodeTest : public ::testing::Test {
 protected:
  CheckCodeTest() {
    project.Ports.Files.Put(project.Tables.ProgramFolder + "\\Tarnwick1.lib", "' nothing\r\n");
  }
  std::vector<Finding> Check(const std::string& form_text) {
    EXPECT_TRUE(project.Load(form_text));
    return CheckCode(project.Tables, project.Ports.Files, "C:\\Beside");
  }
  /// The only finding.
  Finding Only(const std::string& form_text) {
    const std::vector<Finding> found = Check(form_text);
    EXPECT_EQ(found.size(), 1U);
    return found.empty() ? Finding{} : found.front();
  }
  test::FakeProject project;
};

constexpr const char* kForm = "[Form](1) {F} Image<(Default)>Image Icon<(Default)>Icon\r\n\r\n";

TEST_F(CheckCodeTest, CodeWithoutAFaultGivesNone) {
  EXPECT_TRUE(Check(std::string(kForm) +
                    "[Button] (1) {Ok} Image<(None)>Image Click<Dim n As Integer>Click\r\n")
                  .empty());
}

TEST_F(CheckCodeTest, AFaultNamesObjectEventAndLine) {
  const Finding finding = Only(
      std::string(kForm) +
      "[Button] (1) {Ok} Image<(None)>Image Click<Dim n As Integer\x95Ok.Captoin = 1>Click\r\n");
  EXPECT_EQ(finding.Id, FindingId::CodeFaulty);
  EXPECT_EQ(finding.How(), Severity::Error);
  EXPECT_EQ(finding.Form, 1);
  EXPECT_EQ(finding.Of, Kind::Button);
  EXPECT_EQ(finding.Index, 1);
  EXPECT_EQ(finding.Place, "F.Ok.OnClick, line 2");
  EXPECT_EQ(finding.ToDo(), "did you mean Caption?");
  ASSERT_TRUE(finding.In);
  EXPECT_EQ(CodeKey(*finding.In), "Form1.Button1.OnClick");
  EXPECT_EQ(finding.In->Line, 2);
}

TEST_F(CheckCodeTest, AFaultOfTheFormsOwnCodeNamesItsEvent) {
  const Finding finding =
      Only("[Form](1) {F} Image<(Default)>Image Icon<(Default)>Icon Show<F.Captoin = 1>Show\r\n");
  EXPECT_EQ(finding.Place, "F.OnShow, line 1");
  EXPECT_EQ(finding.Of, Kind::Form);
  ASSERT_TRUE(finding.In);
  EXPECT_EQ(CodeKey(*finding.In), "Form1.OnShow");
}

TEST_F(CheckCodeTest, AnItemOfAPopUpIsKnownByItsName) {
  const Finding finding =
      Only(std::string(kForm) +
           "[Sub]{ppCopy} Click<F.Captoin = 1>Click\r\n"
           "[PopUpMenu] (1) {Pop} Items<&Copy\x8DppCopy\x8E>Items Click<>Click\r\n");
  ASSERT_TRUE(finding.In);
  EXPECT_EQ(CodeKey(*finding.In), "Form1.ppCopy.OnClick");
  EXPECT_EQ(finding.Of, Kind::Form) << "its code goes by its name alone";
}

TEST_F(CheckCodeTest, DeclarationsCountFromTheirFirstLine) {
  project.Load(kForm);
  project.Form(1).DeclarePbl = "Dim a As Integer\r\nDim b As QNOTHING";
  const auto found = CheckCode(project.Tables, project.Ports.Files, "");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].Place, "F, public declarations, line 2");
}

TEST_F(CheckCodeTest, TheIncludeFileBesideTheProgramWillDo) {
  const std::string faulty =
      std::string(kForm) + "[Button] (1) {Ok} Image<(None)>Image Click<Ok.Captoin = 1>Click\r\n";
  project.Ports.Files.Remove(project.Tables.ProgramFolder + "\\Tarnwick1.lib");
  EXPECT_TRUE(Check(faulty).empty());
  project.Ports.Files.Put("C:\\Beside\\Tarnwick1.lib", "' nothing\r\n");
  EXPECT_EQ(Check(faulty).size(), 1U);
}

TEST_F(CheckCodeTest, WhatTheIncludeFileItselfHasIsNoFaultOfTheProject) {
  project.Ports.Files.Put(project.Tables.ProgramFolder + "\\Tarnwick1.lib",
                          "Dim x As QNOTHING\r\n");
  EXPECT_TRUE(Check(kForm).empty());
}

TEST_F(CheckCodeTest, WhileTheProjectHasErrorsOnlyTheUsersOwnLinesAreAdded) {
  project.Load(std::string(kForm) +
               "[Button] (1) {Ok} String<say \"hi\">String Image<(None)>Image "
               "Click<Ok.Captoin = 1>Click\r\n");
  const std::vector<Finding> all = CheckCode(project.Tables, project.Ports.Files, "");
  ASSERT_GE(all.size(), 2U) << "the caption makes its own line faulty";
  const auto added = [&](const Finding& first) {
    std::vector<Finding> findings{first};
    AddCodeFaults(findings, project.Tables, project.Ports.Files, "");
    EXPECT_EQ(findings.front().Id, first.Id);
    return findings.size() - 1;
  };
  EXPECT_EQ(added(Finding{.Id = FindingId::CodeOwnerless}), all.size()) << "a note is no error";
  EXPECT_EQ(added(Finding{.Id = FindingId::TextQuote}), 1U);
  std::vector<Finding> findings{Finding{.Id = FindingId::TextQuote}};
  AddCodeFaults(findings, project.Tables, project.Ports.Files, "");
  EXPECT_EQ(findings.back().Place, "F.Ok.OnClick, line 1");
}

}  // namespace
}  // namespace tarnwick::project
