// An edit of every row of every kind as delivered: it is saved, read again and generated.
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "codegen/generator_state.h"
#include "codegen/program_source.h"
#include "delivered_files.h"
#include "inspector/form_add_items.h"
#include "inspector/row_bindings.h"
#include "project/compile.h"
#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

constexpr std::string_view kPicture = "Z:\\p\\other.bmp";
constexpr std::string_view kIcon = "Z:\\p\\other.ico";
constexpr std::string_view kPage = "Z:\\p\\page.htm";

/// The whole program on fakes, over the delivered support files, with one object of a kind.
class Bench final : public ShellTest {
 public:
  Bench(int tool, int tool_before) {
    PutDeliveredFiles(ports.Files, std::string(kProgram));
    for (const std::string_view path : {kPicture, kIcon, kPage}) {
      ports.Files.Put(std::string(path), "any bytes");
    }
    Start();
    if (tool_before >= 0) Place(tool_before, 200, 200);
    if (tool >= 0) {
      Place(tool, 40, 60);
    } else {
      Choose(Name());
    }
  }
  void TestBody() override {}

  [[nodiscard]] PropertySheet& Sheet() { return main.Sheet(); }
  /// Picks the row of the head list that has the name, as the user does.
  void Choose(const std::string& name) {
    const auto& rows = Sheet().Combo().Rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].Text.starts_with(name + "  ")) Sheet().ChooseComboRow(static_cast<int>(i));
    }
    EXPECT_EQ(Sheet().Text(0), name);
  }
  /// Name of the selected object, or of the form.
  [[nodiscard]] std::string Name() {
    const DesignForm& form = *tables().CurrentForm;
    return form.ControlSel ? form.ControlSel->Tag : tables().RecordOf(form)->Name;
  }
  [[nodiscard]] std::string Generated() {
    GeneratorState state;
    return GenerateSource(tables(), state);
  }
  [[nodiscard]] std::string CompilerCommand() {
    return project::CompilerCommandLine(tables(), ports.Files, "Z:\\p\\round.com");
  }
  [[nodiscard]] int RowOf(std::string_view name) {
    for (int row = 0; row < Sheet().RowCount(); ++row) {
      if (Sheet().Label(row) == name) return row;
    }
    return -1;
  }
  void Edit(int row);
  /// Saves, reads the saved project and selects the object again.
  void SaveAndOpen() {
    const std::string name = Name();
    SaveUnder("Z:\\p\\round.tnp", {"Z:\\p\\round.ftn"});
    main.Commands().Run(Command::New);
    ports.Dialogs.OpenAnswers.push_back("Z:\\p\\round.tnp");
    main.Commands().Run(Command::Open);
    Choose(name);
  }

 private:
  void EditItems();
};

/// Gives a row another value than it has, in the way its type asks for.
void Bench::Edit(int row) {
  PropertySheet& sheet = Sheet();
  sheet.SelectRow(row);
  if (!sheet.List().Values().empty()) {
    const std::vector<std::string> values = sheet.List().Values();
    const std::size_t place = values.back() == sheet.Text(row) ? 0 : values.size() - 1;
    EXPECT_TRUE(sheet.ApplyChoice(values[place], static_cast<int>(place)));
    return;
  }
  FakeDialogs& dialogs = ports.Dialogs;
  switch (sheet.RowMark(row)) {
    case row_mark::kFont:
      dialogs.FontAnswers.push_back(FontChoice{"Courier New", 14, true, true, 255});
      break;
    case row_mark::kColor:
    case row_mark::kColorToo:
      dialogs.ColorAnswers.push_back(4660);
      break;
    case row_mark::kPicture:
      dialogs.OpenAnswers.push_back(std::string(kPicture));
      break;
    case row_mark::kIcon:
      dialogs.OpenAnswers.push_back(std::string(kIcon));
      break;
    case row_mark::kAnyFile:
      dialogs.OpenAnswers.push_back(std::string(kPicture));
      break;
    case row_mark::kHtmlFile:
      dialogs.OpenAnswers.push_back(std::string(kPage));
      break;
    case row_mark::kFolder:
      dialogs.FolderAnswers.push_back("Z:\\elsewhere");
      break;
    case row_mark::kItems:
      EditItems();
      return;
    default: {
      const DesignForm& form = *tables().CurrentForm;
      const Kind kind = form.ControlSel ? form.ControlSel->Id : Kind::Form;
      const RowBinding* binding = BindingOf(sheet.Label(row), kind);
      ASSERT_NE(binding, nullptr) << sheet.Label(row);
      const bool is_number = binding->Shape != RowShape::Text && binding->Shape != RowShape::File;
      EXPECT_TRUE(sheet.ApplyText(is_number ? "137" : "Some, other text"));
      return;
    }
  }
  sheet.PickValue();
}

void Bench::EditItems() {
  Sheet().PickValue();
  DesignForm& form = *tables().CurrentForm;
  if (form.ControlSel->Id == Kind::PopUpMenu) return;
  FormAddItems dialog(tables(), main.Context().Observer, main.Steps(), form);
  EXPECT_TRUE(dialog.Ok("Apple\r\nPear\r\n"));
}

/// A kind with the tool that places it and, where its rows ask for one, an object before it: a
/// SaveDialog's texts are generated only behind an OpenDialog, a menu's parent may be a button.
struct PlacedKind {
  Kind Id;
  int Tool = -1;
  int ToolBefore = -1;
  /// Rows that the program's text has nothing of: the places of objects that are not seen, the
  /// icon of the program's file.
  std::set<std::string> NotGenerated = {};
  /// Rows that always show the same word, or that a window of their own fills.
  std::set<std::string> NotShown = {};
};

const std::set<std::string> kPlace{"Left", "Top"};
void PrintTo(const PlacedKind& kind, std::ostream* out) {
  *out << InfoOf(kind.Id).Name;
}

class PropertyRoundTrip : public ::testing::TestWithParam<PlacedKind> {
 protected:
  [[nodiscard]] static std::string Where(std::string_view row) {
    return std::string(InfoOf(GetParam().Id).Name) + "." + std::string(row);
  }
};

TEST_P(PropertyRoundTrip, EachRowAloneIsSavedReadAndGenerated) {
  const int rows = Bench(GetParam().Tool, GetParam().ToolBefore).Sheet().RowCount();
  ASSERT_GT(rows, 1);
  for (int row = 1; row < rows; ++row) {
    Bench bench(GetParam().Tool, GetParam().ToolBefore);
    const std::string name(bench.Sheet().Label(row));
    const std::string before = bench.Sheet().Text(row);
    const std::string source = bench.Generated();
    bench.Edit(row);
    const std::string shown = bench.Sheet().Text(row);
    const std::string edited = bench.Generated();
    EXPECT_EQ(shown == before, GetParam().NotShown.contains(name)) << Where(name);
    EXPECT_EQ(edited == source, GetParam().NotGenerated.contains(name)) << Where(name);
    bench.SaveAndOpen();
    EXPECT_EQ(bench.Sheet().Text(bench.RowOf(name)), shown) << Where(name);
    EXPECT_TRUE(bench.Generated() == edited) << Where(name);
  }
}

TEST_P(PropertyRoundTrip, AllRowsTogetherAreSavedReadAndGenerated) {
  Bench bench(GetParam().Tool, GetParam().ToolBefore);
  const int rows = bench.Sheet().RowCount();
  for (int row = 1; row < rows; ++row) bench.Edit(row);
  bench.Choose(bench.Name());
  std::vector<std::string> shown;
  for (int row = 0; row < rows; ++row) shown.push_back(bench.Sheet().Text(row));
  const std::string edited = bench.Generated();
  bench.SaveAndOpen();
  ASSERT_EQ(bench.Sheet().RowCount(), rows);
  for (int row = 0; row < rows; ++row) {
    const auto at = static_cast<std::size_t>(row);
    EXPECT_EQ(bench.Sheet().Text(row), shown[at]) << Where(bench.Sheet().Label(row));
  }
  EXPECT_EQ(bench.Generated(), edited);
}

TEST_P(PropertyRoundTrip, ARenamedObjectIsSavedReadAndGenerated) {
  Bench bench(GetParam().Tool, GetParam().ToolBefore);
  const std::string source = bench.Generated();
  bench.Sheet().SelectRow(0);
  ASSERT_TRUE(bench.Sheet().ApplyText("Renamed"));
  const std::string edited = bench.Generated();
  EXPECT_NE(edited, source);
  EXPECT_NE(edited.find("Renamed"), std::string::npos);
  bench.SaveAndOpen();
  EXPECT_EQ(bench.Sheet().Text(0), "Renamed");
  EXPECT_EQ(bench.Generated(), edited);
}

TEST(PropertyRoundTripOfTheForm, TheProgramsIconIsSavedReadAndGivenToTheCompiler) {
  Bench bench(-1, -1);
  bench.Edit(bench.RowOf("Icon(App)"));
  bench.SaveAndOpen();
  EXPECT_NE(bench.CompilerCommand().find(kIcon), std::string::npos) << bench.CompilerCommand();
}

INSTANTIATE_TEST_SUITE_P(
    Of, PropertyRoundTrip,
    ::testing::Values(
        PlacedKind{Kind::Form, -1, -1, {"Icon(App)"}}, PlacedKind{Kind::Button, 0},
        PlacedKind{Kind::TextBox, 1}, PlacedKind{Kind::Image, 2}, PlacedKind{Kind::Label, 3},
        PlacedKind{Kind::ListBox, 4, -1, {}, {"AddItems"}}, PlacedKind{Kind::OptionButton, 5},
        PlacedKind{Kind::CheckBox, 6}, PlacedKind{Kind::ComboBox, 7, -1, {}, {"AddItems"}},
        PlacedKind{Kind::RichTextBox, 10}, PlacedKind{Kind::Time, 11, -1, kPlace},
        PlacedKind{Kind::OpenDialog, 12, -1, kPlace}, PlacedKind{Kind::SaveDialog, 13, 12, kPlace},
        PlacedKind{Kind::FileStream, 14, -1, kPlace}, PlacedKind{Kind::TransparentFrame, 15},
        PlacedKind{Kind::HtmlViewer, 16}, PlacedKind{Kind::WinSock, 18, -1, kPlace},
        PlacedKind{Kind::PopUpMenu, 19, 0, {"Left", "Top", "AddItems"}, {"AddItems"}}),
    [](const auto& chosen) { return std::string(InfoOf(chosen.param.Id).Name); });

}  // namespace
}  // namespace tarnwick
