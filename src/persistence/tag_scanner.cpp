#include "persistence/tag_scanner.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "persistence/stored_text.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// How a value comes out of its stored form.
enum class Restore : std::uint8_t { Plain, Lines, Commas, Items, Code };

struct TagInfo {
  std::string_view Word;
  Restore How;
};

constexpr std::array<TagInfo, 47> kTags{{
    {"left", Restore::Plain},        {"top", Restore::Plain},
    {"width", Restore::Plain},       {"height", Restore::Plain},
    {"string", Restore::Lines},      {"items", Restore::Items},
    {"tip", Restore::Commas},        {"visible", Restore::Plain},
    {"enabled", Restore::Plain},     {"image", Restore::Plain},
    {"cursor", Restore::Plain},      {"icon", Restore::Plain},
    {"fontname", Restore::Plain},    {"fontsize", Restore::Plain},
    {"fontclr", Restore::Plain},     {"taborder", Restore::Plain},
    {"border", Restore::Plain},      {"color", Restore::Plain},
    {"wndstate", Restore::Plain},    {"center", Restore::Plain},
    {"fontbold", Restore::Plain},    {"fontitalic", Restore::Plain},
    {"readonly", Restore::Plain},    {"hidescrollbars", Restore::Plain},
    {"scrllbars", Restore::Plain},   {"stretch", Restore::Plain},
    {"autosize", Restore::Plain},    {"transparent", Restore::Plain},
    {"multiselect", Restore::Plain}, {"sorted", Restore::Plain},
    {"columns", Restore::Plain},     {"checked", Restore::Plain},
    {"close", Restore::Code},        {"resize", Restore::Code},
    {"show", Restore::Code},         {"change", Restore::Code},
    {"mousemove", Restore::Code},    {"mouseup", Restore::Code},
    {"mousedown", Restore::Code},    {"keyup", Restore::Code},
    {"keydown", Restore::Code},      {"keypress", Restore::Code},
    {"dblclick", Restore::Code},     {"click", Restore::Code},
    {"paint", Restore::Code},        {"hint", Restore::Code},
    {"enter", Restore::Code},
}};

/// Tags by the letter that touches the bracket: the last one before "<", the first one after ">".
struct TagIndex {
  std::array<std::vector<std::uint8_t>, 256> ByLast;
  std::array<std::vector<std::uint8_t>, 256> ByFirst;
};

const TagIndex& Index() {
  static const TagIndex index = [] {
    TagIndex made;
    for (std::size_t tag = 0; tag < kTags.size(); ++tag) {
      const std::string_view word = kTags[tag].Word;
      made.ByLast[static_cast<unsigned char>(word.back())].push_back(
          static_cast<std::uint8_t>(tag));
      made.ByFirst[static_cast<unsigned char>(word.front())].push_back(
          static_cast<std::uint8_t>(tag));
    }
    return made;
  }();
  return index;
}

/// What stands between the first `open` and the first `close`; nothing when either is missing or
/// the closing one comes first.
std::optional<std::string_view> Between(std::string_view line, char open, char close) {
  const std::size_t start = line.find(open);
  const std::size_t end = line.find(close);
  if (start == std::string_view::npos || end == std::string_view::npos || end < start) {
    return std::nullopt;
  }
  return line.substr(start + 1, end - start - 1);
}

void RestoreValue(std::string& value, Restore how) {
  switch (how) {
    case Restore::Plain:
      return;
    case Restore::Lines:
      return RestoreLines(value);
    case Restore::Commas:
      return RestoreCommas(value);
    case Restore::Items:
      return RestoreListCommas(value);
    case Restore::Code:
      RestoreLines(value);
      value = std::string(Trim(value));
      return;
  }
}

}  // namespace

void TagScanner::Scan(std::string_view line) {
  lower_.resize(line.size());
  std::transform(line.begin(), line.end(), lower_.begin(), LowerByte);
  TakeHead(line);
  FindBounds();
  TakeValues(line);
}

void TagScanner::TakeHead(std::string_view line) {
  kind_ = Between(line, '[', ']').value_or(std::string_view());
  if (const auto number = Between(line, '(', ')')) number_ = *number;
  if (const auto name = Between(line, '{', '}')) name_ = *name;
}

void TagScanner::FindBounds() {
  constexpr std::size_t kNone = std::string_view::npos;
  starts_.fill(kNone);
  ends_.fill(kNone);
  const std::string_view text = lower_;
  for (std::size_t at = text.find_first_of("<>"); at != kNone;
       at = text.find_first_of("<>", at + 1)) {
    if (text[at] == '<') {
      if (at == 0) continue;
      for (const std::uint8_t tag : Index().ByLast[static_cast<unsigned char>(text[at - 1])]) {
        if (starts_[tag] == kNone && text.substr(0, at).ends_with(kTags[tag].Word)) {
          starts_[tag] = at + 1;
        }
      }
    } else if (at + 1 < text.size()) {
      for (const std::uint8_t tag : Index().ByFirst[static_cast<unsigned char>(text[at + 1])]) {
        if (ends_[tag] == kNone && text.substr(at + 1).starts_with(kTags[tag].Word)) {
          ends_[tag] = at;
        }
      }
    }
  }
}

void TagScanner::TakeValues(std::string_view line) {
  for (std::size_t tag = 0; tag < kTagCount; ++tag) {
    const std::size_t start = starts_[tag];
    const std::size_t end = ends_[tag];
    if (start == std::string_view::npos || end == std::string_view::npos || end < start) continue;
    values_[tag].assign(line.substr(start, end - start));
    RestoreValue(values_[tag], kTags[tag].How);
  }
}

const std::string& TagScanner::Value(std::string_view tag) const noexcept {
  static const std::string empty;
  const auto* const found = std::find_if(kTags.begin(), kTags.end(),
                                         [&](const TagInfo& info) { return info.Word == tag; });
  return found == kTags.end() ? empty : values_[static_cast<std::size_t>(found - kTags.begin())];
}

}  // namespace tarnwick
