#include "codegen/show_rewriter.h"

#include <algorithm>
#include <utility>

#include "text/code_page.h"

namespace tarnwick {

namespace {

constexpr std::string_view kModal = ".showmodal";
/// What the modal call adds to the pattern's length: the length of "modal".
constexpr std::size_t kModalRest = 5;

/// The text under work in three parts: what the search has left behind, a short run of bytes that
/// a hit put in front of it, and the given text from some offset on. Bytes are taken from the front
/// of the last two and put back there; nothing is ever moved within a long text.
class WorkingText {
 public:
  explicit WorkingText(std::string_view text) : text_(text), lower_(Lower(text)) {
    done_.reserve(text.size());
  }

  /// Goes on to the next occurrence of the lower-case pattern; false when there is none.
  bool Find(std::string_view pattern) {
    while (!pending_.empty()) {
      if (StartsWith(pattern)) return true;
      done_ += Take();
    }
    const std::size_t found = lower_.find(pattern, at_);
    if (found == std::string::npos) return false;
    done_.append(text_, at_, found - at_);
    at_ = found;
    return true;
  }

  /// True when the `size` bytes from here on, or what is left of them, equal the lower-case text.
  [[nodiscard]] bool Equals(std::string_view lower, std::size_t size) const noexcept {
    const std::size_t left = pending_.size() + (text_.size() - at_);
    return std::min(size, left) == lower.size() && StartsWith(lower);
  }
  /// The byte `offset` bytes from here; 0 behind the end.
  [[nodiscard]] char At(std::size_t offset) const noexcept { return From(text_, offset); }

  /// Skips one byte; does nothing at the end.
  void Step() {
    if (!AtEnd()) done_ += Take();
  }
  /// Takes `size` bytes out from here on, or as many as are left.
  void Drop(std::size_t size) noexcept {
    for (; size > 0 && !AtEnd(); --size) {
      const char byte = Take();
      line_end_gone_ = line_end_gone_ || byte == '\n' || (byte == '\r' && At(0) != '\n');
    }
  }
  /// Puts bytes in here.
  void Insert(std::string_view bytes) { pending_.append(bytes.rbegin(), bytes.rend()); }

  /// Where the given text goes on in the new one, as things stand.
  [[nodiscard]] TextChange Change() noexcept {
    return {at_, done_.size() + pending_.size(), std::exchange(line_end_gone_, false)};
  }

  [[nodiscard]] std::string Finish() {
    done_.append(pending_.rbegin(), pending_.rend());
    done_.append(text_.substr(at_));
    return std::move(done_);
  }

 private:
  [[nodiscard]] bool AtEnd() const noexcept { return pending_.empty() && at_ == text_.size(); }
  [[nodiscard]] char From(std::string_view source, std::size_t offset) const noexcept {
    if (offset < pending_.size()) return pending_[pending_.size() - 1 - offset];
    const std::size_t position = at_ + (offset - pending_.size());
    return position < source.size() ? source[position] : '\0';
  }
  [[nodiscard]] bool StartsWith(std::string_view lower) const noexcept {
    if (pending_.size() + (text_.size() - at_) < lower.size()) return false;
    for (std::size_t k = 0; k < lower.size(); ++k) {
      if (LowerByte(From(lower_, k)) != lower[k]) return false;
    }
    return true;
  }
  char Take() noexcept {
    if (pending_.empty()) return text_[at_++];
    const char byte = pending_.back();
    pending_.pop_back();
    return byte;
  }

  std::string_view text_;
  std::string lower_;    ///< the given text in lower case, for the search
  std::size_t at_ = 0;   ///< offset in it
  std::string pending_;  ///< bytes in front of that offset, last one first
  std::string done_;
  bool line_end_gone_ = false;  ///< since Change() was last called
};

}  // namespace

std::string RewriteShowCalls(std::string_view text, std::string_view pattern,
                             std::string_view replacement, std::vector<TextChange>* changes) {
  if (pattern.empty()) return std::string(text);
  const std::string wanted = Lower(pattern);
  WorkingText work(text);
  for (std::size_t hits = 0; hits <= text.size() && work.Find(wanted); ++hits) {
    // A hit followed by "hint" is like any other: three bytes never equal these four.
    if (work.At(wanted.size()) == '1') {
      std::string kept;
      for (std::size_t k = 0; k < wanted.size(); ++k) kept += work.At(k);
      work.Drop(wanted.size() + 1);
      work.Insert(kept);
    } else if (!work.Equals(kModal, wanted.size() + kModalRest)) {
      work.Drop(wanted.size() + 1);
      work.Insert(replacement);
    }
    if (changes != nullptr) changes->push_back(work.Change());
    work.Step();
  }
  return work.Finish();
}

}  // namespace tarnwick
