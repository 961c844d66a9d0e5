#include "cli/check_code.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "basic/check/front_end.h"
#include "codegen/program_source.h"
#include "objects/class_table.h"
#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr std::string_view kInclude = "Tarnwick1.lib";
constexpr std::string_view kDeclarations = "'---Public Declarations";

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

/// Finds out to which form, object and event a line of the generated text belongs.
class Places {
 public:
  Places(ProjectTables& tables, const std::string& text) : lines_(Split(text, "\n")) {
    for (int number = 1; number <= tables.FormsCount; ++number) {
      if (tables.IsLive(number)) forms_.push_back({tables.Form(number), tables.User(number)});
    }
    for (std::size_t i = 0; i < lines_.size() && markers_.size() < forms_.size(); ++i) {
      if (!lines_[i].starts_with(kDeclarations)) continue;
      markers_.push_back(i + 1);
      // Declarations that hold the marker themselves are passed over as a whole.
      i += LineCount(forms_[markers_.size() - 1].Record->DeclarePbl);
    }
  }

  /// "Form1.Button1.OnClick, line 3"; `line` counts from 1.
  [[nodiscard]] std::string Of(std::size_t line) const {
    for (std::size_t i = 0; i < markers_.size(); ++i) {
      const FormRec& form = *forms_[i].Record;
      if (line > markers_[i] && line <= markers_[i] + LineCount(form.DeclarePbl)) {
        return form.Name + ", public declarations, line " + std::to_string(line - markers_[i]);
      }
    }
    for (std::size_t at = std::min(line, lines_.size()); at > 0; --at) {
      const std::string_view text = Trim(lines_[at - 1]);
      if (at < line && StartsWithFolded(text, "End Sub")) break;
      if (StartsWithFolded(text, "Sub ")) {
        return Event(text.substr(4)) + ", line " + std::to_string(line - at);
      }
    }
    const std::string_view text = line <= lines_.size() ? Trim(lines_[line - 1]) : "";
    return "the line " + std::string(text.substr(0, text.find('\r')));
  }

 private:
  struct LiveForm {
    const FormRec* Record;
    DesignForm* User;
  };

  [[nodiscard]] static std::size_t LineCount(const std::string& code) {
    return static_cast<std::size_t>(std::count(code.begin(), code.end(), '\n')) + 1;
  }

  /// "Form1.Button1.OnClick" of the head of its Sub.
  [[nodiscard]] std::string Event(std::string_view head) const {
    const std::string_view name = head.substr(0, head.find_first_of(" (\r"));
    const std::size_t line = name.rfind("_On");
    if (line == std::string_view::npos) return std::string(name);
    const std::string_view owner = name.substr(0, line);
    const std::string event = "." + std::string(name.substr(line + 1));
    for (const LiveForm& form : forms_) {
      if (EqualsFolded(form.Record->Name, owner)) return form.Record->Name + event;
      for (const ControlRef& control : form.User->Controls()) {
        const std::string plain = ReplaceAll(ReplaceAll(control->Tag, "(", ""), ")", "");
        if (EqualsFolded(plain, owner)) return form.Record->Name + "." + control->Tag + event;
      }
    }
    return std::string(owner) + event;
  }

  std::vector<std::string_view> lines_;
  std::vector<LiveForm> forms_;
  std::vector<std::size_t> markers_;  ///< line of the marker of each form, from 1
};

}  // namespace

std::vector<std::string> CodeFaults(ProjectTables& tables, FilePort& files,
                                    const std::string& program_folder) {
  GeneratorState state;
  const std::string text = GenerateSource(tables, state);
  GeneratedSources sources(text, files, program_folder);
  const basic::FrontEndResult checked =
      basic::CheckProgram("C:\\Generated.bas", sources, objects::ClassTable(), {});
  std::vector<std::string> faults;
  if (sources.LacksInclude()) return faults;
  const Places places(tables, text);
  for (const basic::Message& message : checked.Found.All()) {
    const bool error = message.Level == basic::Severity::Error;
    if (!error || message.At.File != 0 || Contains(message.Text, basic::kNotSupported)) continue;
    std::string to_do = message.Remedy.empty() ? "correct the code" : message.Remedy;
    to_do.front() = LowerByte(to_do.front());
    faults.push_back(places.Of(message.At.Line) + ": " + message.Text + "; " + to_do);
  }
  return faults;
}

}  // namespace tarnwick
