// The program over damaged support files: it starts, says nothing, and has what is whole.
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/build_paths.h"
#include "shell/shell_fixture.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr char kValueStart = '\x8D';
constexpr char kValueEnd = '\x8E';

std::string Delivered(std::string_view name) {
  std::ifstream file(test::ProgramFolder() + "/" + std::string(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// What the tables held, in numbers.
struct Held {
  std::size_t Lists, Help, Events, Kinds, Functions, Rows;
  bool operator==(const Held&) const = default;
};

Held HeldBy(const language::SupportTables& tables) {
  return {tables.MemberLists.Size(),  tables.MemberHelp.Size(),       tables.EventLists.Size(),
          tables.ListaObjetos.size(), tables.Functions.Rows().size(), tables.ObjectHelp.Size()};
}

/// The whole program with some of its support files.
class Bench final : public ShellTest {
 public:
  Bench() {
    for (const char* name : {"Add001.tn", "Add002.tn", "Add003.tn", "Add004.tn"}) {
      Put(name, Delivered(name));
    }
  }
  void TestBody() override {}

  void Put(std::string_view name, std::string bytes) {
    ports.Files.Put(PathOf(name), std::move(bytes));
  }
  void Take(std::string_view name) { ports.Files.Remove(PathOf(name)); }
  /// Starts, places a button and looks whether anybody was told anything.
  Held StartUp() {
    log().Clear();
    main.Load(views);
    main.Time_Timer();
    EXPECT_NE(tables().CurrentForm, nullptr);
    EXPECT_EQ(log().Count("show"), 0U) << Text();
    EXPECT_EQ(log().Count("ask"), 0U) << Text();
    Place(0, 20, 30);
    EXPECT_EQ(main.Sheet().Text(0), "Form1Btn1");
    return HeldBy(main.Support());
  }
  [[nodiscard]] const language::SupportTables& Support() { return main.Support(); }
  [[nodiscard]] int Rows() { return main.Sheet().RowCount(); }

 private:
  [[nodiscard]] static std::string PathOf(std::string_view name) {
    return std::string(kProgram) + "\\" + std::string(name);
  }
};

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  for (const std::string_view line : Split(text, kLineEnd)) lines.emplace_back(line);
  return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(kLineEnd);
  return text;
}

std::string Without(std::string line, char mark) {
  std::erase(line, mark);
  return line;
}

TEST(DamagedSupportFiles, TheDeliveredOnesFillEveryTable) {
  Bench bench;
  const Held held = bench.StartUp();
  EXPECT_GE(held.Kinds, 24U);
  EXPECT_GE(held.Lists, held.Kinds);
  EXPECT_GT(held.Help, 300U);
  EXPECT_GE(held.Events, 12U);
  EXPECT_GT(held.Functions, 100U);
  EXPECT_EQ(held.Rows, kObjectKindCount + 1);
  EXPECT_EQ(bench.Rows(), 14);
  for (const std::string& kind : bench.Support().ListaObjetos) {
    EXPECT_NE(bench.Support().MemberLists.Find(kind), nullptr) << kind;
    EXPECT_NE(bench.Support().MemberHelp.Find(kind + "%"), nullptr) << kind;
  }
}

TEST(DamagedSupportFiles, AMissingOrEmptyFileLeavesItsTablesEmptyAndTheOthersWhole) {
  const Held whole = Bench().StartUp();
  for (const char* name : {"Add001.tn", "Add002.tn", "Add003.tn", "Add004.tn"}) {
    for (const bool is_there : {false, true}) {
      Bench bench;
      if (is_there) {
        bench.Put(name, "");
      } else {
        bench.Take(name);
      }
      Held expected = whole;
      const std::string_view file = name;
      if (file == "Add001.tn") expected.Lists = expected.Help = expected.Events = 0;
      if (file == "Add002.tn") expected.Functions = 0;
      if (file == "Add004.tn") expected.Rows = 0;
      Held held = bench.StartUp();
      // An empty first file has an empty line 0, whose one part is an empty kind or none.
      if (file == "Add001.tn") {
        EXPECT_LE(held.Kinds, 1U);
        held.Kinds = expected.Kinds;
      }
      EXPECT_EQ(held, expected) << name << is_there;
      if (file == "Add003.tn") {
        EXPECT_TRUE(bench.Support().Keywords.empty());
      }
      EXPECT_EQ(bench.Rows(), file == "Add004.tn" ? 1 : 14);
    }
  }
}

TEST(DamagedSupportFiles, ARowLineThatIsCutOrLacksAMarkCostsItsOwnKindAlone) {
  const std::vector<std::string> lines = LinesOf(Delivered("Add004.tn"));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].empty()) continue;
    const std::string kind = lines[i].substr(1, lines[i].find(']') - 1);
    for (const std::string& damaged :
         {lines[i].substr(0, lines[i].size() / 2), lines[i].substr(0, lines[i].size() - 1),
          lines[i].substr(1), Without(lines[i], ']'), Without(lines[i], kValueStart),
          Without(lines[i], kValueEnd), std::string()}) {
      Bench bench;
      std::vector<std::string> changed = lines;
      changed[i] = damaged;
      bench.Put("Add004.tn", Joined(changed));
      bench.StartUp();
      EXPECT_EQ(bench.Support().ObjectHelp.Find(kind), nullptr) << damaged;
      EXPECT_EQ(bench.Support().ObjectHelp.Size(), kObjectKindCount) << damaged;
      EXPECT_EQ(bench.Rows(), kind == "BUTTON" ? 1 : 14) << damaged;
    }
  }
}

TEST(DamagedSupportFiles, OfTwoLinesForAKindTheFirstStays) {
  const std::vector<std::string> lines = LinesOf(Delivered("Add004.tn"));
  for (const std::string& line : lines) {
    if (line.empty()) continue;
    const std::string kind = line.substr(1, line.find(']') - 1);
    Bench bench;
    std::vector<std::string> changed = lines;
    changed.push_back("[" + Lower(kind) + "]" + kValueStart + "Other" + kValueEnd);
    bench.Put("Add004.tn", Joined(changed));
    bench.StartUp();
    const auto* rows = bench.Support().ObjectHelp.Find(kind);
    ASSERT_NE(rows, nullptr) << kind;
    EXPECT_NE(rows->front().Name, "Other") << kind;
    EXPECT_EQ(bench.Rows(), 14);
  }
}

/// Damages one line after the other; each costs what stands in it and no more.
void CutEachLine(std::string_view name, std::size_t first) {
  const Held whole = Bench().StartUp();
  const std::vector<std::string> lines = LinesOf(Delivered(name));
  for (std::size_t i = first; i < lines.size(); ++i) {
    if (lines[i].find(kValueEnd) == std::string::npos) continue;
    Bench bench;
    std::vector<std::string> changed = lines;
    changed[i].resize(changed[i].size() / 2);
    bench.Put(name, Joined(changed));
    const Held held = bench.StartUp();
    const std::size_t before = whole.Lists + whole.Help + whole.Events;
    EXPECT_GE(held.Lists + held.Help + held.Events + 1, before) << i;
    EXPECT_EQ(held.Kinds, whole.Kinds) << i;
    EXPECT_EQ(held.Functions, whole.Functions) << i;
    EXPECT_EQ(held.Rows, whole.Rows) << i;
  }
}

TEST(DamagedSupportFiles, AMemberLineThatIsCutCostsItselfAlone) {
  CutEachLine("Add001.tn", 1);
}

TEST(DamagedSupportFiles, AFunctionLineThatIsCutStaysARowOfItsList) {
  CutEachLine("Add002.tn", 2);
}

TEST(DamagedSupportFiles, FilesOfNoiseAreHarmless) {
  for (const char* name : {"Add001.tn", "Add002.tn", "Add003.tn", "Add004.tn"}) {
    for (const std::string& noise :
         {std::string(4096, '\0'), std::string(4096, kValueStart), std::string(4096, '\n'),
          std::string("[[[]]]{{{}}}\x8E\x8D\x8C,,,*,**tn**\r\n**etn**\r\n"),
          Delivered("IconApp.ico")}) {
      Bench bench;
      bench.Put(name, noise);
      bench.StartUp();
    }
  }
}

}  // namespace
}  // namespace tarnwick
