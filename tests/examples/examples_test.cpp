// The projects of examples/: what they generate, that a save gives back their bytes, and that
// nothing is amiss in them.
//
// The expected texts lie in expected/, a file per project. After a change of an example or of the
// generator, run the tests once with TARNWICK_UPDATE set, then read what changed before it is
// committed.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "codegen/program_source.h"
#include "editor/code_marks.h"
#include "fakes/build_paths.h"
#include "fakes/fake_ports.h"
#include "fakes/golden_text.h"
#include "fakes/memory_files.h"
#include "persistence/form_writer.h"
#include "persistence/project_index.h"
#include "project/convert_project.h"
#include "project/open_project.h"
#include "project/save_project.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

const fs::path kExamples = fs::path(test::SourceFolder()) / "examples";
const fs::path kExpected = fs::path(test::SourceFolder()) / "tests/examples/expected";

std::string BytesOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Compares with a file of the expected results, or renews it.
void ExpectSameAsFile(const std::string& result, const fs::path& file) {
  if (std::getenv("TARNWICK_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(file, std::ios::binary) << result;
    return;
  }
  test::ExpectSameText(file.filename().string(), result, BytesOf(file));
}

/// One folder of examples/, laid into memory at a path that is the same on every machine: the
/// generated source names the project's folder.
class Example {
 public:
  explicit Example(const fs::path& folder)
      : Folder("C:\\Examples\\" + folder.filename().string() + "\\") {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      Files.Put(Folder + entry.path().filename().string(), BytesOf(entry.path()));
    }
    Tables.ProgramFolder = "C:\\Tarnwick";
  }

  /// Reads the project of this name; no message may come.
  void Load(const std::string& project) {
    Tables.ProjectFile = Folder + project;
    ASSERT_TRUE(project::LoadProject(Context, Tables.ProjectFile));
    EXPECT_EQ(Log.Count("show "), 0U);
  }

  std::string Source() {
    GeneratorState state;
    return GenerateSource(Tables, state);
  }

  const std::string Folder;
  CallLog Log;
  MemoryFiles Files{Log};
  FakeMessages Messages{Log};
  FakeDialogs Dialogs{Log};
  FakeScreen Screen;
  ProjectObserver Observer;
  project::ContainerHost Container;
  ProjectTables Tables;
  project::ProjectContext Context{Tables, Files, Messages, Dialogs, Screen, Observer, Container};
};

/// The folders with a project of the present format, by name; the project is named as the folder.
std::vector<std::string> ProjectNames() {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(kExamples)) {
    const std::string name = entry.path().filename().string();
    if (fs::exists(entry.path() / (name + ".tnp"))) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

class ExampleProject : public testing::TestWithParam<std::string> {};

TEST_P(ExampleProject, GeneratesTheExpectedSource) {
  Example example(kExamples / GetParam());
  example.Load(GetParam() + ".tnp");
  ExpectSameAsFile(example.Source(), kExpected / (GetParam() + ".com"));
}

TEST_P(ExampleProject, ComesBackByteForByteFromASave) {
  Example example(kExamples / GetParam());
  example.Load(GetParam() + ".tnp");
  EXPECT_EQ(ProjectIndexText(example.Tables, FolderOf(example.Tables.ProjectFile)),
            BytesOf(kExamples / GetParam() / (GetParam() + ".tnp")));
  for (int form = 1; form <= example.Tables.FormsCount; ++form) {
    const std::string name(BareName(example.Tables.Form(form)->FileName));
    EXPECT_EQ(FormFileText(example.Tables, form), BytesOf(kExamples / GetParam() / name)) << name;
  }
}

TEST_P(ExampleProject, DeclaresEverySubThatIsHookedOrDefinesItBefore) {
  Example example(kExamples / GetParam());
  example.Load(GetParam() + ".tnp");
  const std::string source = example.Source();
  std::vector<std::string> known;
  std::size_t hooks = 0;
  for (const std::string_view line : Split(source, "\r\n")) {
    for (const std::string_view start : {"Declare Sub ", "Sub "}) {
      if (!line.starts_with(start)) continue;
      const std::string_view rest = line.substr(start.size());
      known.emplace_back(rest.substr(0, rest.find(' ')));
    }
    const std::size_t hook = line.find(" = ");
    const std::size_t event = line.substr(0, hook).rfind(".On");
    if (line.starts_with(' ') || hook == std::string_view::npos ||
        event == std::string_view::npos) {
      continue;
    }
    ++hooks;
    const std::string_view sub = line.substr(hook + 3);
    EXPECT_NE(std::find(known.begin(), known.end(), sub), known.end()) << line;
  }
  EXPECT_GE(hooks, 1U);
}

TEST_P(ExampleProject, FindsItsPicturesBesideTheProject) {
  Example example(kExamples / GetParam());
  example.Load(GetParam() + ".tnp");
  const std::string source = example.Source();
  for (const std::string_view line : Split(source, "\r\n")) {
    if (!line.starts_with("$Resource ") || line.find(example.Folder) == std::string_view::npos) {
      continue;
    }
    const std::size_t open = line.find('"') + 1;
    EXPECT_TRUE(example.Files.Exists(std::string(line.substr(open, line.rfind('"') - open))))
        << line;
  }
}

/// The marks of a text, with all files read that its program includes.
template <class Make>
std::vector<editor::CodeMark> MarksOf(editor::CodeMarks& marks, Make make, std::string_view text) {
  for (;;) {
    editor::CodeCheck::Found found = make().Run(text);
    if (found.Unread.empty()) return found.Marks;
    marks.Read(found.Unread);
  }
}

TEST_P(ExampleProject, HasNoMarkInItsCode) {
  Example example(kExamples / GetParam());
  example.Load(GetParam() + ".tnp");
  editor::CodeMarks marks(example.Tables, example.Files);
  std::size_t bodies = 0;
  example.Tables.EventTable.ForEach([&](const std::string& key, const std::string& code) {
    for (const editor::CodeMark& mark : MarksOf(
             marks, [&] { return marks.EventCheck(key); }, code)) {
      ADD_FAILURE() << key << " line " << mark.Line << ": " << mark.Text;
    }
    ++bodies;
  });
  EXPECT_GE(bodies, 1U);
  for (int form = 1; form <= example.Tables.FormsCount; ++form) {
    for (const editor::CodeMark& mark : MarksOf(
             marks, [&] { return marks.DeclarationsCheck(form); },
             example.Tables.Form(form)->DeclarePbl)) {
      ADD_FAILURE() << "declarations of form " << form << " line " << mark.Line << ": "
                    << mark.Text;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleProject, testing::ValuesIn(ProjectNames()),
                         [](const auto& name) { return name.param; });

TEST(Examples, EachFolderWithAProjectIsFound) {
  const std::vector<std::string> names = ProjectNames();
  for (const char* const name : {"clock", "converter", "notepad", "temperature"}) {
    EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
  }
}

TEST(OldExample, IsConvertedToAProjectOfOneForm) {
  Example example(kExamples / "old");
  const auto project = project::ConvertOldProject(example.Files, example.Folder + "notes.ptn");
  ASSERT_EQ(project, example.Folder + "notes.tnp");
  ExpectSameAsFile(*example.Files.Bytes(*project), kExpected / "notes.tnp");
  ExpectSameAsFile(*example.Files.Bytes(example.Folder + "notes.ftn"), kExpected / "notes.ftn");
}

TEST(OldExample, GeneratesTheExpectedSourceWhenConverted) {
  Example example(kExamples / "old");
  ASSERT_TRUE(project::ConvertOldProject(example.Files, example.Folder + "notes.ptn"));
  example.Load("notes.tnp");
  ExpectSameAsFile(example.Source(), kExpected / "notes.com");
}

}  // namespace
}  // namespace tarnwick
