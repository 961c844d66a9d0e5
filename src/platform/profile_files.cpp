#include "platform/profile_files.h"

#include <optional>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

using namespace std::string_view_literals;

constexpr auto kNowhere = std::string_view::npos;
/// What the profile calls take for white space; 0x1A is the end mark of old text files.
constexpr std::string_view kSpace = " \t\v\f\r\n\x1A";

std::string_view TrimSpace(std::string_view text) noexcept {
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == kNowhere) return text.substr(0, 0);
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

/// The lines of a text, one after the other.
class LineWalk {
 public:
  explicit LineWalk(std::string_view text) noexcept : text_(text) {}
  /// Goes to the next line; false behind the last.
  bool Next() noexcept {
    if (next_ >= text_.size()) return false;
    start_ = next_;
    end_ = text_.find_first_of(kLineEnd, start_);
    if (end_ == kNowhere) end_ = text_.size();
    next_ = end_ < text_.size() ? end_ + 1 : end_;
    if (text_.substr(end_, 2) == kLineEnd) ++next_;
    return true;
  }
  /// The line without its end.
  [[nodiscard]] std::string_view Line() const noexcept {
    return text_.substr(start_, end_ - start_);
  }
  [[nodiscard]] std::size_t Start() const noexcept { return start_; }
  [[nodiscard]] std::size_t End() const noexcept { return end_; }
  /// Offset of the line that follows.
  [[nodiscard]] std::size_t Following() const noexcept { return next_; }

 private:
  std::string_view text_;
  std::size_t start_ = 0;
  std::size_t end_ = 0;
  std::size_t next_ = 0;
};

/// The name of a section's head line. A bracket that never closes makes no head.
std::optional<std::string_view> SectionName(std::string_view line) noexcept {
  const std::string_view trimmed = TrimSpace(line);
  if (trimmed.substr(0, 1) != "[") return std::nullopt;
  const std::size_t close = trimmed.rfind(']');
  if (close == kNowhere) return std::nullopt;
  return TrimSpace(trimmed.substr(1, close - 1));
}

/// The offsets of a key, or of where it is to be added, in a profile text.
struct KeyLocation {
  bool SectionFound = false;
  bool KeyFound = false;
  std::size_t ValueStart = 0;  ///< behind the "="
  std::size_t ValueEnd = 0;    ///< end of the line
  std::size_t InsertAt = 0;    ///< behind the section's last line that is not blank
};

KeyLocation Locate(std::string_view text, std::string_view section, std::string_view key) noexcept {
  const std::string_view wanted_section = TrimSpace(section);
  const std::string_view wanted_key = TrimSpace(key);
  KeyLocation found;
  for (LineWalk walk(text); walk.Next();) {
    const std::string_view line = TrimSpace(walk.Line());
    if (const auto name = SectionName(line)) {
      // Only the first section of a name counts, so the head that follows ends the search.
      if (found.SectionFound) break;
      found.SectionFound = EqualsFolded(*name, wanted_section);
      found.InsertAt = walk.Following();
      continue;
    }
    if (!found.SectionFound || line.empty()) continue;
    found.InsertAt = walk.Following();
    const std::size_t equals = walk.Line().find('=');
    if (line.front() == ';' || equals == kNowhere) continue;
    if (!EqualsFolded(TrimSpace(walk.Line().substr(0, equals)), wanted_key)) continue;
    found.KeyFound = true;
    found.ValueStart = walk.Start() + equals + 1;
    found.ValueEnd = walk.End();
    break;
  }
  return found;
}

std::string_view Unquoted(std::string_view value) noexcept {
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                      value.back() == value.front();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// Ends the last line where it has no line end, so that text can follow.
void CloseLastLine(std::string& text) {
  if (!text.empty() && text.back() != '\n' && text.back() != '\r') text += kLineEnd;
}

}  // namespace

std::string ProfileFiles::Read(const std::string& path, std::string_view section,
                               std::string_view key, std::size_t buffer_size) {
  if (buffer_size == 0) return {};
  const std::optional<std::string> text = files_.Read(path);
  if (!text) return {};
  const KeyLocation found = Locate(*text, section, key);
  if (!found.KeyFound) return {};
  const std::string_view line(*text);
  std::string_view value = line.substr(found.ValueStart, found.ValueEnd - found.ValueStart);
  value = value.substr(0, value.find('\0'));
  return std::string(Unquoted(TrimSpace(value)).substr(0, buffer_size - 1));
}

bool ProfileFiles::Write(const std::string& path, std::string_view section, std::string_view key,
                         std::string_view value) {
  const std::optional<std::string> old = files_.Read(path);
  if (!old && files_.Exists(path)) return false;
  std::string text = old.value_or("");
  value = value.substr(0, value.find_first_of("\r\n\0"sv));
  const KeyLocation found = Locate(text, section, key);
  if (found.KeyFound) {
    text.replace(found.ValueStart, found.ValueEnd - found.ValueStart, value);
    return files_.Replace(path, text);
  }
  std::string added;
  if (!found.SectionFound) added.append("[").append(section).append("]").append(kLineEnd);
  added.append(key).append("=").append(value).append(kLineEnd);
  std::string tail;
  if (found.SectionFound) {
    tail = text.substr(found.InsertAt);
    text.resize(found.InsertAt);
  }
  CloseLastLine(text);
  text.append(added).append(tail);
  return files_.Replace(path, text);
}

}  // namespace tarnwick
