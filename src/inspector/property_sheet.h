// The property panel: the grid of rows of the selected object or form, and what an edit does.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspector/inspector_host.h"
#include "inspector/object_combo.h"
#include "inspector/property_rows.h"
#include "inspector/row_bindings.h"
#include "language/support_tables.h"
#include "model/project_observer.h"
#include "model/project_records.h"
#include "persistence/settings.h"
#include "platform/ports.h"

namespace tarnwick {

/// The logic of the panel; a view paints what it says and forwards what the user does:
///
///   sheet.ShowProperties("Button3", "Form1Btn3");  // at the end of a press
///   sheet.SelectRow(6);                            // a click on a row
///   sheet.ApplyText("120");                        // each keystroke in the row
///   sheet.PickValue();                             // Boton1 or Boton2
///
/// An edit goes to the object for which the rows were built, also when the selection has moved
/// on meanwhile; once that object is gone it goes nowhere. Places and sizes of the panel's
/// widgets are twips.
class PropertySheet {
 public:
  static constexpr int kRowHeight = 315;
  static constexpr std::int32_t kSelectedBack = 8388608;
  static constexpr std::int32_t kSelectedText = 16777215;
  static constexpr std::int32_t kNormalBack = 16777215;
  static constexpr std::int32_t kNormalText = 0;

  PropertySheet(ProjectTables& tables, const language::SupportTables& support, Ports& ports,
                ProjectObserver& observer, InspectorHost& host);
  /// The view that hears of changes; null for none.
  void SetView(PropertySheetView* view) noexcept { view_ = view; }

  // --- Filling ---

  /// Builds the grid for a kind ("Button3", "Images") under the name that row 0 shows. Nothing
  /// happens while the panel is hidden.
  void ShowProperties(std::string_view kind_or_name, std::string_view object_name);
  /// The same for whatever the current form has selected.
  void ShowSelection();
  /// Hides buttons and list and takes the selection's colours off the rows: every press on a
  /// form does this.
  void ClearPanel();
  /// The same, and empties head list and first row; edits go nowhere until the grid is built anew.
  void ClearPanelAndCombo();
  void SetPanelVisible(bool is_visible);
  [[nodiscard]] bool PanelVisible() const noexcept { return is_visible_; }

  // --- Rows: row 0 is "Name", row i the kind's row i - 1 ---

  [[nodiscard]] int RowCount() const noexcept { return static_cast<int>(cells_.size()); }
  /// Name and value of a row; "" for a row that is not there.
  [[nodiscard]] std::string_view Label(int row) const noexcept;
  [[nodiscard]] const std::string& Text(int row) const noexcept;
  /// False for rows that only a dialog fills.
  [[nodiscard]] bool TakesTyping(int row) const noexcept;
  /// Position of the mark in the row as the support file has it, and the mark's code.
  [[nodiscard]] int RowNameLength(int row) const noexcept;
  [[nodiscard]] int RowMark(int row) const noexcept;
  /// Writes the stored value of a row into its text; a member that is lacking leaves it empty.
  void RowValue(std::string_view row_name, int row);
  [[nodiscard]] std::string EnumText(std::string_view kind, std::string_view row_name,
                                     int value) const;
  /// The font of a font row, its colour left out; nothing for another row.
  [[nodiscard]] std::optional<FontChoice> RowFont(int row) const;
  /// The files, the first that loads counting, that a picture or icon row shows; none for another
  /// row and for one without a picture.
  [[nodiscard]] std::vector<std::string> RowPictures(int row) const;
  /// What the selected row is for; lines end in CR LF, "" when nothing is known or none is
  /// selected.
  [[nodiscard]] std::string Help() const;
  [[nodiscard]] std::int32_t RowBackColor(int row) const noexcept;
  [[nodiscard]] std::int32_t RowTextColor(int row) const noexcept;

  /// Shows only rows whose name holds the text, in any case; "" shows all. Row 0 always shows and
  /// rows keep their numbers.
  void SetFilter(std::string_view text);
  [[nodiscard]] const std::string& Filter() const noexcept { return filter_; }
  /// The numbers of the shown rows from the top.
  [[nodiscard]] const std::vector<int>& ShownRows() const noexcept { return shown_rows_; }
  /// Top of a row; -1 for a row that is not shown.
  [[nodiscard]] int RowTop(int row) const noexcept;

  // --- Selected row ---

  void SelectRow(int row);
  /// The selected row; it stays from one event to the next. -1 before the first.
  [[nodiscard]] int RowIndex() const noexcept { return RowIndex_; }
  /// True while the selected row shows as such.
  [[nodiscard]] bool HasSelectedRow() const noexcept { return is_row_selected_; }
  [[nodiscard]] bool Boton1Shown() const noexcept;
  [[nodiscard]] bool Boton2Shown() const noexcept;
  [[nodiscard]] bool Boton3Shown() const noexcept;
  /// True when the shown button, and not the row's text, has the focus after the selection.
  [[nodiscard]] bool ButtonTakesFocus() const noexcept;
  /// Top of the buttons, and of the list beneath the row's text.
  [[nodiscard]] int ButtonTop() const noexcept { return RowTop(RowIndex_); }
  [[nodiscard]] int ListTop() const noexcept { return RowTop(RowIndex_) + kRowHeight; }
  [[nodiscard]] const std::vector<std::string>& ListRows() const noexcept { return list_rows_; }
  [[nodiscard]] int ListHeight() const noexcept { return list_height_; }
  [[nodiscard]] bool ListOpen() const noexcept { return is_list_open_; }
  /// Place of the row's present value in the open list; -1 for none.
  [[nodiscard]] int ListMarked() const noexcept { return list_marked_; }
  void CloseList();

  // --- Edits: each answers whether something was stored ---

  /// A text typed into the selected row, at each keystroke and when the focus leaves. A text that
  /// the row shows already is no edit.
  bool ApplyText(std::string_view text);
  /// A row picked from the list: its text and its place from 0. Closes the list.
  bool ApplyChoice(std::string_view text, int index);
  /// Brings the record of the current form's selection, or of the form itself for "Form", up to
  /// date for a row: sizes from window or control, "cursor", "enabled", "taborder" and "visible"
  /// from `RowChoice`. The grid follows where it shows the same object; the panel need not be
  /// visible.
  void SyncRow(std::string_view name_objet, std::string_view row_name);
  /// The same on a form that need not be the current one.
  void SyncRow(DesignForm& form, std::string_view name_objet, std::string_view row_name);
  /// `Boton1` and `Boton2`: the picker of the selected row. A cancelled one changes nothing.
  void PickValue();
  /// `Boton3`: back to "(Default)" or "(None)".
  void ResetValue();

  // --- Head `Combo` ---

  /// Builds the rows for the current form: it came to the front.
  void FillCombo();
  /// The user picked a row: selects the form or the object and shows its properties.
  void ChooseComboRow(int place);
  /// An object is about to go.
  void RemoveComboRow(std::string_view name);
  [[nodiscard]] const ObjectCombo& Combo() const noexcept { return combo_; }

  [[nodiscard]] std::int16_t GridBusy() const noexcept { return GridBusy_; }
  [[nodiscard]] std::int16_t GridFilling() const noexcept { return GridFilling_; }
  [[nodiscard]] const std::string& SelKind() const noexcept { return SelKind_; }
  [[nodiscard]] const std::string& SelName() const noexcept { return SelName_; }
  [[nodiscard]] std::int16_t RowChoice() const noexcept { return RowChoice_; }

 private:
  struct Cell {
    PropertyRow Row;
    std::string Text;
    const RowBinding* Binding = nullptr;
  };
  /// For whom the rows stand.
  struct Subject {
    int FormNumber = 0;
    const DesignForm* Window = nullptr;
    std::weak_ptr<DesignControl> Control;
    Kind Id = Kind::Form;
    int Index = 0;
  };

  [[nodiscard]] const Cell* CellAt(int row) const noexcept;
  [[nodiscard]] Cell* CellAt(int row) noexcept;
  /// The record and control of the subject; nothing once they are gone.
  [[nodiscard]] std::optional<RowTarget> Target() const;
  [[nodiscard]] std::optional<RowTarget> TargetOf(const Subject& subject) const;
  [[nodiscard]] Subject SubjectOf(const DesignForm* window, std::string_view kind_word) const;
  void TakeSubject();
  void BringComboRow(const RowTarget& target);
  void BuildCells();
  [[nodiscard]] std::string ValueText(const RowBinding& binding, const RowTarget& target) const;
  void SetText(int row, std::string text);
  void RereadRowsBut(int row);
  void ShowRows();
  void FillList(const Cell& cell);
  [[nodiscard]] bool IsEditable() const noexcept;

  bool ApplyToRow(const std::string& text);
  bool ApplyTyped(const Cell& cell, const RowTarget& target, const std::string& text);
  bool StoreChoice(const RowBinding& binding, const RowTarget& target, const std::string& value,
                   int place);
  bool StoreRowChoice(const RowBinding& binding, const RowTarget& target, double value);
  bool Sync(const RowBinding& binding, const RowTarget& target);
  void Rename(const RowTarget& target, const std::string& name);
  void RenameForm(const RowTarget& target, const std::string& old_name, const std::string& name);
  void Finish(const RowBinding& binding, const RowTarget& target);
  void LoadWindowIcon(const RowTarget& target);
  void LoadPicture(const RowTarget& target, const std::string& path);
  [[nodiscard]] std::optional<std::string> LoadablePath(const std::string& path);
  void TellChanged(int form, Kind kind);

  [[nodiscard]] int PlaceInList(std::string_view text) const noexcept;
  void OpenList();
  void PickFile(const RowTarget& target);
  void PickFont(const RowTarget& target);
  void PickColor();
  void PickFolder();
  void OpenDesigner(const RowTarget& target);
  void Picked(const std::string& text);

  ProjectTables& tables_;
  const language::SupportTables& support_;
  Ports& ports_;
  ProjectObserver& observer_;
  InspectorHost& host_;
  PropertySheetView* view_ = nullptr;

  Subject subject_;
  std::vector<Cell> cells_;
  std::string filter_;
  std::vector<int> shown_rows_;
  std::vector<std::string> list_rows_;
  int list_height_ = 500;
  int list_marked_ = -1;
  bool is_list_open_ = false;
  bool is_visible_ = true;
  bool is_row_selected_ = false;
  bool is_row_live_ = false;  ///< the selected row belongs to the present subject
  ObjectCombo combo_;
  bool combo_busy_ = false;

  std::string SelKind_;
  std::string SelName_;
  int RowIndex_ = -1;
  std::int16_t GridBusy_ = 0;
  std::int16_t GridFilling_ = 0;
  std::int16_t RowChoice_ = 0;
};

}  // namespace tarnwick
