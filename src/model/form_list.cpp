#include "model/form_list.h"

#include <algorithm>
#include <utility>

#include "text/path_text.h"

namespace tarnwick {

std::string FormListText(std::string_view name, std::string_view file_name) {
  std::string text(name);
  text += " (";
  text += BareName(file_name);
  text += ')';
  return text;
}

std::string_view FormListName(std::string_view text) noexcept {
  return text.substr(0, text.find(" ("));
}

void FormList::Add(std::string text, int form_number) {
  texts_.insert(text);
  lines_.push_back({std::move(text), form_number});
}

void FormList::Put(int form_number, std::string text) {
  if (SetText(form_number, text)) return;
  const auto behind = std::find_if(lines_.begin(), lines_.end(), [form_number](const Line& line) {
    return line.FormNumber > form_number;
  });
  texts_.insert(text);
  lines_.insert(behind, {std::move(text), form_number});
}

int FormList::PositionOf(int form_number) const noexcept {
  const auto line =
      std::lower_bound(lines_.begin(), lines_.end(), form_number,
                       [](const Line& l, int number) { return l.FormNumber < number; });
  if (line == lines_.end() || line->FormNumber != form_number) return -1;
  return static_cast<int>(line - lines_.begin());
}

void FormList::Forget(std::string_view text) {
  const auto found = texts_.find(text);
  if (found != texts_.end()) texts_.erase(found);
}

bool FormList::SetText(int form_number, std::string text) {
  const int line_index = PositionOf(form_number);
  if (line_index < 0) return false;
  Line& line = lines_[static_cast<std::size_t>(line_index)];
  Forget(line.Text);
  texts_.insert(text);
  line.Text = std::move(text);
  return true;
}

bool FormList::Remove(int form_number) {
  const int line_index = PositionOf(form_number);
  if (line_index < 0) return false;
  Forget(lines_[static_cast<std::size_t>(line_index)].Text);
  lines_.erase(lines_.begin() + line_index);
  return true;
}

void FormList::Clear() noexcept {
  lines_.clear();
  texts_.clear();
}

bool FormList::Holds(std::string_view text) const noexcept {
  return texts_.find(text) != texts_.end();
}

}  // namespace tarnwick
