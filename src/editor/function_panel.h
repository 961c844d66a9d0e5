// `WndFunc`: the functions of the language beside the code, to look up, to find and to insert.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "editor/edit_widget.h"
#include "language/support_tables.h"

namespace tarnwick::editor {

/// Where a search looks: the rows of `ComboSearch`.
enum class SearchIn { Names, Descriptions, All };
inline constexpr std::array<std::string_view, 3> kComboSearchRows{"Funcions Name",
                                                                  "Descriptions Functions", "All!"};
inline constexpr std::string_view kNotFound = "Not Found";

/// One of the lists `ListFunc`.
enum class FunctionListId { Further, Main, Found };
inline constexpr std::size_t kFunctionListCount = 3;

/// A tab of the panel, in the order of the screen.
struct FunctionTab {
  std::string_view Caption;
  FunctionListId List;
};
inline constexpr std::array<FunctionTab, kFunctionListCount> kFunctionTabs{{
    {"Tarnwick Functions", FunctionListId::Main},
    {"+ Functions", FunctionListId::Further},
    {"Search", FunctionListId::Found},
}};

/// The lists, the help and the searches. A view shows the rows, forwards what is chosen and reads
/// the help back. Rows count from 0.
class FunctionPanel {
 public:
  FunctionPanel(const language::SupportTables& language, EditWidget& editor)
      : language_(language), editor_(editor) {}

  /// Fills the lists of both tabs from the support tables and selects the first row of each; the
  /// list of what was found becomes empty. The help stays.
  void Fill();

  [[nodiscard]] const std::vector<std::string>& ListFunc(FunctionListId list) const noexcept {
    return lists_[static_cast<std::size_t>(list)].Rows;
  }
  /// The selected row; -1 for none.
  [[nodiscard]] int RowOf(FunctionListId list) const noexcept {
    return lists_[static_cast<std::size_t>(list)].Row;
  }
  [[nodiscard]] const std::string& EditHelp() const noexcept { return help_; }

  /// The text of an `EditSearch` beside a list changed: the first row that begins with it is
  /// selected, in any letters, and its help shows; none changes nothing. The tab of the search
  /// finds nothing by itself.
  void EditSearchChanged(FunctionListId list, std::string_view text);
  /// `btnSearch`: fills the list of what was found, each name once, or its only row is
  /// `kNotFound`. Nothing for an empty text.
  void Search(std::string_view text, SearchIn where);
  /// A row was chosen: its help shows. A row that is no function leaves the help as it is.
  void Click(FunctionListId list, int row);
  /// A double click: the function's name and a blank go in at the selection.
  void DoubleClick(FunctionListId list, int row);
  /// Enter in the field beside a list: the selected name alone goes in.
  void InsertSelected(FunctionListId list);
  /// Shows the help of a word of the code in the panel; false, and nothing changed, when the word
  /// is no function.
  bool ShowHelpOf(std::string_view word);

 private:
  struct List {
    std::vector<std::string> Rows;
    int Row = -1;
  };

  [[nodiscard]] List& At(FunctionListId list) { return lists_[static_cast<std::size_t>(list)]; }
  [[nodiscard]] const std::string* RowText(FunctionListId list, int row) const noexcept;
  void AddFound(const std::string& name);
  void FindNames(FunctionListId list, std::string_view text);
  void FindDescriptions(std::string_view text);
  void Insert(const std::string& text);

  const language::SupportTables& language_;
  EditWidget& editor_;
  std::array<List, kFunctionListCount> lists_;
  language::Keyed<bool> found_;
  std::string help_;
};

}  // namespace tarnwick::editor
