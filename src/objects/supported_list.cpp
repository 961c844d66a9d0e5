#include "objects/supported_list.h"

#include <array>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "basic/lib/function_table.h"
#include "basic/syntax/tolerances.h"
#include "objects/class_table.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

using basic::SupportLevel;

struct LevelRow {
  SupportLevel Level;
  std::string_view Head;
};
constexpr std::array<LevelRow, 3> kLevels = {{{SupportLevel::Full, "works"},
                                              {SupportLevel::Stored, "kept without effect"},
                                              {SupportLevel::None, "passed over"}}};

std::string NamesOf(const ClassInfo& row, SupportLevel level) {
  std::vector<std::string> names;
  for (const MemberInfo& member : row.Members) {
    if (member.Facts.Level == level) names.emplace_back(member.Facts.Name);
  }
  return Join(names, " ");
}

std::string WhyLeftOut(const basic::LeftOut& word) {
  std::string why(word.Reason);
  if (!word.Instead.empty()) why.append(". Use ").append(word.Instead);
  return why;
}

void Add(std::string& text, std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) text += part;
}

}  // namespace

std::string SupportedList() {
  std::string text;
  for (const ClassInfo& row : ClassRows()) {
    Add(text, {row.Name, row.Note.empty() ? "" : ". ", row.Note, "\n"});
    for (const LevelRow& level : kLevels) {
      const std::string names = NamesOf(row, level.Level);
      if (!names.empty()) Add(text, {"  ", level.Head, ": ", names, "\n"});
    }
  }
  text += "\nLeft out:\n";
  for (const basic::LeftOut& word : basic::LeftOutWords()) {
    Add(text, {"  ", word.Name, ": ", WhyLeftOut(word), "\n"});
  }
  text += "\nAccepted in generated programs, but for --strict:\n";
  for (const basic::ToleranceRow& row : basic::kTolerances) {
    Add(text, {"  ", row.Line, ": ", TextOf(row.Effect), "\n"});
  }
  return text;
}

std::string SupportedPage() {
  std::string text =
      "# What the runner supports\n\n"
      "The runner knows these classes. A member that is *kept without effect* takes its value and "
      "gives it back; a line with one that is *passed over* has a note.\n\n";
  for (const ClassInfo& row : ClassRows()) {
    Add(text, {"## ", row.Name, "\n\n"});
    if (!row.Note.empty()) Add(text, {row.Note, "\n\n"});
    for (const LevelRow& level : kLevels) {
      const std::string names = NamesOf(row, level.Level);
      if (!names.empty()) Add(text, {"*", level.Head, "*: ", names, "\n\n"});
    }
  }
  text += "## Left out\n\n| word | why |\n|---|---|\n";
  for (const basic::LeftOut& word : basic::LeftOutWords()) {
    Add(text, {"| `", word.Name, "` | ", WhyLeftOut(word), " |\n"});
  }
  text +=
      "\n## Accepted in generated programs\n\n"
      "Some lines that Tarnwick generates are irregular. The runner accepts them, the compiler may "
      "not.\n\n| line | |\n|---|---|\n";
  for (const basic::ToleranceRow& row : basic::kTolerances) {
    Add(text, {"| `", row.Line, "` | ", TextOf(row.Effect), " |\n"});
  }
  return text;
}

}  // namespace tarnwick::objects
