// Lines of the generated program lead back to form, object and event.
#include "codegen/source_map.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "codegen/emitted_code.h"
#include "codegen/program_source.h"
#include "fakes/build_paths.h"
#include "fakes/fake_project.h"
#include "fakes/random_project.h"

namespace tarnwick::test {
namespace {

/// Lines that end in CR LF, LF or CR.
std::vector<std::string> AllLines(std::string_view text) {
  std::vector<std::string> lines{""};
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool pair = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
    if (pair) continue;
    if (text[at] == '\n' || text[at] == '\r') {
      lines.emplace_back();
    } else {
      lines.back() += text[at];
    }
  }
  return lines;
}

/// The program of a project with its counted map.
struct Mapped {
  explicit Mapped(ProjectTables& tables) {
    GeneratorState state;
    Text = GenerateSource(tables, state, &Map);
    Map.CountLines(Text);
    Lines = AllLines(Text);
  }
  /// The number, from 1, of the first line of this text; 0 when there is none.
  [[nodiscard]] std::size_t NumberOf(std::string_view line) const {
    for (std::size_t n = 0; n < Lines.size(); ++n) {
      if (Lines[n] == line) return n + 1;
    }
    return 0;
  }
  [[nodiscard]] SourceLine At(std::string_view line) const {
    return Map.At(NumberOf(line)).value_or(SourceLine{});
  }

  SourceMap Map;
  std::string Text;
  std::vector<std::string> Lines;
};

/// The name of an item of a popup by its running number.
std::string PopUpItemName(const ProjectTables& tables, int popup, int item) {
  int number = 0;
  for (const PopUpMenuRec& row : RecordOrEmpty(tables.PopUpMenus, popup).Items) {
    if (number++ == item) return row.Name;
    for (std::size_t i = 1; i < row.Entries.size(); ++i) {
      if (number++ == item) return row.Entries[i].Name;
    }
  }
  return {};
}

/// The entry of `EventTable` that a body was made from.
const std::string* CodeOf(const ProjectTables& tables, const SourcePlace& place) {
  std::string owner = ObjectKey(place.Form, place.Id, place.Number);
  const std::string form = "Form" + std::to_string(place.Form);
  if (place.Id == Kind::Form) owner = form;
  if (place.Id == Kind::MenuItem) {
    owner = form + "." + tables.MenuItems[static_cast<std::size_t>(place.Number)].Name;
  }
  if (place.Item >= 0) owner = form + "." + PopUpItemName(tables, place.Number, place.Item);
  const auto* const found = tables.EventTable.OwnerOf(owner);
  return found == nullptr ? nullptr : found->Find(place.Of);
}

/// Every line of a body is the line of its code, and no code that is in the program is left out.
void ExpectBodiesLeadBack(ProjectTables& tables) {
  const Mapped mapped(tables);
  std::map<const std::string*, std::size_t> seen;
  for (std::size_t n = 1; n <= mapped.Lines.size(); ++n) {
    const auto line = mapped.Map.At(n);
    ASSERT_TRUE(line) << n;
    if (line->Place.Part != SourcePart::Body) continue;
    const std::string* const code = CodeOf(tables, line->Place);
    ASSERT_NE(code, nullptr) << mapped.Lines[n - 1];
    const std::vector<std::string> lines = AllLines(*code);
    if (line->Line == 0) {
      EXPECT_EQ(mapped.Lines[n - 1].substr(0, 4), "Sub ");
    } else if (line->Line <= lines.size()) {
      EXPECT_EQ(mapped.Lines[n - 1], lines[line->Line - 1]);
      ++seen[code];
    }
  }
  const EmittedCode emitted = FindEmittedCode(tables);
  tables.EventTable.ForEach([&](const std::string& key, const std::string& code) {
    if (emitted.Holds(code)) {
      EXPECT_EQ(seen[&code], AllLines(code).size()) << key;
    }
  });
}

/// Every line that sets a member of an object leads to the object. Returns how many there were.
int ExpectPropertiesLeadBack(ProjectTables& tables) {
  const Mapped mapped(tables);
  std::map<std::string, SourcePlace> named;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    for (const ControlRef& control : tables.User(form)->Controls()) {
      if (!control->Visible || !IsObjectKind(control->Id)) continue;
      named[control->Tag] = {.Part = SourcePart::ObjectLines,
                             .Id = control->Id,
                             .Form = static_cast<std::int16_t>(form),
                             .Number = static_cast<std::int16_t>(control->Index)};
    }
  }
  int properties = 0;
  for (std::size_t n = 1; n <= mapped.Lines.size(); ++n) {
    const auto line = mapped.Map.At(n);
    if (!line || line->Place.Part != SourcePart::ObjectLines) continue;
    const std::string& text = mapped.Lines[n - 1];
    const auto object = named.find(text.substr(0, text.find('.')));
    if (object == named.end() || text.find(" = ") == std::string::npos) continue;
    // The popup's own line, though it sets a member of what the popup hangs on.
    if (text.find(".PopUpMenu = ") != std::string::npos) continue;
    ++properties;
    EXPECT_EQ(line->Place, object->second) << text;
  }
  return properties;
}

TEST(SourceMap, EveryLineOfRandomProjectsLeadsBack) {
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    ProjectBuilder project;
    RandomProject(seed).Fill(project, {.Forms = 3, .ObjectsPerForm = 20});
    ExpectBodiesLeadBack(project.Tables);
    EXPECT_GT(ExpectPropertiesLeadBack(project.Tables), 100);
  }
}

TEST(SourceMap, EveryLineOfTheExamplesLeadsBack) {
  int examples = 0;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(SourceFolder() + "/examples")) {
    if (entry.path().extension() != ".tnp") continue;
    ++examples;
    SCOPED_TRACE(entry.path().string());
    FakeProject project;
    std::string index;
    for (const auto& file : std::filesystem::directory_iterator(entry.path().parent_path())) {
      std::ifstream in(file.path(), std::ios::binary);
      std::string bytes((std::istreambuf_iterator<char>(in)), {});
      if (file.path() == entry.path()) index = bytes;
      project.Ports.Files.Put("C:\\Work\\" + file.path().filename().string(), std::move(bytes));
    }
    ASSERT_TRUE(project.LoadIndex(index));
    ExpectBodiesLeadBack(project.Tables);
    EXPECT_GT(ExpectPropertiesLeadBack(project.Tables), 5);
  }
  EXPECT_GE(examples, 4);
}

TEST(SourceMap, ABodyCountsItsLinesFromTheSubLine) {
  ProjectBuilder project;
  project.AddForm();
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "Push").Code(Event::OnKeyUp, "first\r\nsecond\r\nthird");
  const Mapped mapped(project.Tables);
  const SourcePlace place{
      .Part = SourcePart::Body, .Id = Kind::Button, .Of = Event::OnKeyUp, .Form = 2, .Number = 1};
  EXPECT_EQ(mapped.At("third").Place, place);
  EXPECT_EQ(mapped.At("third").Line, 3U);
  EXPECT_EQ(mapped.At("first").Line, 1U);
  EXPECT_EQ(mapped.At("Sub Push_OnKeyUp (Key As Word, Shift As Integer)").Line, 0U);
}

TEST(SourceMap, PublicDeclarationsCountFromTheCommentAboveThem) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Record().DeclarePbl = "Dim a As Integer\r\nDim b As Integer";
  const Mapped mapped(project.Tables);
  EXPECT_EQ(mapped.At("Dim b As Integer").Place,
            (SourcePlace{.Part = SourcePart::PublicDeclarations, .Form = 1}));
  EXPECT_EQ(mapped.At("Dim b As Integer").Line, 2U);
}

TEST(SourceMap, TheOtherPartsAreToldApart) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::TransparentFrame, "Glass");
  form.Add(Kind::HtmlViewer, "Page");
  project.Title("mnuFile", "File").Item("mnuExit", "Exit");
  form.ShowMenuBar().ItemCode("mnuExit", "Beep");
  const Mapped mapped(project.Tables);
  EXPECT_EQ(mapped.At("Dim Form1 As QForm").Place.Part, SourcePart::Dims);
  EXPECT_EQ(mapped.At("Sub TrnspAbrFrm1").Place.Part, SourcePart::FrameSub);
  EXPECT_EQ(mapped.At("$Include \"C:\\Tarnwick\\Tarnwick1.lib\"").Place.Part, SourcePart::Include);
  EXPECT_EQ(mapped.At("Declare Sub mnuExit_OnClick").Place.Part, SourcePart::Declares);
  EXPECT_EQ(mapped.At("Form1.Cursor = -0").Place.Part, SourcePart::FormLines);
  EXPECT_EQ(mapped.At("mnuFile.Caption = \"File\"").Place.Part, SourcePart::MenuLines);
  EXPECT_EQ(mapped.At("Page.Free").Place.Part, SourcePart::Free);
}

TEST(SourceMap, LineEndsOfAnyKindCount) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "Push").Code(Event::OnClick, "one\ntwo\rthree\r\nfour\n\nsix");
  const Mapped mapped(project.Tables);
  EXPECT_EQ(mapped.At("four").Line, 4U);
  EXPECT_EQ(mapped.At("six").Line, 6U);
}

/// A form whose Show calls are rewritten, which drops the byte behind each.
Mapped WithFrame(const std::string& code) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::TransparentFrame, "Glass");
  form.Add(Kind::Button, "Push").Code(Event::OnClick, code).Code(Event::OnKeyUp, "key");
  return Mapped(project.Tables);
}

TEST(SourceMap, ADroppedLineFeedJoinsTwoLinesAndTheNextOneKeepsItsNumber) {
  const Mapped mapped = WithFrame("one\nForm1.Show\nthree\nfour\nForm1.Show\nsix\nseven");
  EXPECT_EQ(mapped.At("TrnspAbrFrm1three").Line, 2U);
  EXPECT_EQ(mapped.At("four").Line, 4U);
  EXPECT_EQ(mapped.At("TrnspAbrFrm1six").Line, 5U);
  EXPECT_EQ(mapped.At("seven").Line, 7U);
  EXPECT_EQ(mapped.At("seven").Place.Of, Event::OnClick);
  EXPECT_EQ(mapped.At("key").Line, 1U);
  EXPECT_EQ(mapped.At("key").Place.Of, Event::OnKeyUp);
}

TEST(SourceMap, ADroppedReturnLeavesTheLineFeedAndSoTheLine) {
  const Mapped mapped = WithFrame("one\r\nForm1.Show\r\nthree\r\nForm1.ShowModal\r\nfive");
  EXPECT_EQ(mapped.At("TrnspAbrFrm1").Line, 2U);
  EXPECT_EQ(mapped.At("three").Line, 3U);
  EXPECT_EQ(mapped.At("five").Line, 5U);
  EXPECT_EQ(mapped.At("key").Line, 1U);
}

TEST(SourceMap, LinesOutsideTheTextHaveNoPlace) {
  ProjectBuilder project;
  project.AddForm();
  const Mapped mapped(project.Tables);
  EXPECT_FALSE(mapped.Map.At(0));
  EXPECT_TRUE(mapped.Map.At(1));
  EXPECT_TRUE(mapped.Map.At(mapped.Lines.size()));
  EXPECT_FALSE(mapped.Map.At(mapped.Lines.size() + 1));
  EXPECT_FALSE(SourceMap().At(1));
}

TEST(SourceMap, TheTextIsTheSameWithAndWithoutIt) {
  ProjectBuilder project;
  RandomProject(7).Fill(project, {.Forms = 2, .ObjectsPerForm = 15, .Holdable = false});
  const std::string with = Mapped(project.Tables).Text;
  GeneratorState state;
  EXPECT_EQ(GenerateSource(project.Tables, state), with);
}

}  // namespace
}  // namespace tarnwick::test
