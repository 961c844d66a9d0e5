// Whatever bytes are typed or pasted into a row, the saved form reads back: the row with what the
// grid shows, and every other record as it was.
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "persistence/form_reader.h"
#include "persistence/form_writer.h"
#include "sheet_bench.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

/// A bench with an object before and one behind the object that is edited, all with event code.
struct BytesBench : SheetBench {
  ControlRef Edited;

  explicit BytesBench(Kind kind) {
    Make(Kind::Button)->Caption = "before";
    Edited = MakeOrForm(kind);
    const ControlRef behind = Make(Kind::Label, 1500, 1500);
    behind->Caption = "behind";
    for (const char* key :
         {"Form1.OnShow", "Form1.Button1.OnClick", "Form1.Button2.OnClick", "Form1.Label1.OnClick",
          "Form1.Label2.OnClick", "Form1.TextBox1.OnChange", "Form1.CheckBox1.OnClick"}) {
      Tables.EventTable.Replace(key, "Print 1");
    }
    Pick(Edited);
  }
  [[nodiscard]] std::vector<std::string> Lines() {
    const std::string text = FormFileText(Tables, 1);
    std::vector<std::string> lines;
    for (const std::string_view line : Split(text, kLineEnd)) lines.emplace_back(line);
    return lines;
  }
  /// The file text after the saved form was read into a project of its own and written again.
  [[nodiscard]] std::string ReadAndWritten() {
    ProjectTables read;
    read.ProgramFolder = Tables.ProgramFolder;
    read.ProjectFile = Tables.ProjectFile;
    AddForm(read);
    const std::string saved = FormFileText(Tables, 1);
    FormReader reader(read, "C:\\P\\f.ftn", 1);
    EXPECT_EQ(reader.Read(saved), FormReadResult::Read);
    return FormFileText(read, 1);
  }
  [[nodiscard]] bool IsTyped(int row) const {
    const RowBinding* binding = BindingOf(Sheet.Label(row), Edited ? Edited->Id : Kind::Form);
    return row == 0 || (binding != nullptr &&
                        (binding->Shape == RowShape::Text || binding->Shape == RowShape::File));
  }
};

std::vector<Kind> TextKinds() {
  std::vector<Kind> kinds{Kind::Form};
  for (const KindInfo& info : ObjectKinds()) kinds.push_back(info.Id);
  return kinds;
}

/// Types a text and compares the form's file before, after, and after reading.
void TryText(BytesBench& bench, int row, std::string text) {
  // An icon's path is read as a whole one.
  if (bench.Sheet.RowMark(row) == row_mark::kIcon) text.insert(0, "C:\\");
  const std::string where = std::string(bench.Sheet.Label(row)) + " of " + bench.Sheet.SelName() +
                            ": " + ::testing::PrintToString(text);
  const std::vector<std::string> before = bench.Lines();
  bench.Sheet.SelectRow(row);
  bench.Sheet.ApplyText(text);
  bench.Sheet.LeaveRow();
  const std::vector<std::string> after = bench.Lines();
  ASSERT_EQ(before.size(), after.size()) << where;
  int changed = 0;
  for (std::size_t i = 0; i < after.size(); ++i) changed += before[i] == after[i] ? 0 : 1;
  EXPECT_LE(changed, 1) << where;
  // A name is no text of the form file alone: it is kept as typed, and marked when it is no name.
  if (row == 0 && text.find_first_of("{}<>()") != std::string_view::npos) return;
  EXPECT_EQ(bench.ReadAndWritten(), FormFileText(bench.Tables, 1)) << where;
}

class RowBytes : public ::testing::TestWithParam<Kind> {};

TEST_P(RowBytes, EveryByteTypedIntoEveryTextReadsBack) {
  BytesBench bench(GetParam());
  for (int row = 0; row < bench.Sheet.RowCount(); ++row) {
    if (!bench.IsTyped(row)) continue;
    const std::string start = bench.Sheet.Text(row);
    constexpr int kBytesAtOnce = 16;
    for (int first = 0; first < 256; first += kBytesAtOnce) {
      std::string text;
      for (int byte = first; byte < first + kBytesAtOnce; ++byte) {
        text.append("a").push_back(static_cast<char>(byte));
      }
      TryText(bench, row, text);
      if (HasFatalFailure()) return;
    }
    TryText(bench, row, start);
  }
}

TEST_P(RowBytes, RandomTextsOfMarksAndTagWordsReadBack) {
  static const std::vector<std::string> parts{
      "<",     ">",    "String", "Left",        "Width",   "Tip",     "Click",
      "Color", "Hint", "Items",  "Image",       "Icon",    "(",       ")",
      "[",     "]",    "{",      "}",           "5",       "\x95",    "\x8C",
      "\x8D",  "\x8E", "\x8F",   "\r\n",        "\n",      ",",       "\"",
      "&",     " ",    "[Form]", "Transparent", "Enabled", "Visible", std::string(1, '\0')};
  BytesBench bench(GetParam());
  std::mt19937 random(static_cast<unsigned>(GetParam()));
  for (int row = 0; row < bench.Sheet.RowCount(); ++row) {
    if (!bench.IsTyped(row)) continue;
    const std::string start = bench.Sheet.Text(row);
    for (int i = 0; i < 25; ++i) {
      std::string text;
      for (auto n = 1 + random() % 5; n > 0; --n) text += parts[random() % parts.size()];
      TryText(bench, row, text);
      if (HasFatalFailure()) return;
    }
    TryText(bench, row, start);
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, RowBytes, ::testing::ValuesIn(TextKinds()),
                         [](const auto& each) { return std::string(InfoOf(each.param).Name); });

TEST(RowTexts, ABulletInACaptionBecomesAQuestionMarkAndStaysInARowThatKeepsIt) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("Caption", "\x95 one, two");
  EXPECT_EQ(button->Caption, "? one, two");
  EXPECT_EQ(bench.Text("Caption"), "? one, two");
  bench.Type("Hint", "\x95 one");
  EXPECT_EQ(button->ToolTipText, "\x95 one");
  bench.Pick(nullptr);
  bench.Type("Caption", "\x95");
  EXPECT_EQ(bench.Form().Caption, "?");
  bench.Type("Hint", "a\x8D");
  EXPECT_EQ(bench.Record().Hint, "a?");
}

TEST(RowTexts, ATextThatTearsItsRecordIsNotStoredAndTheRowSaysSo) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  for (const char* text : {"<b", "<b>", "<b>C", "<b>Clic"})
    EXPECT_TRUE(bench.Sheet.ApplyText(text));
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Caption")), "");
  EXPECT_FALSE(bench.Sheet.ApplyText("<b>Click"));
  EXPECT_EQ(button->Caption, "<b>Clic");
  EXPECT_EQ(bench.Text("Caption"), "<b>Click") << "the row shows what is typed";
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Caption")).substr(0, 11), "Not stored:");
  bench.View.Texts.clear();
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("Caption"), "<b>Clic");
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Caption")), "");
  EXPECT_FALSE(bench.View.Texts.empty()) << "the mark goes";
}

TEST(RowTexts, ARefusalEndsWithTheNextTextThatIsTaken) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Type("Width", "-5");
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Width")), "Not stored: the number is out of range.");
  bench.Sheet.ApplyText("50");
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Width")), "");
  bench.Type("Caption", ">String");
  bench.Sheet.SelectRow(bench.RowOf("Hint"));
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Hint")), "");
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Caption")), "");
}

}  // namespace
}  // namespace tarnwick
