#include "fakes/any_text.h"

namespace tarnwick::test {

std::vector<TextField> TextFieldsOf(FakeProject& project) {
  std::vector<TextField> fields;
  FormRec& record = project.Form();
  DesignForm& window = project.User();
  for (std::string* text : {&record.Name, &record.Hint, &record.ImageFile, &window.Caption}) {
    fields.push_back({text, "[Form]"});
  }
  fields.push_back({&record.DeclarePbl, "[DeclarePbl]"});
  for (const ControlRef& control : window.Controls()) {
    if (!control->Visible || control->Index == 0 || !IsObjectKind(control->Id)) continue;
    const std::string line = "[" + std::string(InfoOf(control->Id).Name) + "]";
    for (std::string* text : {&control->Tag, &control->Caption, &control->Text,
                              &control->ToolTipText, &control->FontName}) {
      fields.push_back({text, line});
    }
    if (auto* const records = record.Objects(control->Id)) {
      ObjectRec& object = *records->Ensure(control->Index);
      for (std::string* text : {&object.ImageFile, &object.Items, &object.Title, &object.Filter,
                                &object.InitialDir, &object.FileName}) {
        fields.push_back({text, line});
      }
    }
    if (control->Id == Kind::HtmlViewer) {
      fields.push_back({&record.HtmlViewers.Ensure(control->Index)->Navigate, line});
    } else if (control->Id == Kind::PopUpMenu) {
      fields.push_back({&record.PopUps.Ensure(control->Index)->PopUpMenu, line});
    }
  }
  return fields;
}

std::vector<std::string> RecordLines(std::string_view text) {
  std::vector<std::string> lines;
  for (const std::string_view line : Split(text, kLineEnd)) {
    if (!line.empty()) lines.emplace_back(line);
  }
  return lines;
}

std::string LostRecord(const std::string& before, const std::string& after,
                       std::string_view changed) {
  const std::vector<std::string> old_lines = RecordLines(before);
  const std::vector<std::string> lines = RecordLines(after);
  std::size_t same = 0;
  while (same < old_lines.size() && same < lines.size() && old_lines[same] == lines[same]) ++same;
  if (same == old_lines.size()) return "";
  if (!std::string_view(old_lines[same]).starts_with(changed)) return old_lines[same];
  std::size_t behind = 0;
  while (same + behind + 1 < old_lines.size() && behind < lines.size() - same &&
         old_lines[old_lines.size() - 1 - behind] == lines[lines.size() - 1 - behind]) {
    ++behind;
  }
  return same + behind + 1 == old_lines.size() ? "" : old_lines[old_lines.size() - 1 - behind];
}

}  // namespace tarnwick::test
