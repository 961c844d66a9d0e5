// What a run reports on standard error: messages with their places, and how it ended.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "basic/check/front_end.h"
#include "basic/vm/run_result.h"

namespace tarnwick::hosts {

/// Exit codes of a run.
enum class RunExit : int {
  Ended = 0,
  Faulty = 1,  ///< the source has errors or cannot be read
  Usage = 2,
  Error = 3,  ///< a run-time error
  Limit = 4,
  Stopped = 5,
  Fault = 6,  ///< the runner itself failed
};

/// Who reads the lines.
enum class ReportForm {
  People,  ///< `file:line:column: error: text`
  Tab      ///< `error`, file, line, column, length and text with tabs between
};

/// Writes messages, each a line in UTF-8. Files are named by their paths on this machine. A
/// message without a place names the program instead, or has an empty file and line 0.
class RunReport {
 public:
  /// `program` is the name that stands for "no place".
  RunReport(std::FILE* err, ReportForm form, std::string program)
      : err_(err), form_(form), program_(std::move(program)) {}

  /// The files that the places count in.
  void SetFiles(const basic::SourceSet& files);
  /// "/home/me/a.bas:3:1", or the program's name.
  [[nodiscard]] std::string PlaceText(basic::SourcePlace at) const;
  /// `kind` is "error" or "note".
  void Say(basic::SourcePlace at, std::string_view kind, std::string_view text,
           std::string_view remedy = {}) const;
  /// The running calls, innermost first; only for people.
  void SayChain(const std::vector<basic::CallSite>& chain) const;
  /// Errors and notes of a check.
  void SayAll(const basic::Messages& messages) const;
  /// Notes, the error with its calls; returns the exit code.
  [[nodiscard]] RunExit SayResult(const basic::RunResult& result) const;
  /// A line of a word and a text for other programs: "start", "end"; nothing for people.
  void Signal(std::string_view word, std::string_view text = {}) const;
  /// Asks the program that reads the lines to show a place.
  void Show(basic::SourcePlace at) const;

 private:
  void Write(const std::string& line) const;
  [[nodiscard]] std::string FileOf(basic::SourcePlace at) const;

  std::FILE* err_;
  ReportForm form_;
  std::string program_;
  std::vector<std::string> files_;
};

/// The calls as lines of text for people, long chains shortened in the middle.
[[nodiscard]] std::vector<std::string> ChainLines(const RunReport& report,
                                                  const std::vector<basic::CallSite>& chain);

}  // namespace tarnwick::hosts
