// The examples stand as a save leaves them, byte for byte.
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/commands.h"
#include "fakes/temporary_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Projects() {
  std::vector<fs::path> projects;
  for (const auto& entry :
       fs::recursive_directory_iterator(fs::path(TARNWICK_SOURCE_DIR) / "examples")) {
    if (entry.path().extension() == ".tnp") projects.push_back(entry.path());
  }
  return projects;
}

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

TEST(ExamplesResave, ASaveLeavesThemAsTheyAre) {
  for (const fs::path& project : Projects()) {
    const TemporaryFolder folder;
    Arguments arguments;
    arguments.What = Command::Resave;
    arguments.Input = project.string();
    arguments.OutputFolder = folder.Native();
    std::ostringstream out, err;
    ASSERT_EQ(RunCommand(arguments, out, err), 0) << project << err.str();
    ASSERT_FALSE(folder.Names().empty());
    for (const std::string& name : folder.Names()) {
      EXPECT_EQ(folder.Read(name), BytesOf(project.parent_path() / name)) << name;
    }
  }
}

}  // namespace
}  // namespace tarnwick
