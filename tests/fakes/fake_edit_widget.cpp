#include "fakes/fake_edit_widget.h"

namespace tarnwick::test {

std::string FakeEditWidget::Text() const {
  return Join(lines_, "\r\n");
}

void FakeEditWidget::SetText(std::string_view text) {
  lines_.clear();
  for (const std::string_view line : Split(text, "\r\n")) lines_.emplace_back(line);
  if (lines_.empty()) lines_.emplace_back();
  sel_ = {};
  ++Histories;
  if (OnSetText) OnSetText();
}

int FakeEditWidget::LineCount() const {
  return static_cast<int>(lines_.size());
}

std::string FakeEditWidget::GetLine(int line) const {
  return line >= 0 && line < static_cast<int>(lines_.size())
             ? lines_[static_cast<std::size_t>(line)]
             : std::string();
}

void FakeEditWidget::SetSelText(std::string_view text) {
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

void FakeEditWidget::SetCaretPos(int line, int column) {
  sel_ = {line, column, line, column};
}

void FakeEditWidget::SetFocus() {
  ++Focused;
}

std::string FakeEditWidget::CaretLine() const {
  std::string line = GetLine(sel_.EndLineNo);
  line.insert(static_cast<std::size_t>(sel_.EndColNo), "|");
  return line;
}

void FakeEditWidget::Backspace() {
  if (sel_.EndColNo > 0) {
    sel_.StartColNo = sel_.EndColNo - 1;
  } else if (sel_.EndLineNo > 0) {
    sel_.StartLineNo = sel_.EndLineNo - 1;
    sel_.StartColNo = static_cast<int>(GetLine(sel_.StartLineNo).size());
  }
  SetSelText("");
}

}  // namespace tarnwick::test
