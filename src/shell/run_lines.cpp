#include "shell/run_lines.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

void RunLines::Append(Line line) {
  // In one go for many lines, so that a line costs the same however many came before it.
  if (lines_.size() >= 2 * kMost) {
    lines_.erase(lines_.begin(), lines_.end() - static_cast<std::ptrdiff_t>(kMost));
  }
  lines_.push_back(std::move(line));
}

void RunLines::Print(std::string_view text) {
  while (!text.empty()) {
    if (open_ && lines_.back().Text.size() >= kLongest && text.front() != '\n') open_ = false;
    if (!open_) Append({});
    std::string& line = lines_.back().Text;
    const std::string_view piece =
        text.substr(0, std::min(text.find('\n'), kLongest - line.size()));
    line += piece;
    text.remove_prefix(piece.size());
    open_ = !text.starts_with('\n');
    if (open_) continue;
    text.remove_prefix(1);
    if (line.ends_with('\r')) line.pop_back();
  }
}

void RunLines::Add(Sort what, std::string text, int source_line) {
  open_ = false;
  Append({what, std::move(text), source_line});
}

}  // namespace tarnwick
