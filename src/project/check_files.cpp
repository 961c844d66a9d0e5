#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "persistence/project_index.h"
#include "persistence/record_check.h"
#include "project/check.h"
#include "text/numbers.h"

namespace tarnwick::project {

namespace {

/// The numbers of the forms that were read from each file.
std::unordered_map<std::string, int> FormsByFile(const ProjectTables& tables) {
  std::unordered_map<std::string, int> forms;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (tables.IsLive(form)) forms.emplace(tables.Form(form)->FileName, form);
  }
  return forms;
}

/// The full paths of the forms that the index on disk names.
std::vector<std::string> ListedForms(const ProjectTables& tables, FilePort& files) {
  std::vector<std::string> paths;
  if (tables.ProjectFile.empty()) return paths;
  const std::optional<std::string> text = files.Read(tables.ProjectFile);
  if (!text) return paths;
  for (const std::string_view file : ReadProjectIndex(*text).FormFiles) {
    paths.push_back(ResolveProjectPath(tables, file, true));
  }
  return paths;
}

FindingId FindingOf(FaultSort sort) noexcept {
  switch (sort) {
    case FaultSort::NoForm:
      return FindingId::NoFormRecord;
    case FaultSort::NoRecord:
      return FindingId::NoRecord;
    case FaultSort::Number:
      return FindingId::NumberLost;
    case FaultSort::Value:
      return FindingId::ValueLost;
  }
  return FindingId::NoRecord;
}

Finding FindingOf(const RecordFault& fault, int form, std::string_view form_name,
                  const std::string& path) {
  Finding finding{.Id = FindingOf(fault.Sort), .Form = form, .Place = std::string(form_name)};
  if (fault.Sort == FaultSort::NoForm) {
    finding.Text = fault.What + ": " + path;
    return finding;
  }
  if (!fault.Name.empty() && fault.Name != form_name) {
    if (!finding.Place.empty()) finding.Place += '.';
    finding.Place += fault.Name;
  }
  finding.Text = "line ";
  AppendNumber(finding.Text, static_cast<std::int64_t>(fault.Line));
  if (!fault.Kind.empty()) finding.Text.append(", [").append(fault.Kind).append("]");
  finding.Text.append(": ").append(fault.What);
  return finding;
}

}  // namespace

std::vector<Finding> CheckFiles(const ProjectTables& tables, FilePort& files) {
  std::vector<Finding> findings;
  const auto report = [&](FindingId id, std::string text) {
    findings.push_back({.Id = id, .Text = std::move(text)});
  };
  const auto forms = FormsByFile(tables);
  std::unordered_set<std::string> met;
  for (const std::string& path : ListedForms(tables, files)) {
    if (!met.insert(path).second) {
      report(FindingId::ListedTwice, "the index names a form twice: " + path);
      continue;
    }
    const std::optional<std::string> text = files.Read(path);
    if (!text) {
      const bool there = files.Exists(path);
      report(there ? FindingId::FileUnreadable : FindingId::FileMissing,
             (there ? "the form cannot be read: " : "the form does not exist: ") + path);
      continue;
    }
    const auto form = forms.find(path);
    const int number = form == forms.end() ? 0 : form->second;
    const std::string_view name = number == 0 ? std::string_view() : tables.Form(number)->Name;
    for (const RecordFault& fault : FaultsOfFormText(*text)) {
      findings.push_back(FindingOf(fault, number, name, path));
    }
  }
  return findings;
}

std::vector<std::string> UnreadForms(const ProjectTables& tables, FilePort& files) {
  std::vector<std::string> unread = ListedForms(tables, files);
  const auto forms = FormsByFile(tables);
  std::erase_if(unread, [&](const std::string& path) { return forms.contains(path); });
  return unread;
}

}  // namespace tarnwick::project
