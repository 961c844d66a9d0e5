#include "codegen/show_diversion.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string_view>
#include <unordered_map>

#include "codegen/show_rewriter.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

constexpr std::string_view kCall = ".show";

/// The text as a chain of pieces, in which every ".show" is a piece of its own.
///
/// No rewriting makes a new ".show": replacements hold no ".", and neither end of one can complete
/// it. So the calls of the given text are all there will ever be. What a rewriting does change is
/// which names stand in front of the calls behind it; those are listed anew.
class CallChain {
 public:
  CallChain(const std::string& text, const std::vector<ShowDiversion>& forms)
      : forms_(forms), calls_(forms.size()) {
    for (std::size_t f = 0; f < forms.size(); ++f) {
      by_name_[forms[f].Name].push_back(f);
      lengths_.push_back(forms[f].Name.size());
    }
    std::sort(lengths_.begin(), lengths_.end());
    lengths_.erase(std::unique(lengths_.begin(), lengths_.end()), lengths_.end());
    size_ = text.size();
    Cut(text);
  }

  [[nodiscard]] std::string Rewrite() {
    for (std::size_t p = 0; p < pieces_.size(); ++p) {
      if (pieces_[p].Call) List(p);
    }
    for (form_ = 0; form_ < forms_.size(); ++form_) RewriteForm();
    std::string text;
    text.reserve(size_);
    for (const Piece& piece : pieces_) text += piece.Text;
    return text;
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  struct Piece {
    std::string_view Text;
    std::size_t Prev = kNone;  ///< the piece with text before this one
    std::size_t Next = kNone;
    bool Call = false;
  };
  struct Place {
    std::size_t Piece = kNone;
    std::size_t Offset = 0;
  };

  void Cut(std::string_view text) {
    const std::string lower = Lower(text);
    std::size_t start = 0;
    for (std::size_t at = lower.find(kCall); at != std::string::npos;
         at = lower.find(kCall, start)) {
      AddPiece(text.substr(start, at - start), false);
      AddPiece(text.substr(at, kCall.size()), true);
      start = at + kCall.size();
    }
    AddPiece(text.substr(start), false);
  }
  void AddPiece(std::string_view text, bool call) {
    if (text.empty()) return;
    const std::size_t place = pieces_.size();
    pieces_.push_back({text, place == 0 ? kNone : place - 1, kNone, call});
    if (place != 0) pieces_[place - 1].Next = place;
  }

  /// Lists a call for every form, from the present one on, whose name stands in front of it.
  void List(std::size_t call) {
    std::string& tail = tail_;
    tail.clear();
    for (std::size_t p = pieces_[call].Prev; p != kNone && tail.size() < lengths_.back();
         p = pieces_[p].Prev) {
      const std::string_view text = pieces_[p].Text;
      const std::size_t take = std::min(text.size(), lengths_.back() - tail.size());
      tail.append(text.rbegin(), text.rbegin() + static_cast<std::ptrdiff_t>(take));
    }
    std::reverse(tail.begin(), tail.end());
    for (const std::size_t length : lengths_) {
      if (length > tail.size()) break;
      const auto found = by_name_.find(std::string_view(tail).substr(tail.size() - length));
      if (found == by_name_.end()) continue;
      for (const std::size_t form : found->second) {
        if (form == form_) pending_.insert(call);
        if (form > form_) calls_[form].push_back(call);
      }
    }
  }

  void RewriteForm() {
    limit_ = {};
    pending_.insert(calls_[form_].begin(), calls_[form_].end());
    while (!pending_.empty()) {
      const std::size_t call = pending_.extract(pending_.begin()).value();
      Place start;
      if (!pieces_[call].Call || !FindName(call, start)) continue;
      RewriteCall(call, start);
      ListBehind(call);
    }
  }

  /// True when the form's name stands in front of a call and begins behind the start of the hit
  /// before, where the search goes on.
  bool FindName(std::size_t call, Place& start) const {
    std::string_view name = forms_[form_].Name;
    for (std::size_t p = pieces_[call].Prev; p != kNone; p = pieces_[p].Prev) {
      std::string_view text = pieces_[p].Text;
      const std::size_t closed = p == limit_.Piece ? limit_.Offset + 1 : 0;
      const std::size_t take = std::min(text.size() - closed, name.size());
      if (!EqualsFolded(text.substr(text.size() - take), name.substr(name.size() - take))) {
        return false;
      }
      name.remove_suffix(take);
      start = {p, text.size() - take};
      if (name.empty()) return true;
      if (p == limit_.Piece) return false;
    }
    return false;
  }

  void RewriteCall(std::size_t call, Place start) {
    const std::size_t next = pieces_[call].Next;
    if (next != kNone && pieces_[next].Text.front() == '1') {
      DropFront(next);
      limit_ = start;
      return;
    }
    if (next != kNone) DropFront(next);
    for (std::size_t p = pieces_[call].Prev; p != start.Piece; p = pieces_[call].Prev) {
      Shorten(p, 0);
    }
    Shorten(start.Piece, start.Offset);
    pieces_[call].Text = forms_[form_].Replacement;
    pieces_[call].Call = false;
    limit_ = {call, 0};
  }

  void DropFront(std::size_t piece) {
    pieces_[piece].Text.remove_prefix(1);
    pieces_[piece].Call = false;
    if (pieces_[piece].Text.empty()) Unlink(piece);
  }
  void Shorten(std::size_t piece, std::size_t size) {
    pieces_[piece].Text = pieces_[piece].Text.substr(0, size);
    pieces_[piece].Call = false;
    if (size == 0) Unlink(piece);
  }
  void Unlink(std::size_t piece) {
    const Piece& gone = pieces_[piece];
    if (gone.Prev != kNone) pieces_[gone.Prev].Next = gone.Next;
    if (gone.Next != kNone) pieces_[gone.Next].Prev = gone.Prev;
  }

  /// Lists the calls behind a rewritten one that are near enough to see the change.
  void ListBehind(std::size_t call) {
    std::size_t distance = 0;
    for (std::size_t p = pieces_[call].Next; p != kNone && distance < lengths_.back();
         p = pieces_[p].Next) {
      if (pieces_[p].Call) List(p);
      distance += pieces_[p].Text.size();
    }
  }

  const std::vector<ShowDiversion>& forms_;
  std::unordered_map<std::string, std::vector<std::size_t>, FoldedHash, FoldedEqual> by_name_;
  std::vector<std::size_t> lengths_;  ///< of the names, each once, rising
  std::vector<Piece> pieces_;
  std::vector<std::vector<std::size_t>> calls_;  ///< of the forms to come
  std::set<std::size_t> pending_;                ///< of the present form, in order of place
  std::string tail_;  ///< what stands in front of a call, as far as names reach
  Place limit_;       ///< the start of the hit before in this form's pass
  std::size_t form_ = 0;
  std::size_t size_ = 0;
};

bool SuitsChain(const ShowDiversion& form) {
  // Without a name the call of a modal form is told apart by its tail; with a "." a replacement
  // could make new calls.
  return !form.Name.empty() && !form.Replacement.empty() &&
         form.Replacement.find('.') == std::string::npos;
}

}  // namespace

std::string DivertShowCalls(const std::string& text, const std::vector<ShowDiversion>& forms) {
  if (forms.size() > 1 && std::all_of(forms.begin(), forms.end(), SuitsChain)) {
    return CallChain(text, forms).Rewrite();
  }
  std::string rewritten = text;
  for (const ShowDiversion& form : forms) {
    rewritten = RewriteShowCalls(rewritten, form.Name + std::string(kCall), form.Replacement);
  }
  return rewritten;
}

}  // namespace tarnwick
