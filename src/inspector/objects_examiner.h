// `FormViewObjects`: the reference window on the objects of the target language.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "language/support_tables.h"

namespace tarnwick {

class PropertySheet;

/// What the window shows. A view fills its lists from here and forwards what is chosen; indices
/// count from 0.
class FormViewObjects {
 public:
  FormViewObjects(const language::SupportTables& tables, const PropertySheet& sheet)
      : tables_(tables), sheet_(sheet) {}

  /// The row that the next opening selects; other windows may set it beforehand. 0: the kind that
  /// is selected on the current form.
  int WantedRow = 0;

  /// Fills `Lista`, selects the wanted row and forgets it. With the kind of the selection, the
  /// member of the grid's selected row is selected too.
  void Open();
  /// A row of `Lista` was chosen: its members are listed and its own description shows.
  void SelectKind(int row);
  /// A row of `ListaPro` was chosen: its description shows.
  void SelectMember(int row);
  /// The text of `Text1` changed: the first kind that begins with it is chosen.
  void Find(std::string_view text);

  [[nodiscard]] const std::vector<std::string>& Lista() const noexcept { return kinds_; }
  [[nodiscard]] const std::vector<std::string>& ListaPro() const noexcept { return members_; }
  /// The selected rows; -1 for none.
  [[nodiscard]] int KindRow() const noexcept { return kind_row_; }
  [[nodiscard]] int MemberRow() const noexcept { return member_row_; }
  /// The description shown. Where there is none for a choice the one before stays.
  [[nodiscard]] const std::string& Editor() const noexcept { return text_; }

 private:
  void ShowHelp(const std::string* help);
  void SelectPresent();

  const language::SupportTables& tables_;
  const PropertySheet& sheet_;
  std::vector<std::string> kinds_;
  std::vector<std::string> members_;
  std::string text_;
  int kind_row_ = -1;
  int member_row_ = -1;
};

}  // namespace tarnwick
