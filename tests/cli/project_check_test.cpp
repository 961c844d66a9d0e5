#include "cli/project_check.h"

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
  EXPECT_EQ(result.Out, "Error: File ' " + Path("gone.ftn") + " ' does not exist!\n");
  EXPECT_EQ(result.Err, "");
}

TEST_F(CheckTest, AMissingPictureIsNamedWithFormAndObject) {
  const CallResult result =
      Check(std::string(kHead) + "[Image] (1) {Logo} Image<logo.bmp>Image\r\n");
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out, "Form1.Logo: the picture does not exist: " + Path("logo.bmp") + "\n");
}

TEST_F(CheckTest, APictureThatIsThereIsNoFinding) {
  folder_.Put("logo.bmp", "BM");
  EXPECT_EQ(Check(std::string(kHead) + "[Image] (1) {Logo} Image<logo.bmp>Image\r\n").Exit, 0);
}

TEST_F(CheckTest, MissingIconsOfTheFirstFormAreNamed) {
  const CallResult result = Check("[Form](1) {Form1} Image<w.ico>Image Icon<a.ico>Icon\r\n");
  EXPECT_EQ(result.Out, "Form1: the window's icon does not exist: " + Path("w.ico") +
                            "\nForm1: the program's icon does not exist: " + Path("a.ico") + "\n");
}

TEST_F(CheckTest, LinesThatAreNoRecordsAreNamedByLine) {
  const CallResult result = Check(std::string(kHead) + "\r\njunk\r\n[Gauge] (1) {G1}\r\n");
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out,
            "Form1: line 3: the line is no record\n"
            "Form1.G1: line 4, [Gauge]: the kind is not known\n");
}

TEST_F(CheckTest, AnObjectNumberThatHoldsNoRecordIsNamed) {
  const CallResult result = Check(std::string(kHead) + "[Button] (-2) {Ok} Image<(None)>Image\r\n");
  EXPECT_EQ(
      result.Out,
      "Form1.Ok: line 2, [Button]: the number (-2) cannot be used; its properties are lost\n");
}

TEST_F(CheckTest, AValueOutOfRangeIsNamed) {
  const CallResult result =
      Check(std::string(kHead) + "[Time] (1) {T} Enabled<1>Enabled Tip<70000>Tip\r\n");
  EXPECT_EQ(result.Out, "Form1.T: line 2, [Time]: the value of tip is out of range: 70000\n");
}

TEST_F(CheckTest, NamesUsedTwiceAndEmptyNamesAreNamed) {
  const CallResult result = Check(
      std::string(kHead) + "[Label] (1) {Same}\r\n[TextBox] (1) {same}\r\n[Label] (2) {}\r\n");
  EXPECT_EQ(result.Out,
            "Form1.same: the name same is used before, by Form1.Same\n"
            "Form1.Label2: the name is empty\n");
}

TEST_F(CheckTest, CodeThatNoObjectOwnsIsNamed) {
  const CallResult result =
      Check(std::string(kHead) + "[MenuItem] (1) {mnuGone} Click<Beep>Click\r\n");
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out, "Form1.mnuGone.OnClick: no object owns this code\n");
}

TEST_F(CheckTest, CodeOfAnObjectWhoseRecordNumberLeavesAGapIsNotGenerated) {
  const CallResult result = Check(std::string(kHead) +
                                  "[Button] (1) {A} Image<(None)>Image\r\n[Button] (3) {B} "
                                  "Image<(None)>Image Click<Beep>Click\r\n");
  EXPECT_EQ(result.Out, "Form1.Button3.OnClick: no object owns this code\n");
}

TEST_F(CheckTest, AProjectThatCannotBeReadIsNoFindingButAnError) {
  const CallResult result = Call({"check", folder_.PathOf("none.tnp")});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Out, "");
  EXPECT_EQ(result.Err, "tarnwick-cli: cannot read " + folder_.PathOf("none.tnp") + "\n");
}

}  // namespace
}  // namespace tarnwick
