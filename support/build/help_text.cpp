#include "build/help_text.h"

#include <algorithm>
#include <string_view>

namespace tarnwick::support {

namespace {

void AddExample(HelpLines& lines, const std::vector<std::string>& example) {
  lines.emplace_back();
  lines.emplace_back("Example:");
  for (const std::string& line : example) lines.push_back(line.empty() ? "" : "  " + line);
}

bool SameBut(const MemberEntry& a, const MemberEntry& b) {
  return a.Category == b.Category && a.Signature == b.Signature && a.Access == b.Access &&
         a.Default == b.Default && a.Values == b.Values && a.Description == b.Description;
}

std::string_view AccessText(std::string_view access) {
  if (access == "R") return ", read only";
  if (access == "W") return ", can only be set";
  return {};
}

/// "number=name;number=name" as one indented line each.
void AddValues(HelpLines& lines, std::string_view values) {
  while (!values.empty()) {
    const std::size_t end = std::min(values.find(';'), values.size());
    std::string line = "  " + std::string(values.substr(0, end));
    const std::size_t sign = line.find('=');
    if (sign != std::string::npos) line.replace(sign, 1, " = ");
    lines.push_back(std::move(line));
    values.remove_prefix(std::min(end + 1, values.size()));
  }
}

void AddMember(HelpLines& lines, const MemberEntry& member, std::string_view kinds) {
  lines.push_back(member.Name + ", " + member.Category + " of " + std::string(kinds));
  std::string form = member.Signature + std::string(AccessText(member.Access));
  if (!member.Default.empty()) form += ", starts as " + member.Default;
  lines.push_back(std::move(form));
  lines.push_back(member.Description);
  AddValues(lines, member.Values);
}

}  // namespace

HelpLines HelpOf(const FunctionEntry& function) {
  HelpLines lines{function.Syntax, ""};
  lines.insert(lines.end(), function.Text.begin(), function.Text.end());
  AddExample(lines, function.Example);
  return lines;
}

HelpLines HelpOf(const KindEntry& kind) {
  HelpLines lines{kind.Name + ", in the language " + kind.Class, ""};
  lines.insert(lines.end(), kind.Text.begin(), kind.Text.end());
  AddExample(lines, kind.Example);
  return lines;
}

HelpLines HelpOf(std::span<const MemberEntry* const> members) {
  HelpLines lines;
  std::vector<const MemberEntry*> left(members.begin(), members.end());
  while (!left.empty()) {
    const MemberEntry& first = *left.front();
    std::string kinds;
    std::erase_if(left, [&](const MemberEntry* member) {
      if (!SameBut(*member, first)) return false;
      kinds += (kinds.empty() ? "" : ", ") + member->Kind;
      return true;
    });
    if (!lines.empty()) lines.emplace_back();
    AddMember(lines, first, kinds);
  }
  return lines;
}

}  // namespace tarnwick::support
