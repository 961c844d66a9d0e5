// The runner's report on its standard error: lines of fields with tabs between, in UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "platform/runner_port.h"

namespace tarnwick {

/// Takes the bytes in pieces of any size and passes on what the whole lines say. Lines that are no
/// report, such as what the runner's libraries print, are passed over.
///
///   error<TAB>file<TAB>line<TAB>column<TAB>length<TAB>text     note and show alike
///   start
///   end<TAB>code
class RunReportReader {
 public:
  /// `listener` outlives the reader. The end of a run is not passed on: that is the process's own.
  explicit RunReportReader(RunListener& listener) : listener_(&listener) {}
  void Take(std::string_view bytes);
  /// The last line that was no report, in the code page: what a runner that failed has to say. ""
  /// when there was none.
  [[nodiscard]] const std::string& LastOther() const noexcept { return last_other_; }

 private:
  void TakeLine(std::string_view line);

  RunListener* listener_;
  std::string rest_;  ///< the start of a line whose end has not come
  std::string last_other_;
};

/// UTF-8 text in pieces, whose characters may be cut.
class Utf8Pieces {
 public:
  /// The text in the code page up to the last whole character.
  [[nodiscard]] std::string Take(std::string_view bytes);

 private:
  std::string rest_;
};

/// How a run ended, by the runner's exit code.
[[nodiscard]] RunnerEnd RunnerEndOf(int exit_code) noexcept;

}  // namespace tarnwick
