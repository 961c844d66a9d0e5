// An editing widget in memory, with keys that act as a person's do.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/edit_widget.h"
#include "text/strings.h"

namespace tarnwick::test {

/// Holds the text as lines. SetText counts as the start of a new undo history.
class FakeEditWidget final : public editor::EditWidget {
 public:
  [[nodiscard]] std::string Text() const override { return Join(lines_, "\r\n"); }
  void SetText(std::string_view text) override {
    lines_.clear();
    for (const std::string_view line : Split(text, "\r\n")) lines_.emplace_back(line);
    if (lines_.empty()) lines_.emplace_back();
    sel_ = {};
    ++Histories;
    if (OnSetText) OnSetText();
  }
  [[nodiscard]] int LineCount() const override { return static_cast<int>(lines_.size()); }
  [[nodiscard]] std::string GetLine(int line) const override {
    return line >= 0 && line < static_cast<int>(lines_.size())
               ? lines_[static_cast<std::size_t>(line)]
               : std::string();
  }
  [[nodiscard]] editor::EditRange GetSel() const override { return sel_; }
  void SetSel(const editor::EditRange& range) override { sel_ = range; }
  void SetSelText(std::string_view text) override {
    std::string& first = lines_[static_cast<std::size_t>(sel_.StartLineNo)];
    const std::string tail = lines_[static_cast<std::size_t>(sel_.EndLineNo)].substr(
        static_cast<std::size_t>(sel_.EndColNo));
    const std::string head = first.substr(0, static_cast<std::size_t>(sel_.StartColNo));
    std::vector<std::string> in;
    const std::string joined = head + std::string(text);
    for (const std::string_view line : Split(joined, "\r\n")) in.emplace_back(line);
    const int line = sel_.StartLineNo + static_cast<int>(in.size()) - 1;
    const int column = static_cast<int>(in.back().size());
    in.back() += tail;
    const auto begin = lines_.begin() + sel_.StartLineNo;
    lines_.erase(begin, lines_.begin() + sel_.EndLineNo + 1);
    lines_.insert(lines_.begin() + sel_.StartLineNo, in.begin(), in.end());
    sel_ = {line, column, line, column};
  }
  void SetCaretPos(int line, int column) override { sel_ = {line, column, line, column}; }
  void SetFocus() override { ++Focused; }

  /// The caret's line with "|" where the caret stands.
  [[nodiscard]] std::string CaretLine() const {
    std::string line = GetLine(sel_.EndLineNo);
    line.insert(static_cast<std::size_t>(sel_.EndColNo), "|");
    return line;
  }
  /// Takes the character in front of the caret away, or the line end.
  void Backspace() {
    if (sel_.EndColNo > 0) {
      sel_.StartColNo = sel_.EndColNo - 1;
    } else if (sel_.EndLineNo > 0) {
      sel_.StartLineNo = sel_.EndLineNo - 1;
      sel_.StartColNo = static_cast<int>(GetLine(sel_.StartLineNo).size());
    }
    SetSelText("");
  }

  int Focused = 0;
  int Histories = 0;
  std::function<void()> OnSetText;  ///< called at the end of each SetText

 private:
  std::vector<std::string> lines_{""};
  editor::EditRange sel_;
};

}  // namespace tarnwick::test
