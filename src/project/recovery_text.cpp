#include "project/recovery_text.h"

#include <algorithm>

#include "persistence/form_writer.h"
#include "text/numbers.h"

namespace tarnwick::project {

namespace {

// Each value stands behind its name and its length, so that any byte may be in it:
//   Tarnwick recovery 1
//   When 19 2026-03-01 14:05:09
//   ...
//   Code 18 1.Button1.OnClick      behind the forms: which of them, and the rest of the key
//   Typed 4 Beep
//   End 0
constexpr std::string_view kHead = "Tarnwick recovery 1\r\n";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kEnd = "End 0 \r\n";

void AppendValue(std::string& text, std::string_view name, std::string_view value) {
  text.append(name).push_back(' ');
  AppendNumber(text, static_cast<std::int64_t>(value.size()));
  text.append(" ").append(value).append(kLineEnd);
}

struct Value {
  std::string_view Name;
  std::string_view Text;
};

/// Takes the next value off the text; nothing when it is not whole.
std::optional<Value> TakeValue(std::string_view& text) {
  const std::size_t name = text.find(' ');
  if (name == std::string_view::npos) return std::nullopt;
  const std::size_t number = text.find(' ', name + 1);
  if (number == std::string_view::npos) return std::nullopt;
  std::size_t size = 0;
  for (const char c : text.substr(name + 1, number - name - 1)) {
    if (c < '0' || c > '9' || size > text.size()) return std::nullopt;
    size = size * 10 + static_cast<std::size_t>(c - '0');
  }
  const std::string_view rest = text.substr(number + 1);
  if (size > rest.size() || rest.substr(size, kLineEnd.size()) != kLineEnd) return std::nullopt;
  const Value value{text.substr(0, name), rest.substr(0, size)};
  text = rest.substr(size + kLineEnd.size());
  return value;
}

/// Where the code of a key such as "2.Button1.OnClick" belongs; null for a form that is not there.
std::string* CodeIn(KeptProject& project, std::string_view key) {
  const std::size_t dot = std::min(key.find('.'), key.size());
  const auto number = static_cast<std::size_t>(ToInt16(Val(key.substr(0, dot))).value_or(0));
  if (number < 1 || number > project.Forms.size() || dot == key.size()) return nullptr;
  return &project.Forms[number - 1].Code[std::string(key.substr(dot))];
}

}  // namespace

std::string KeptText(ProjectTables& tables) {
  std::string text;
  AppendValue(text, "Project", tables.ProjectFile);
  AppendValue(text, "Main", tables.MainFormName);
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    // A window that is not made yet is made by asking for it, as a save does.
    tables.User(form);
    const FormRec* record = tables.Form(form);
    AppendValue(text, "Form", record->Name);
    AppendValue(text, "File", record->FileName);
    AppendValue(text, "Text", FormFileText(tables, form));
  }
  return text.append(kEnd);
}

std::string WithTypedCode(std::string kept_text, const ProjectTables& tables,
                          const TypedCode& code) {
  kept_text.resize(kept_text.size() - kEnd.size());
  std::int64_t number = 0;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    ++number;
    std::string key = "Form";
    AppendNumber(key, std::int64_t{form});
    key += '.';
    for (auto at = code.lower_bound(key); at != code.end() && at->first.starts_with(key); ++at) {
      std::string kept;
      AppendNumber(kept, number);
      AppendValue(kept_text, "Code", kept.append(at->first, key.size() - 1));
      AppendValue(kept_text, "Typed", at->second);
    }
  }
  return kept_text.append(kEnd);
}

std::string KeptFileText(std::string_view when, std::string_view kept_text) {
  std::string text(kHead);
  AppendValue(text, "When", when);
  return text.append(kept_text);
}

std::optional<KeptProject> ReadKeptFile(std::string_view text) {
  if (!text.starts_with(kHead)) return std::nullopt;
  text.remove_prefix(kHead.size());
  KeptProject project;
  std::string* typed = nullptr;
  while (const std::optional<Value> value = TakeValue(text)) {
    if (value->Name == "End") return project;
    if (value->Name == "When") project.When = value->Text;
    if (value->Name == "Project") project.ProjectFile = value->Text;
    if (value->Name == "Main") project.MainForm = value->Text;
    if (value->Name == "Form") project.Forms.push_back({std::string(value->Text), "", ""});
    if (project.Forms.empty()) continue;
    if (value->Name == "File") project.Forms.back().File = value->Text;
    if (value->Name == "Text") project.Forms.back().Text = value->Text;
    if (value->Name == "Code") typed = CodeIn(project, value->Text);
    if (value->Name == "Typed" && typed != nullptr) *typed = value->Text;
  }
  return std::nullopt;
}

}  // namespace tarnwick::project
