// The property panel: the grid of rows of the selected object or form, and what an edit does.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspector/grid_rows.h"
#include "inspector/head_list.h"
#include "inspector/inspector_host.h"
#include "inspector/row_edits.h"
#include "inspector/row_subject.h"
#include "inspector/value_list.h"
#include "inspector/value_pickers.h"
#include "language/support_tables.h"
#include "model/project_observer.h"
#include "model/project_records.h"
#include "platform/ports.h"
#include "project/finding.h"

namespace tarnwick {

class History;

/// The logic of the panel; a view paints what it says and forwards what the user does:
///
///   sheet.ShowProperties("Button3", "Form1Btn3");  // at the end of a press
///   sheet.SelectRow(6);                            // a click on a row
///   sheet.ApplyText("120");                        // each keystroke in the row
///   sheet.LeaveRow();                              // the focus goes elsewhere
///   sheet.PickValue();                             // Boton1 or Boton2
///
/// All that is typed into a row until it is left is one step of the history, named after row and
/// object ("Edit Caption of Button3"). A picked value, a reset and a dialog are a step each.
///
/// An edit goes to the object for which the rows were built, also when the selection has moved
/// on meanwhile; once that object is gone it goes nowhere. While a row is being typed in it shows
/// what was typed; a row that is left shows what is stored.
class PropertySheet {
 public:
  PropertySheet(ProjectTables& tables, const language::SupportTables& support, Ports& ports,
                ProjectObserver& observer, InspectorHost& host, History& steps);
  /// The view that is notified of changes; null for none.
  void SetView(PropertySheetView* view) noexcept;

  // --- Filling ---

  /// Builds the grid for a kind ("Button3", "Images") under the name that row 0 shows. Nothing
  /// happens while the panel is hidden.
  void ShowProperties(std::string_view kind_or_name, std::string_view object_name);
  /// The same for whatever the current form has selected.
  void ShowSelection();
  /// Hides buttons and list and takes the selection's colours off the rows: every press on a
  /// form does this.
  void ClearPanel();
  /// The same, and empties head list and grid; edits go nowhere until the next selection.
  void ClearPanelAndCombo();
  /// A panel that is shown again has the list and rows of the present form and selection.
  void SetPanelVisible(bool is_visible);
  [[nodiscard]] bool PanelVisible() const noexcept { return is_visible_; }

  // --- Rows: row 0 is "Name", row i the kind's row i - 1 ---

  [[nodiscard]] int RowCount() const noexcept { return rows_.Count(); }
  /// Name, value and mark of a row; "" and no mark for a row that is not there.
  [[nodiscard]] std::string_view Label(int row) const noexcept;
  [[nodiscard]] const std::string& Text(int row) const noexcept;
  [[nodiscard]] int RowMark(int row) const noexcept;
  /// False for rows that only a dialog fills.
  [[nodiscard]] bool TakesTyping(int row) const noexcept;
  /// The font of a font row, its colour left out; nothing for another row.
  [[nodiscard]] std::optional<FontChoice> RowFont(int row) const;
  /// The colour of a colour row; nothing for another row.
  [[nodiscard]] std::optional<std::int32_t> RowColor(int row) const;
  /// The files, the first that loads counting, that a picture or icon row shows; none for another
  /// row and for one without a picture.
  [[nodiscard]] std::vector<std::string> RowPictures(int row) const;
  /// True for a row that holds a path.
  [[nodiscard]] bool IsPath(int row) const noexcept;
  /// What is wrong with the value of a row and what to do, as a sentence; "" for nothing. While a
  /// refused text stands in the selected row, why it is not stored.
  [[nodiscard]] std::string RowFault(int row) const;
  /// What the selected row is for; lines end in CR LF, "" when nothing is known or none is
  /// selected.
  [[nodiscard]] std::string Help() const;
  /// What any row is for; "" where nothing is known.
  [[nodiscard]] std::string HelpOf(int row) const;

  /// Shows only rows whose name holds the text, in any case; "" shows all. Row 0 always shows and
  /// rows keep their numbers.
  void SetFilter(std::string_view text);
  [[nodiscard]] const std::string& Filter() const noexcept { return rows_.Filter(); }
  /// The numbers of the shown rows from the top.
  [[nodiscard]] const std::vector<int>& ShownRows() const noexcept { return rows_.Shown(); }
  /// Top of a row, twips; -1 for a row that is not shown.
  [[nodiscard]] int RowTop(int row) const noexcept { return rows_.TopOf(row); }

  // --- Selected row ---

  void SelectRow(int row);
  /// The selected row; it stays from one event to the next. -1 before the first.
  [[nodiscard]] int RowIndex() const noexcept { return RowIndex_; }
  /// True while the selected row shows as such.
  [[nodiscard]] bool HasSelectedRow() const noexcept { return is_row_selected_; }
  /// The row at which a user starts who goes to the grid: that of the name last selected, else row
  /// 0.
  [[nodiscard]] int RowToEnter() const noexcept;
  /// The selected row is left: it shows what is stored, and what was typed in it is a step.
  void LeaveRow();
  /// Puts back the value that the selected row had when it was selected. False when it has it.
  bool Revert();
  [[nodiscard]] bool Boton1Shown() const noexcept;
  [[nodiscard]] bool Boton2Shown() const noexcept;
  [[nodiscard]] bool Boton3Shown() const noexcept;
  /// True when the shown button, and not the row's text, has the focus after the selection.
  [[nodiscard]] bool ButtonTakesFocus() const noexcept;
  [[nodiscard]] const ValueList& List() const noexcept { return list_; }
  void CloseList();

  // --- Edits: each returns whether something was stored ---

  /// A text typed into the selected row, at each keystroke. A text that the row shows already is
  /// no edit. Control characters become blanks; a character that the form file uses as a mark in
  /// this row becomes "?". A number that its field refuses puts back the value that the row had
  /// when it was selected; an empty one changes nothing. A text that would tear the object's record
  /// is refused: the one before it stays.
  bool ApplyText(std::string_view text);
  /// A row picked from the list: its text and its index. Closes the list.
  bool ApplyChoice(std::string_view text, int index);
  /// Brings the record of the current form's selection, or of the form itself for "Form", up to
  /// date for a row. The grid follows where it shows the same object; the panel need not be
  /// visible.
  void SyncRow(std::string_view name_objet, std::string_view row_name);
  /// `Boton1` and `Boton2`: the picker of the selected row. A cancelled one changes nothing.
  void PickValue();
  /// `Boton3`: back to "(Default)" or "(None)".
  void ResetValue();

  // --- Head `Combo` ---

  /// Builds the rows for the current form: it came to the front.
  void FillCombo() { head_.Fill(); }
  /// The user picked a row: selects the form or the object and shows its properties.
  void ChooseComboRow(int row);
  /// An object is about to go.
  void RemoveComboRow(const DesignControl& object) { head_.Remove(object); }
  [[nodiscard]] const ObjectCombo& Combo() const noexcept { return head_.Rows(); }

  /// The kind that is selected on the current form, by its name in the language; "" without a form.
  [[nodiscard]] std::string_view SelectedKind() const noexcept;
  [[nodiscard]] const std::string& SelKind() const noexcept { return SelKind_; }
  [[nodiscard]] const std::string& SelName() const noexcept { return SelName_; }

 private:
  [[nodiscard]] std::optional<RowTarget> Target() const { return subject_.In(tables_); }
  [[nodiscard]] const RowBinding* BindingAt(int row) const noexcept;
  void TakeSubject();
  void BuildRows();
  [[nodiscard]] std::string ValueText(const RowBinding& binding, const RowTarget& target) const;
  void SetText(int row, std::string text);
  void RereadRow(int row);
  void RereadRowsBut(int row);
  void TellRow(int row);
  [[nodiscard]] const std::vector<project::Finding>& Faults() const;
  [[nodiscard]] bool IsEditable() const noexcept;

  [[nodiscard]] std::string StepName() const;
  [[nodiscard]] std::string TakenText(std::string_view text) const;
  bool ApplyToRow(std::string text);
  bool StoreTyped(const RowTarget& target, const std::string& text);
  bool ApplyTyped(const RowBinding& binding, const RowTarget& target, const std::string& text);
  bool ApplyNumber(const RowBinding& binding, const RowTarget& target, const std::string& text);
  void Rename(const RowTarget& target, const std::string& name);
  void OpenList();
  void PickFont(const RowTarget& target);
  void PickColor();
  void OpenDesigner(const RowTarget& target);
  void Picked(const std::optional<std::string>& text);

  ProjectTables& tables_;
  const language::SupportTables& support_;
  Ports& ports_;
  InspectorHost& host_;
  History& steps_;
  PropertySheetView* view_ = nullptr;

  RowSubject subject_;
  GridRows rows_;
  RowEdits edits_;
  ValuePickers pickers_;
  HeadList head_;
  ValueList list_;
  /// The findings on the rows of the subject; nothing until they are asked for.
  mutable std::optional<std::vector<project::Finding>> faults_;
  bool is_visible_ = true;
  bool is_filling_ = false;
  bool is_row_selected_ = false;
  bool is_row_live_ = false;               ///< the selected row belongs to the present subject
  std::string text_at_entry_;              ///< what the selected row showed when it was selected
  std::optional<double> number_at_entry_;  ///< and its stored number
  std::string refusal_;                    ///< why the text of the selected row is not stored
  std::string last_row_;                   ///< name of the row last selected

  std::string SelKind_;
  std::string SelName_;
  int RowIndex_ = -1;
};

}  // namespace tarnwick
