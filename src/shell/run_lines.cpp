#include "shell/run_lines.h"

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
    const std::size_t end = text.find('\n');
    std::string_view piece = text.substr(0, end);
    if (end != std::string_view::npos && piece.ends_with('\r')) piece.remove_suffix(1);
    if (open_) {
      lines_.back().Text += piece;
    } else {
      Append({Sort::Print, std::string(piece), 0});
    }
    open_ = end == std::string_view::npos;
    text.remove_prefix(open_ ? text.size() : end + 1);
  }
}

void RunLines::Add(Sort what, std::string text, int source_line) {
  open_ = false;
  Append({what, std::move(text), source_line});
}

}  // namespace tarnwick
