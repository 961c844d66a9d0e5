#include "objects/supported_list.h"

#include <vector>

#include "basic/lib/function_table.h"
#include "objects/class_table.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

using basic::SupportLevel;

std::string NamesOf(const ClassInfo& row, SupportLevel level) {
  std::vector<std::string> names;
  for (const MemberInfo& member : row.Members) {
    if (member.Facts.Level == level) names.emplace_back(member.Facts.Name);
  }
  return Join(names, " ");
}

void Add(std::string& text, std::string_view head, const std::string& names) {
  if (!names.empty()) text += "  " + std::string(head) + ": " + names + "\n";
}

}  // namespace

std::string SupportedList() {
  std::string text;
  for (const ClassInfo& row : ClassRows()) {
    text += std::string(row.Name) + (row.Note.empty() ? "" : ". " + std::string(row.Note)) + "\n";
    Add(text, "works", NamesOf(row, SupportLevel::Full));
    Add(text, "kept without effect", NamesOf(row, SupportLevel::Stored));
    Add(text, "passed over", NamesOf(row, SupportLevel::None));
  }
  text += "\nLeft out:\n";
  for (const basic::LeftOut& word : basic::LeftOutWords()) {
    text += "  " + std::string(word.Name) + ": " + std::string(word.Reason) +
            (word.Instead.empty() ? "" : ". Use " + std::string(word.Instead)) + "\n";
  }
  return text;
}

}  // namespace tarnwick::objects
