// `ListaFrms`: the lines of the form list.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "text/code_page.h"

namespace tarnwick {

/// "Form1 (file.ftn)": the text of a line, from a form's name and its file's path.
[[nodiscard]] std::string FormListText(std::string_view name, std::string_view file_name);
/// The name part of such a text: the part before the first " (".
[[nodiscard]] std::string_view FormListName(std::string_view text) noexcept;

/// Lines in the order of their form numbers. Finding a line by number or by text costs no walk.
class FormList {
 public:
  struct Line {
    std::string Text;
    int FormNumber = 0;
  };

  [[nodiscard]] const std::vector<Line>& Lines() const noexcept { return lines_; }
  [[nodiscard]] bool Empty() const noexcept { return lines_.empty(); }
  /// Adds a line at the end. Numbers are given in rising order, as forms are numbered.
  void Add(std::string text, int form_number);
  /// Gives a form this line, in the order of the numbers where it had none.
  void Put(int form_number, std::string text);
  /// Changes the text of a form's line; false when the form has none.
  bool SetText(int form_number, std::string text);
  /// Takes a form's line out; false when the form has none.
  bool Remove(int form_number);
  void Clear() noexcept;
  /// Index of a form's line, or -1.
  [[nodiscard]] int PositionOf(int form_number) const noexcept;
  /// True when some line equals the text without regard to case.
  [[nodiscard]] bool Holds(std::string_view text) const noexcept;

 private:
  void Forget(std::string_view text);

  std::vector<Line> lines_;
  std::unordered_multiset<std::string, FoldedHash, FoldedEqual> texts_;
};

}  // namespace tarnwick
