#include "editor/intellisense.h"

#include <algorithm>
#include <array>
#include <utility>

#include "language/characters.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::editor {

namespace {

/// Words that open the member list of the word before, whatever key came before the dot.
constexpr std::array<std::string_view, 5> kDotWords{".(", ".)", ".", "\"", ".'"};
constexpr std::string_view kAs = "as";

}  // namespace

void Intellisense::Reset() {
  HideList();
  typed_ = {};
}

void Intellisense::HideList() {
  if (!visible_) return;
  visible_ = false;
  view_.HideList();
}

void Intellisense::Select(int row) {
  row_ = row;
  view_.SelectRow(row);
}

void Intellisense::Changed() {
  if (typed_.LastKey != list_key::kBackspace) {
    const std::string word = CurrentWord(editor_);
    if (EqualsFolded(word, kAs)) {
      typed_.AsPending = true;
    } else if (word.empty() && typed_.AsPending) {
      Open(ListMode::Types, kAs);
    } else if (typed_.Mode == ListMode::TypesDismissed) {
      Open(ListMode::Types, typed_.LastWord);
    } else if (Opens(word)) {
      Open(ListMode::Members, word.ends_with('_') ? std::string_view("_") : typed_.LastWord);
    } else {
      typed_.AsPending = false;
    }
  }
  if (visible_ && !CaretInServedWord()) HideList();
  FilterList();
  typed_.LastWord = CurrentWord(editor_);
  typed_.PrevKey = typed_.LastKey;
}

bool Intellisense::Opens(std::string_view word) {
  if (std::find(kDotWords.begin(), kDotWords.end(), word) != kDotWords.end()) return true;
  // A blank in front of the dot opens nothing.
  if (word.ends_with('.')) return !typed_.LastWord.empty() && typed_.PrevKey != list_key::kSpace;
  return word.ends_with('_');
}

void Intellisense::CaretMoved() {
  if (visible_ && !CaretInServedWord()) HideList();
  typed_.LastWord = CurrentWord(editor_);
  typed_.PrevKey = list_key::kNone;
  typed_.AsPending = false;
  if (typed_.Mode == ListMode::TypesDismissed) typed_.Mode = ListMode::Types;
}

bool Intellisense::CaretInServedWord() const {
  const EditRange caret = editor_.GetSel();
  if (caret.EndLineNo != line_ || caret.EndColNo < column_) return false;
  const std::string line = editor_.GetLine(line_);
  const auto begin = std::min(line.size(), static_cast<std::size_t>(column_));
  const auto end = std::min(line.size(), static_cast<std::size_t>(caret.EndColNo));
  return std::all_of(line.begin() + static_cast<std::ptrdiff_t>(begin),
                     line.begin() + static_cast<std::ptrdiff_t>(end), language::IsNameByte);
}

void Intellisense::Open(ListMode mode, std::string_view word) {
  typed_.Mode = mode;
  typed_.AsPending = false;
  LineIntellisense(word);
}

void Intellisense::LineIntellisense(std::string_view word) {
  const EditRange caret = editor_.GetSel();
  const std::string text = editor_.GetLine(caret.EndLineNo);
  const std::string_view line = Trim(text);
  if (line.starts_with('\'')) return;
  if (EqualsFolded(word, kAs)) {
    if (StartsWithFolded(line, "dim")) Show(lookup_.TypeNames(), 0);
  } else if (word == "_") {
    std::string name = CurrentWord(editor_);
    const std::size_t length = name.size();
    if (!name.empty()) name.pop_back();
    Show(lookup_.EventsOf(name), length);
  } else {
    Show(lookup_.MembersOf(word), 0);
  }
}

void Intellisense::Show(std::vector<std::string> rows, std::size_t name_length) {
  rows_ = std::move(rows);
  if (rows_.empty()) {
    HideList();
    return;
  }
  const EditRange caret = editor_.GetSel();
  line_ = caret.EndLineNo;
  column_ = caret.EndColNo;
  name_length_ = name_length;
  visible_ = true;
  view_.showintellisense(rows_);
}

void Intellisense::FilterList() {
  if (!visible_) return;
  const std::string word = CurrentWord(editor_);
  if (word.empty() || word.ends_with('.')) {
    typed_.ListPrefix.clear();
    Select(0);
    return;
  }
  // Of "Button1_On" the list serves what stands behind the "_" that opened it.
  typed_.ListPrefix = word.substr(std::min(name_length_, word.size()));
  const auto match = std::find_if(rows_.begin(), rows_.end(), [this](const std::string& row) {
    return StartsWithFolded(row, typed_.ListPrefix);
  });
  Select(match == rows_.end() ? -1 : static_cast<int>(match - rows_.begin()));
}

void Intellisense::Insert(std::string_view text, int replaced) {
  EditRange place = editor_.GetSel();
  if (replaced > 0) {
    place = {place.EndLineNo, std::max(0, place.EndColNo - replaced), place.EndLineNo,
             place.EndColNo};
    editor_.SetSel(place);
  }
  const int line = place.StartLineNo;
  const int column = place.StartColNo + static_cast<int>(text.size());
  editor_.SetSelText(text);
  editor_.SetCaretPos(line, column);
}

bool Intellisense::AcceptItem(ListSource source) {
  bool inserted = false;
  if (row_ >= 0) {
    const std::string row = rows_[static_cast<std::size_t>(row_)];
    const int typed = static_cast<int>(typed_.ListPrefix.size());
    if (source == ListSource::DoubleClicked || !StartsWithFolded(row, typed_.ListPrefix)) {
      // The row stands once, in place of what was typed of it.
      Insert(row, typed);
      inserted = true;
    } else if (typed_.ListPrefix.size() < row.size()) {
      // What the user typed stands in the user's letters; only the rest of the row is added.
      Insert(std::string_view(row).substr(typed_.ListPrefix.size()), 0);
      inserted = true;
    }
  }
  HideList();
  editor_.SetFocus();
  return inserted;
}

bool Intellisense::KeyDown(int key) {
  bool used = false;
  if (visible_) {
    const std::string word = CurrentWord(editor_);
    switch (key) {
      case list_key::kEnter:
        used = AcceptItem(ListSource::Typed);
        break;
      case list_key::kDown:
        if (HasRow(row_ + 1)) Select(row_ + 1);
        used = true;
        break;
      case list_key::kUp:
        HideList();
        break;
      case list_key::kEscape:
        HideList();
        used = true;
        break;
      case list_key::kBackspace:
        if (word.ends_with('.')) {
          HideList();
        } else if (typed_.Mode == ListMode::Types && word.empty()) {
          // The next character brings the types back.
          typed_.Mode = ListMode::TypesDismissed;
          HideList();
        }
        break;
      default:
        break;
    }
  }
  typed_.LastKey = key;
  return used;
}

void Intellisense::KeyPress(int character) {
  if (visible_ && character == list_key::kSpace) AcceptItem(ListSource::Typed);
  if (character == list_key::kBackspace) FilterList();
}

void Intellisense::Click(int row) {
  if (visible_ && HasRow(row)) Select(row);
}

void Intellisense::DoubleClick(int row) {
  if (!visible_ || !HasRow(row)) return;
  Select(row);
  AcceptItem(ListSource::DoubleClicked);
}

void Intellisense::ListKeyDown(int key) {
  if (!visible_ || key == list_key::kUp || key == list_key::kDown) return;
  AcceptItem(ListSource::Typed);
}

}  // namespace tarnwick::editor
