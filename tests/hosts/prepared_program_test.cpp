#include "hosts/prepared_program.h"

#include <gtest/gtest.h>

#include "fakes/temporary_folder.h"
#include "objects/class_table.h"
#include "platform/program_folder.h"

namespace tarnwick::hosts {
namespace {

class PreparedProgramTest : public testing::Test {
 protected:
  PreparedProgram Prepare(const std::string& text) {
    folder.Write("p.bas", text);
    return PrepareProgram(folder.Native("p.bas"), objects::ClassTable(), {});
  }
  TemporaryFolder folder;
};

TEST_F(PreparedProgramTest, AResourceThatIsNotThereIsANoteAtItsLine) {
  folder.Write("there.bmp", "BM");
  const PreparedProgram program =
      Prepare("DIM p AS QIMAGE\n$RESOURCE a AS \"" + folder.Path("there.bmp") +
              "\"\n$RESOURCE b AS \"" + folder.Path("none.bmp") + "\"\np.BmpHandle = b\n");
  EXPECT_TRUE(program.Good);
  EXPECT_EQ(program.Resources.size(), 2U);
  ASSERT_EQ(program.Found.All().size(), 1U);
  const basic::Message& note = program.Found.All()[0];
  EXPECT_EQ(note.Level, basic::Severity::Note);
  EXPECT_EQ(note.At.Line, 3U);
  EXPECT_EQ(note.Text, "There is no file " + folder.Path("none.bmp"));
}

TEST_F(PreparedProgramTest, AFaultySourceHasItsErrorsAndNoCode) {
  const PreparedProgram program = Prepare("PRINT )\nGOTO nowhere\n");
  EXPECT_FALSE(program.Good);
  EXPECT_TRUE(program.Found.HasErrors());
  ASSERT_FALSE(program.Found.All().empty());
  EXPECT_EQ(program.Found.All()[0].At.Line, 1U);
}

TEST_F(PreparedProgramTest, AMissingSourceIsAnError) {
  const PreparedProgram program =
      PrepareProgram(folder.Native("none.bas"), objects::ClassTable(), {});
  EXPECT_FALSE(program.Good);
  EXPECT_TRUE(program.Found.HasErrors());
}

TEST(IncludeFolderTest, WithoutAnIncludeFileBesideTheProgramItIsTheFolderOfTheInstallation) {
  // No include file lies beside the tests.
  EXPECT_EQ(IncludeFolder(), ExecutableFolder() + R"(\..\share\tarnwick)");
}

}  // namespace
}  // namespace tarnwick::hosts
