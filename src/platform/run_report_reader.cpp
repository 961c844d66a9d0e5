#include "platform/run_report_reader.h"

#include <cstddef>
#include <optional>
#include <vector>

#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::size_t kMessageFields = 6;
/// What is longer is no report.
constexpr std::size_t kLongestLine = 1'000'000;

int NumberOf(std::string_view field) {
  return ToInt32(Val(field)).value_or(0);
}

/// How many bytes at the end of a text are the start of a character that is not whole.
std::size_t CutBytes(std::string_view utf8) {
  constexpr std::size_t kLongest = 4;
  for (std::size_t back = 1; back < kLongest && back <= utf8.size(); ++back) {
    const auto byte = static_cast<unsigned char>(utf8[utf8.size() - back]);
    if (byte < 0x80) return 0;
    if (byte < 0xC0) continue;
    const std::size_t size = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
    return back < size ? back : 0;
  }
  return 0;
}

}  // namespace

void RunReportReader::Take(std::string_view bytes) {
  rest_ += bytes;
  std::size_t start = 0;
  for (std::size_t end = rest_.find('\n'); end != std::string::npos;
       end = rest_.find('\n', start)) {
    TakeLine(std::string_view(rest_).substr(start, end - start));
    start = end + 1;
  }
  rest_.erase(0, start);
  if (rest_.size() > kLongestLine) rest_.clear();
}

void RunReportReader::TakeLine(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (line == "start") return listener_->RunStarted();
  const std::vector<std::string_view> fields = Split(line, "\t");
  const std::string_view word = fields.front();
  if (fields.size() < kMessageFields || (word != "error" && word != "note" && word != "show")) {
    if (word != "end" && !Trim(line).empty()) last_other_ = Utf8ToCodePage(Trim(line));
    return;
  }
  // What the text holds of tabs belongs to it.
  const auto text_at = static_cast<std::size_t>(fields[kMessageFields - 1].data() - line.data());
  const RunMessage message{word == "error" ? RunSeverity::Error : RunSeverity::Note,
                           Utf8ToCodePage(fields[1]),
                           NumberOf(fields[2]),
                           NumberOf(fields[3]),
                           NumberOf(fields[4]),
                           Utf8ToCodePage(line.substr(text_at))};
  if (word == "show") return listener_->RunShows(message);
  listener_->RunMessaged(message);
}

std::string Utf8Pieces::Take(std::string_view bytes) {
  rest_ += bytes;
  const std::size_t whole = rest_.size() - CutBytes(rest_);
  std::string text = Utf8ToCodePage(std::string_view(rest_).substr(0, whole));
  rest_.erase(0, whole);
  return text;
}

RunnerEnd RunnerEndOf(int exit_code) noexcept {
  const bool known = exit_code >= 0 && exit_code <= static_cast<int>(RunnerEnd::RunnerFault);
  return known ? static_cast<RunnerEnd>(exit_code) : RunnerEnd::RunnerFault;
}

}  // namespace tarnwick
