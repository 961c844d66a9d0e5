#include "hosts/run_report.h"

#include <algorithm>

#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::hosts {
namespace {

/// A text as one field of a line.
std::string OneField(std::string_view text) {
  std::string field = CodePageToUtf8(text);
  std::replace_if(
      field.begin(), field.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return field;
}

/// Error and note of an end that is no plain one.
struct EndRow {
  basic::RunEnd End;
  RunExit Exit;
  const char* Kind;
  const char* Text;
};
constexpr EndRow kEnds[] = {
    {basic::RunEnd::StepLimit, RunExit::Limit, "error", "Stopped at the limit of steps"},
    {basic::RunEnd::TimeLimit, RunExit::Limit, "error", "Stopped at the limit of time"},
    {basic::RunEnd::Stopped, RunExit::Stopped, "note", "Stopped"},
};

}  // namespace

void RunReport::SetFiles(const basic::SourceSet& files) {
  files_.clear();
  for (std::size_t i = 0; i < files.Count(); ++i) {
    files_.push_back(files.File(static_cast<std::uint16_t>(i)).Path);
  }
}

std::string RunReport::FileOf(basic::SourcePlace at) const {
  if (at.Line == 0 || at.File >= files_.size()) return {};
  const std::string native = PathToNative(files_[at.File]);
  return native.empty() ? CodePageToUtf8(files_[at.File]) : native;
}

std::string RunReport::PlaceText(basic::SourcePlace at) const {
  const std::string file = FileOf(at);
  if (file.empty()) return program_;
  return file + ":" + std::to_string(at.Line) + ":" + std::to_string(at.Column);
}

void RunReport::Write(const std::string& line) const {
  std::fwrite(line.data(), 1, line.size(), err_);
  std::fflush(err_);
}

void RunReport::Say(basic::SourcePlace at, std::string_view kind, std::string_view text,
                    std::string_view remedy) const {
  std::string words = OneField(text);
  if (!remedy.empty()) words += (words.ends_with('.') ? " " : ". ") + OneField(remedy);
  if (form_ == ReportForm::People) {
    Write(PlaceText(at) + ": " + std::string(kind) + ": " + words + "\n");
  } else {
    Write(std::string(kind) + "\t" + FileOf(at) + "\t" + std::to_string(at.Line) + "\t" +
          std::to_string(at.Column) + "\t" + std::to_string(at.Length) + "\t" + words + "\n");
  }
}

std::vector<std::string> ChainLines(const RunReport& report,
                                    const std::vector<basic::CallSite>& chain) {
  // A runaway recursion is the same line ten thousand times.
  constexpr std::size_t kMostLines = 20;
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < chain.size() && chain.size() > 1; ++i) {
    if (chain.size() > kMostLines && i == kMostLines / 2) {
      i = chain.size() - kMostLines / 2;
      lines.emplace_back("...");
    }
    const std::string name =
        chain[i].Procedure.empty() ? "the program" : CodePageToUtf8(chain[i].Procedure);
    lines.push_back("in " + name + ", " + report.PlaceText(chain[i].At));
  }
  return lines;
}

void RunReport::SayChain(const std::vector<basic::CallSite>& chain) const {
  if (form_ != ReportForm::People) return;
  for (const std::string& line : ChainLines(*this, chain)) Write("  " + line + "\n");
}

void RunReport::SayAll(const basic::Messages& messages) const {
  for (const basic::Message& message : messages.All()) {
    const bool error = message.Level == basic::Severity::Error;
    Say(message.At, error ? "error" : "note", message.Text, message.Remedy);
  }
}

RunExit RunReport::SayResult(const basic::RunResult& result) const {
  for (const basic::RunNote& note : result.Notes) Say(note.At, "note", note.Text);
  const basic::SourcePlace at =
      result.Chain.empty() ? basic::SourcePlace{} : result.Chain.front().At;
  if (result.End == basic::RunEnd::Error) {
    Say(at, "error", result.Text);
    SayChain(result.Chain);
    return RunExit::Error;
  }
  for (const EndRow& row : kEnds) {
    if (row.End != result.End) continue;
    // A program that stopped this one knows it by the exit code.
    if (row.Exit == RunExit::Stopped && form_ == ReportForm::Tab) return row.Exit;
    Say(at, row.Kind, row.Text);
    return row.Exit;
  }
  return RunExit::Ended;
}

void RunReport::Signal(std::string_view word, std::string_view text) const {
  if (form_ != ReportForm::Tab) return;
  std::string line(word);
  if (!text.empty()) line.append("\t").append(OneField(text));
  Write(line.append("\n"));
}

void RunReport::Show(basic::SourcePlace at) const {
  if (form_ == ReportForm::Tab) Say(at, "show", {});
}

}  // namespace tarnwick::hosts
