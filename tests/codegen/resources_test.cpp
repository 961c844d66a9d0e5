#include "codegen/resources.h"

#include <gtest/gtest.h>

#include "codegen/image_index.h"
#include "fakes/generated.h"

namespace tarnwick::test {
namespace {

Lines Resources(ProjectBuilder& project) {
  return Starting(Generate(project), "$Resource ");
}

const std::string kDefaultIconLine = "$Resource Default_Icon As \"C:\\Tarnwick\\IconApp.ico\"";

TEST(Resources, TwoFormsWithDefaultIconsShareOneLine) {
  ProjectBuilder project;
  project.AddForm();
  project.AddForm();
  const Lines lines = Generate(project);
  EXPECT_EQ(Resources(project), Lines{kDefaultIconLine});
  EXPECT_LT(PositionOf(lines, kDefaultIconLine), PositionOf(lines, "Dim Form2 As QForm"));
}

TEST(Resources, DefaultIconIsDeclaredAnewInTheNextCompilation) {
  ProjectBuilder project;
  project.AddForm();
  GeneratorState state;
  static_cast<void>(GenerateSource(project.Tables, state));
  EXPECT_TRUE(Has(LinesOf(GenerateSource(project.Tables, state)), kDefaultIconLine));
}

TEST(Resources, EmptyIconNamesTheBareProjectFolder) {
  ProjectBuilder project;
  project.AddForm().Record().ImageFile = "";
  EXPECT_EQ(Resources(project), Lines{"$Resource Form1_Icon As \"C:\\Work\\\""});
}

TEST(Resources, PathOnTheProgramsDriveStandsAsItIs) {
  ProjectBuilder project;
  project.AddForm().Record().ImageFile = "C:\\Icons\\a.ico";
  EXPECT_EQ(Resources(project), Lines{"$Resource Form1_Icon As \"C:\\Icons\\a.ico\""});
}

TEST(Resources, PathOnAnotherDriveIsTakenAsRelative) {
  ProjectBuilder project;
  project.AddForm().Record().ImageFile = "D:\\Icons\\a.ico";
  EXPECT_EQ(Resources(project), Lines{"$Resource Form1_Icon As \"C:\\Work\\D:\\Icons\\a.ico\""});
}

TEST(Resources, DriveLetterInTheOtherCaseIsTakenAsRelative) {
  ProjectBuilder project;
  project.AddForm().Record().ImageFile = "c:\\a.ico";
  EXPECT_EQ(Resources(project), Lines{"$Resource Form1_Icon As \"C:\\Work\\c:\\a.ico\""});
}

TEST(Resources, ThreeButtonsWithOnePictureInDifferentCaseGiveOneLine) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "B1").Picture("pics\\a.bmp");
  form.Add(Kind::Button, "B2").Picture("PICS\\A.BMP");
  form.Add(Kind::Button, "B3").Picture("Pics\\a.Bmp");
  EXPECT_EQ(Resources(project),
            (Lines{kDefaultIconLine, "$Resource Frm1Btn1_Bmp As \"C:\\Work\\pics\\a.bmp\""}));
}

TEST(Resources, NoPictureGivesNoLine) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "B1").Picture("");
  form.Add(Kind::Button, "B2").Picture("(None)");
  form.Add(Kind::Image, "I1").Picture("(None)");
  EXPECT_EQ(Resources(project), Lines{kDefaultIconLine});
}

TEST(Resources, ButtonsAndImagesBindTheSamePictureEach) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Image, "I1").Picture("a.bmp");
  form.Add(Kind::Button, "B1").Picture("(None)");
  form.Add(Kind::Button, "B2").Picture("a.bmp");
  form.Add(Kind::Image, "I2").Picture("b.ico");
  EXPECT_EQ(Resources(project),
            (Lines{kDefaultIconLine, "$Resource Frm1Btn2_Bmp As \"C:\\Work\\a.bmp\"",
                   "$Resource Frm1Image1_Bmp As \"C:\\Work\\a.bmp\"",
                   "$Resource Frm1Image2_Bmp As \"C:\\Work\\b.ico\""}));
}

TEST(Resources, TwoFormsBindTheSamePictureEach) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::Button, "B1").Picture("a.bmp");
  project.AddForm().Add(Kind::Button, "B2").Picture("a.bmp");
  EXPECT_EQ(Resources(project),
            (Lines{kDefaultIconLine, "$Resource Frm1Btn1_Bmp As \"C:\\Work\\a.bmp\"",
                   "$Resource Frm2Btn1_Bmp As \"C:\\Work\\a.bmp\""}));
}

TEST(Resources, RemovedFormWritesNothingButKeepsItsNumber) {
  ProjectBuilder project;
  project.AddForm();
  const BuiltForm form2 = project.AddForm();
  form2.Record().ImageFile = "two.ico";
  const BuiltForm form3 = project.AddForm();
  form3.Record().ImageFile = "three.ico";
  form3.Add(Kind::Button, "B1").Picture("a.bmp");
  form2.Remove();
  EXPECT_EQ(Resources(project),
            (Lines{kDefaultIconLine, "$Resource Form3_Icon As \"C:\\Work\\three.ico\"",
                   "$Resource Frm3Btn1_Bmp As \"C:\\Work\\a.bmp\""}));
}

TEST(Resources, PictureNamesUseTheNumberInTheWindowIconNamesTheSlot) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Record().ImageFile = "one.ico";
  form.Add(Kind::Button, "B1").Picture("a.bmp");
  form.User().SetNumber(9);
  EXPECT_EQ(Resources(project), (Lines{"$Resource Form1_Icon As \"C:\\Work\\one.ico\"",
                                       "$Resource Frm9Btn1_Bmp As \"C:\\Work\\a.bmp\""}));
}

TEST(ImageIndex, FindsTheFirstAndTheEarlierHolder) {
  RecordArray<ObjectRec> records;
  records.Ensure(1)->ImageFile = "a.bmp";
  records.Ensure(2)->ImageFile = "b.bmp";
  records.Ensure(3)->ImageFile = "A.BMP";
  ImageIndex index(records);
  EXPECT_EQ(index.FindFirstImage("A.bmp"), 1);
  EXPECT_EQ(index.FindEarlierImage("a.bmp", 3), 1);
  EXPECT_EQ(index.FindEarlierImage("a.bmp", 1), 0);
  EXPECT_EQ(index.FindEarlierImage("b.bmp", 2), 0);
  EXPECT_EQ(index.FindFirstImage("c.bmp"), 0);
}

TEST(ImageIndex, SlotZeroIsNoObject) {
  RecordArray<ObjectRec> records;
  records.Ensure(1)->ImageFile = "b.bmp";
  records.At(0)->ImageFile = "a.bmp";
  ImageIndex index(records);
  EXPECT_EQ(index.FindFirstImage("a.bmp"), 0);
}

}  // namespace
}  // namespace tarnwick::test
