#include <algorithm>

#include <gtest/gtest.h>

#include "cli/project_folder.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

using test::Call;
using test::CallResult;
using test::ProjectFolder;

constexpr const char* kHead = "[Form](1) {Form1}  Image<(Default)>Image Icon<(Default)>Icon\r\n";

class CheckTest : public testing::Test {
 protected:
  CallResult Check(const std::string& form_text) {
    folder_.Put("f.ftn", form_text);
    return Call({"check", folder_.Put("p.tnp",
                                      "1\x95"
                                      "f.ftn\r\n")});
  }
  /// The same with the include file in the program folder, so that the code is checked too.
  CallResult CheckCode(const std::string& objects) {
    folder_.Put("Tarnwick1.lib", "' nothing\r\n");
    folder_.Put("f.ftn", kHead + objects);
    return Call({"check", "--program-folder", PathFromNative(folder_.PathOf("")),
                 folder_.Put("p.tnp",
                             "1\x95"
                             "f.ftn\r\n")});
  }
  /// The path of a file of the project as findings name it.
  std::string Path(const std::string& name) { return PathFromNative(folder_.PathOf(name)); }

  ProjectFolder folder_;
};

TEST_F(CheckTest, ASoundProjectGivesNoFindings) {
  const CallResult result =
      Check(std::string(kHead) + "[Button] (1) {Ok} Image<(None)>Image Click<Beep>Click\r\n");
  EXPECT_EQ(result.Exit, 0);
  EXPECT_EQ(result.Out, "");
  EXPECT_EQ(result.Err, "");
}

TEST_F(CheckTest, AMissingFormFileIsNamedOnce) {
  const CallResult result = Call({"check", folder_.Put("p.tnp", "1\x95gone.ftn\r\n")});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out, "the form does not exist: " + Path("gone.ftn") +
                            "; put the file back or save the project without it\n");
  EXPECT_EQ(result.Err, "");
}

TEST_F(CheckTest, FindingsOfTheFilesComeFirstAndAllAreLinesOfPlaceTextAndWhatToDo) {
  const CallResult result =
      Check(std::string(kHead) + "junk\r\n[Image] (1) {Logo} Image<logo.bmp>Image\r\n");
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out,
            "Form1: line 2: the line is no record; correct the line or take it out\n"
            "Form1.Logo: the picture does not exist: " +
                Path("logo.bmp") + "; put the file back or choose another\n");
}

TEST_F(CheckTest, TextsArePrintedInUtf8) {
  EXPECT_EQ(Check(std::string(kHead) + "[Label] (1) {Stra\xDF"
                                       "e 1}\r\n")
                .Out,
            "Form1.Stra\xC3\x9F"
            "e 1: the name Stra\xC3\x9F"
            "e 1 is no name of the language; use letters, "
            "digits and _ only, and a letter in front\n");
}

TEST_F(CheckTest, AProjectThatCannotBeReadIsNoFindingButAnError) {
  const CallResult result = Call({"check", folder_.PathOf("none.tnp")});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out, "");
  EXPECT_EQ(result.Err, "tarnwick-cli: cannot read " + folder_.PathOf("none.tnp") + "\n");
}

TEST_F(CheckTest, FaultsOfTheCodeAreNamedByFormObjectEventAndLine) {
  const CallResult result = CheckCode(
      "[Button] (1) {Ok} Image<(None)>Image Click<Dim n As Integer\x95"
      "Ok.Captoin = \"x\">Click\r\n");
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out,
            "Form1.Ok.OnClick, line 2: QBUTTON has no member \"Captoin\"; did you mean Caption?\n");
}

TEST_F(CheckTest, FaultsOfTheCodeAreListedBesideWhatElseIsWrong) {
  const CallResult result = CheckCode(
      "[Button] (1) {Ok} String<say \"hi\">String Image<(None)>Image "
      "Click<Ok.Captoin = \"x\">Click\r\n");
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(std::count(result.Out.begin(), result.Out.end(), '\n'), 2) << result.Out;
  EXPECT_TRUE(result.Out.starts_with("Form1.Ok: ")) << result.Out;
  EXPECT_NE(result.Out.find("\nForm1.Ok.OnClick, line 1: QBUTTON has no member \"Captoin\""),
            std::string::npos)
      << result.Out;
}

}  // namespace
}  // namespace tarnwick
