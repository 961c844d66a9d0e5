#include "codegen/source_map.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarnwick {

namespace {

/// The number of line ends that begin in a part of a text.
std::size_t CountLineEnds(std::string_view text, std::size_t from, std::size_t to) {
  std::size_t ends = 0;
  for (std::size_t at = from; at < to; ++at) {
    const bool pair = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
    ends += (text[at] == '\n' || text[at] == '\r') && !pair ? 1 : 0;
  }
  return ends;
}

}  // namespace

std::string_view LineOf(std::string_view text, std::size_t number) {
  constexpr std::string_view kEnds = "\r\n";
  if (number == 0) return {};
  for (std::size_t n = 1; n < number; ++n) {
    const std::size_t end = text.find_first_of(kEnds);
    if (end == std::string_view::npos) return {};
    text.remove_prefix(end + (text.substr(end).starts_with(kEnds) ? kEnds.size() : 1));
  }
  return text.substr(0, text.find_first_of(kEnds));
}

void SourceMap::Follow(const std::vector<TextChange>& changes) {
  std::vector<Stretch> moved;
  moved.reserve(stretches_.size());
  std::uint16_t lost = 0;  // by these changes, in the part at hand
  const auto go_on_behind = [&](const TextChange& change) {
    if (!change.LineEndGone || moved.empty()) return;
    Stretch rest = moved.back();
    rest.Start = static_cast<std::uint32_t>(change.After);
    ++rest.Lost;
    ++lost;
    moved.push_back(rest);
  };
  auto next = changes.begin();
  for (Stretch stretch : stretches_) {
    for (; next != changes.end() && next->Before <= stretch.Start; ++next) go_on_behind(*next);
    if (stretch.Lost == 0) {
      lost = 0;
    } else {
      stretch.Lost = static_cast<std::uint16_t>(stretch.Lost + lost);
    }
    std::size_t start = stretch.Start;
    if (next != changes.begin()) start = std::prev(next)->After + (start - std::prev(next)->Before);
    // Bytes that went are where the change is.
    if (next != changes.end()) start = std::min(start, next->After);
    stretch.Start = static_cast<std::uint32_t>(start);
    moved.push_back(stretch);
  }
  for (; next != changes.end(); ++next) go_on_behind(*next);
  stretches_ = std::move(moved);
}

void SourceMap::CountLines(std::string_view text) {
  std::size_t at = 0;
  lines_ = 1;
  for (Stretch& stretch : stretches_) {
    lines_ += CountLineEnds(text, at, stretch.Start);
    at = stretch.Start;
    // The line that was joined belongs to the part as it was; the next one goes on behind it.
    stretch.Start = static_cast<std::uint32_t>(stretch.Lost == 0 ? lines_ : lines_ + 1);
  }
  lines_ += CountLineEnds(text, at, text.size());
}

std::optional<SourceLine> SourceMap::At(std::size_t line) const {
  const auto behind = std::upper_bound(
      stretches_.begin(), stretches_.end(), line,
      [](std::size_t wanted, const Stretch& stretch) { return wanted < stretch.Start; });
  if (line > lines_ || behind == stretches_.begin()) return std::nullopt;
  const auto found = std::prev(behind);
  auto part = found;
  while (part->Lost != 0 && part != stretches_.begin()) --part;
  return SourceLine{found->Place, line - part->Start + found->Lost};
}

}  // namespace tarnwick
