#include "cli/check_code.h"

#include <cstddef>
#include <optional>
#include <string_view>

#include "basic/check/front_end.h"
#include "codegen/program_source.h"
#include "objects/class_table.h"
#include "project/program_place.h"
#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr std::string_view kInclude = "Tarnwick1.lib";

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
    if (!bytes && EqualsFolded(BareName(path), kInclude)) {
      bytes = files_.Read(folder_ + "\\" + std::string(kInclude));
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

/// "Form1.Button1.OnClick, line 3", or the line itself where the user has no place for it.
std::string PlaceOf(const ProjectTables& tables, const SourceMap& map, std::string_view text,
                    std::size_t number) {
  const std::string_view line = LineOf(text, number);
  const std::optional<SourceLine> from = map.At(number);
  const auto place = from ? project::PlaceOfLine(tables, *from, line) : std::nullopt;
  return place ? project::PlaceText(tables, *place) : "the line " + std::string(Trim(line));
}

}  // namespace

std::vector<std::string> CodeFaults(ProjectTables& tables, FilePort& files,
                                    const std::string& program_folder) {
  GeneratorState state;
  SourceMap map;
  const std::string text = GenerateSource(tables, state, &map);
  map.CountLines(text);
  GeneratedSources sources(text, files, program_folder);
  const basic::FrontEndResult checked =
      basic::CheckProgram("C:\\Generated.bas", sources, objects::ClassTable(), {});
  std::vector<std::string> faults;
  if (sources.LacksInclude()) return faults;
  for (const basic::Message& message : checked.Found.All()) {
    const bool error = message.Level == basic::Severity::Error;
    if (!error || message.At.File != 0 || Contains(message.Text, basic::kNotSupported)) continue;
    std::string to_do = message.Remedy.empty() ? "correct the code" : message.Remedy;
    to_do.front() = LowerByte(to_do.front());
    faults.push_back(PlaceOf(tables, map, text, message.At.Line) + ": " + message.Text + "; " +
                     to_do);
  }
  return faults;
}

}  // namespace tarnwick
