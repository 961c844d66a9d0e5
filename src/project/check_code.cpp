#include "project/check_code.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "basic/check/front_end.h"
#include "codegen/program_source.h"
#include "objects/class_table.h"
#include "project/program_place.h"
#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick::project {

namespace {

/// The generated text, and the include file wherever it lies.
class GeneratedSources final : public basic::SourceReader {
 public:
  GeneratedSources(std::string text, FilePort& files, std::string folder)
      : text_(std::move(text)), files_(files), folder_(std::move(folder)) {}

  std::optional<std::string> ReadSource(const std::string& path) override {
    if (!main_read_) {
      main_read_ = true;
      return text_;
    }
    std::optional<std::string> bytes = files_.Read(path);
    if (!bytes && EqualsFolded(BareName(path), basic::kOwnInclude)) {
      bytes = files_.Read(folder_ + "\\" + std::string(basic::kOwnInclude));
      missing_ = missing_ || !bytes;
    }
    return bytes;
  }
  [[nodiscard]] bool LacksInclude() const { return missing_; }

 private:
  std::string text_;
  FilePort& files_;
  std::string folder_;
  bool main_read_ = false;
  bool missing_ = false;
};

/// The finding for what is wrong in a line of the text.
Finding FindingAt(const ProjectTables& tables, const SourceMap& map, std::string_view text,
                  std::size_t number) {
  Finding finding{.Id = FindingId::CodeFaulty};
  const std::string_view line = LineOf(text, number);
  const std::optional<SourceLine> from = map.At(number);
  std::optional<ProgramPlace> place = from ? PlaceOfLine(tables, *from, line) : std::nullopt;
  if (!place) {
    finding.Place = "the line " + std::string(Trim(line));
    return finding;
  }
  finding.Form = place->Form;
  finding.Place = PlaceText(tables, *place);
  // The code of an item goes by its name alone.
  const bool item = place->Id == Kind::PopUpMenu && place->What == ProgramPlace::Sort::Code &&
                    place->Of != Event::OnPopUp;
  if (IsObjectKind(place->Id) && !item) {
    finding.Of = place->Id;
    finding.Index = place->Index;
  }
  finding.In = std::move(place);
  return finding;
}

}  // namespace

std::vector<Finding> CheckCode(ProjectTables& tables, FilePort& files,
                               const std::string& include_folder) {
  GeneratorState state;
  SourceMap map;
  const std::string text = GenerateSource(tables, state, &map);
  map.CountLines(text);
  GeneratedSources sources(text, files, include_folder);
  const basic::FrontEndResult checked =
      basic::CheckProgram("C:\\Generated.bas", sources, objects::ClassTable(), {});
  std::vector<Finding> findings;
  if (sources.LacksInclude()) return findings;
  for (const basic::Message& message : checked.Found.All()) {
    const bool error = message.Level == basic::Severity::Error;
    if (!error || message.At.File != 0 || Contains(message.Text, basic::kNotSupported)) continue;
    Finding finding = FindingAt(tables, map, text, message.At.Line);
    finding.Text = message.Text;
    finding.Remedy = message.Remedy;
    if (!finding.Remedy.empty()) finding.Remedy.front() = LowerByte(finding.Remedy.front());
    findings.push_back(std::move(finding));
  }
  return findings;
}

void AddCodeFaults(std::vector<Finding>& findings, ProjectTables& tables, FilePort& files,
                   const std::string& include_folder) {
  std::vector<Finding> faults = CheckCode(tables, files, include_folder);
  const bool sound = std::none_of(findings.begin(), findings.end(), [](const Finding& finding) {
    return finding.How() == Severity::Error;
  });
  for (Finding& fault : faults) {
    const bool own = fault.In && fault.In->What != ProgramPlace::Sort::Property;
    if (sound || own) findings.push_back(std::move(fault));
  }
}

}  // namespace tarnwick::project
