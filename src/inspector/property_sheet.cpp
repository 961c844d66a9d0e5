#include "inspector/property_sheet.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "inspector/control_font.h"
#include "inspector/row_help.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kNameRow = "Name";
constexpr int kListDefaultHeight = 500;
constexpr int kListRowHeight = 250;
// A list with many values shows part of them and scrolls.
constexpr int kLongListRowHeight = 70;
constexpr std::size_t kLongListFrom = 8;

}  // namespace

PropertySheet::PropertySheet(ProjectTables& tables, const language::SupportTables& support,
                             Ports& ports, ProjectObserver& observer, InspectorHost& host)
    : tables_(tables), support_(support), ports_(ports), observer_(observer), host_(host) {}

void PropertySheet::ShowProperties(std::string_view kind_or_name, std::string_view object_name) {
  if (!is_visible_) return;
  SelKind_ = KindWordOf(kind_or_name);
  SelName_ = object_name;
  GridBusy_ = 1;
  GridFilling_ = 1;
  ClearPanel();
  TakeSubject();
  if (const std::optional<RowTarget> target = Target()) {
    BringComboRow(*target);
  }
  BuildCells();
  ShowRows();
  GridFilling_ = 0;
  GridBusy_ = 0;
}

/// Brings the head list to the subject's row, under its guard: that alone must select nothing.
void PropertySheet::BringComboRow(const RowTarget& target) {
  combo_busy_ = true;
  const int before = combo_.Selected();
  const bool is_new = combo_.Bring(target.Control, SelName_, InfoOf(target.Id).ComboText);
  if (view_ != nullptr && is_new) {
    view_->ComboChanged();
  } else if (view_ != nullptr && combo_.Selected() != before) {
    view_->ComboRowSelected(combo_.Selected());
  }
  combo_busy_ = false;
}

void PropertySheet::ShowSelection() {
  const DesignForm* form = tables_.CurrentForm;
  const FormRec* record = form != nullptr ? tables_.RecordOf(*form) : nullptr;
  if (record == nullptr) return;
  if (form->ControlSel) {
    ShowProperties(form->NameObjet, std::string{form->ControlSel->Tag});
  } else {
    ShowProperties(InfoOf(Kind::Form).Name, std::string{record->Name});
  }
}

void PropertySheet::ClearPanel() {
  CloseList();
  is_row_selected_ = false;
  if (view_ != nullptr) view_->RowSelected();
}

void PropertySheet::ClearPanelAndCombo() {
  ClearPanel();
  subject_ = {};
  is_row_live_ = false;
  combo_.Clear();
  if (!cells_.empty()) SetText(0, "");
  if (view_ != nullptr) view_->ComboChanged();
}

void PropertySheet::SetPanelVisible(bool is_visible) {
  if (is_visible == is_visible_) return;
  is_visible_ = is_visible;
  if (is_visible) ShowSelection();
}

/// What a kind word means on a form: the form itself, or its selected object if it is of the kind.
PropertySheet::Subject PropertySheet::SubjectOf(const DesignForm* window,
                                                std::string_view kind_word) const {
  const std::optional<Kind> kind = KindOfTag(Lower(kind_word));
  if (!kind || window == nullptr) return {};
  if (*kind == Kind::Form) return {window->Number(), window, {}, Kind::Form, 0};
  const ControlRef& selected = window->ControlSel;
  if (!selected || selected->Id != *kind) return {};
  return {window->Number(), window, selected, *kind, selected->Index};
}

/// Notes for whom the rows are built. The selected row stays in use only while its subject does:
/// a late text of a row must not reach the next object.
void PropertySheet::TakeSubject() {
  Subject subject = SubjectOf(tables_.CurrentForm, SelKind_);
  if (subject.Window != subject_.Window || subject.Id != subject_.Id ||
      subject.Control.lock() != subject_.Control.lock()) {
    is_row_live_ = false;
  }
  subject_ = std::move(subject);
}

std::optional<RowTarget> PropertySheet::Target() const {
  return TargetOf(subject_);
}

std::optional<RowTarget> PropertySheet::TargetOf(const Subject& subject) const {
  const int form = subject.FormNumber;
  if (subject.Window == nullptr || tables_.UserIfAny(form) != subject.Window ||
      !tables_.IsLive(form)) {
    return std::nullopt;
  }
  DesignForm& window = *tables_.User(form);
  FormRec& record = *tables_.Form(form);
  if (subject.Id == Kind::Form) return RowTarget{window, record, nullptr, Kind::Form, 0};
  const ControlRef control = subject.Control.lock();
  // A control that was unloaded may live on in someone's hand; it is no object any more.
  if (!control || window.Element(control->Id, control->Index) != control) return std::nullopt;
  return RowTarget{window, record, control.get(), subject.Id, subject.Index};
}

void PropertySheet::BuildCells() {
  const std::span<const PropertyRow> rows = PropertyRowsOf(support_, SelKind_);
  cells_.assign(rows.size() + 1, {});
  cells_[0].Row.Name = kNameRow;
  cells_[0].Text = SelName_;
  const std::optional<RowTarget> target = Target();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    Cell& cell = cells_[i + 1];
    cell.Row = rows[i];
    if (!target) continue;
    cell.Binding = BindingOf(cell.Row.Name, target->Id);
    if (cell.Binding != nullptr) cell.Text = ValueText(*cell.Binding, *target);
  }
}

std::string PropertySheet::ValueText(const RowBinding& binding, const RowTarget& target) const {
  if (binding.Shape != RowShape::Place) return StoredText(binding, target).value_or("");
  const std::optional<double> place = StoredNumber(binding, target);
  return place ? EnumText(SelKind_, binding.Row, static_cast<int>(*place)) : "";
}

void PropertySheet::RowValue(std::string_view row_name, int row) {
  const std::optional<RowTarget> target = Target();
  if (CellAt(row) == nullptr || !target) return;
  if (EqualsFolded(row_name, kNameRow)) {
    SetText(row, SelName_);
    return;
  }
  const RowBinding* binding = BindingOf(row_name, target->Id);
  SetText(row, binding != nullptr ? ValueText(*binding, *target) : "");
}

std::string PropertySheet::EnumText(std::string_view kind, std::string_view row_name,
                                    int value) const {
  return tarnwick::EnumText(support_, kind, row_name, value);
}

/// Other rows may read what an edit wrote besides: both icon rows of a form, the colour that came
/// with a font.
void PropertySheet::RereadRowsBut(int row) {
  const std::optional<RowTarget> target = Target();
  if (!target) return;
  for (int i = 1; i < RowCount(); ++i) {
    const RowBinding* binding = CellAt(i)->Binding;
    if (i != row && binding != nullptr) SetText(i, ValueText(*binding, *target));
  }
}

void PropertySheet::SetText(int row, std::string text) {
  Cell* cell = CellAt(row);
  if (cell == nullptr || cell->Text == text) return;
  cell->Text = std::move(text);
  if (view_ != nullptr) view_->RowTextChanged(row);
}

const PropertySheet::Cell* PropertySheet::CellAt(int row) const noexcept {
  if (row < 0 || row >= RowCount()) return nullptr;
  return &cells_[static_cast<std::size_t>(row)];
}

PropertySheet::Cell* PropertySheet::CellAt(int row) noexcept {
  return const_cast<Cell*>(std::as_const(*this).CellAt(row));
}

std::string_view PropertySheet::Label(int row) const noexcept {
  const Cell* cell = CellAt(row);
  return cell != nullptr ? cell->Row.Name : std::string_view{};
}

const std::string& PropertySheet::Text(int row) const noexcept {
  static const std::string empty;
  const Cell* cell = CellAt(row);
  return cell != nullptr ? cell->Text : empty;
}

bool PropertySheet::TakesTyping(int row) const noexcept {
  const Cell* cell = CellAt(row);
  if (cell == nullptr) return false;
  if (row == 0) return true;
  return cell->Binding != nullptr && cell->Binding->Shape != RowShape::Font &&
         cell->Binding->Shape != RowShape::Items;
}

int PropertySheet::RowNameLength(int row) const noexcept {
  return static_cast<int>(Label(row).size());
}

int PropertySheet::RowMark(int row) const noexcept {
  const Cell* cell = CellAt(row);
  return cell != nullptr ? cell->Row.Mark : row_mark::kText;
}

std::optional<FontChoice> PropertySheet::RowFont(int row) const {
  const std::optional<RowTarget> target = Target();
  if (RowMark(row) != row_mark::kFont || !target || target->Control == nullptr) return std::nullopt;
  return FontOf(*target->Control);
}

std::vector<std::string> PropertySheet::RowPictures(int row) const {
  const int mark = RowMark(row);
  const std::string& text = Text(row);
  if ((mark != row_mark::kPicture && mark != row_mark::kIcon) || !HasPicturePath(text)) return {};
  if (text == kDefaultFile) return {tables_.ProgramFolder + "\\iconapp.ico"};
  return {text, ResolveProjectPath(tables_, text, true)};
}

std::string PropertySheet::Help() const {
  if (!is_row_selected_) return {};
  return RowHelp(support_, SelKind_, Label(RowIndex_));
}

std::int32_t PropertySheet::RowBackColor(int row) const noexcept {
  return is_row_selected_ && row == RowIndex_ ? kSelectedBack : kNormalBack;
}

std::int32_t PropertySheet::RowTextColor(int row) const noexcept {
  return is_row_selected_ && row == RowIndex_ ? kSelectedText : kNormalText;
}

void PropertySheet::SetFilter(std::string_view text) {
  if (filter_ == text) return;
  filter_ = text;
  ShowRows();
}

void PropertySheet::ShowRows() {
  shown_rows_.clear();
  for (int i = 0; i < RowCount(); ++i) {
    const bool is_shown =
        i == 0 || filter_.empty() || FindFolded(Label(i), filter_) != std::string_view::npos;
    if (is_shown) shown_rows_.push_back(i);
  }
  if (view_ != nullptr) view_->RowsChanged();
}

int PropertySheet::RowTop(int row) const noexcept {
  const auto found = std::lower_bound(shown_rows_.begin(), shown_rows_.end(), row);
  if (found == shown_rows_.end() || *found != row) return -1;
  return static_cast<int>(found - shown_rows_.begin()) * kRowHeight;
}

void PropertySheet::SelectRow(int row) {
  const Cell* cell = CellAt(row);
  if (cell == nullptr) return;
  CloseList();
  RowIndex_ = row;
  is_row_selected_ = true;
  is_row_live_ = true;
  FillList(*cell);
  if (view_ != nullptr) view_->RowSelected();
}

void PropertySheet::FillList(const Cell& cell) {
  list_rows_.clear();
  list_height_ = kListDefaultHeight;
  if (!WidgetsOf(cell.Row.Mark).List) return;
  if (cell.Binding != nullptr && cell.Binding->Shape == RowShape::Parent) {
    list_rows_ = combo_.ParentNames();
  } else {
    list_rows_ = cell.Row.Values;
  }
  if (cell.Row.Mark != row_mark::kList) return;
  const bool is_long = cell.Row.Values.size() >= kLongListFrom;
  list_height_ =
      static_cast<int>(list_rows_.size()) * (is_long ? kLongListRowHeight : kListRowHeight);
}

bool PropertySheet::Boton1Shown() const noexcept {
  return is_row_selected_ && RowTop(RowIndex_) >= 0 && WidgetsOf(RowMark(RowIndex_)).Boton1;
}

bool PropertySheet::Boton2Shown() const noexcept {
  return is_row_selected_ && RowTop(RowIndex_) >= 0 && WidgetsOf(RowMark(RowIndex_)).Boton2;
}

bool PropertySheet::Boton3Shown() const noexcept {
  const Cell* cell = CellAt(RowIndex_);
  return Boton1Shown() && cell->Binding != nullptr && cell->Binding->HasReset;
}

bool PropertySheet::ButtonTakesFocus() const noexcept {
  return (Boton1Shown() || Boton2Shown()) && WidgetsOf(RowMark(RowIndex_)).TakesFocus;
}

void PropertySheet::CloseList() {
  if (!is_list_open_) return;
  is_list_open_ = false;
  list_marked_ = -1;
  if (view_ != nullptr) view_->ListOpened(false);
}

void PropertySheet::FillCombo() {
  const DesignForm* form = tables_.CurrentForm;
  const FormRec* record = form != nullptr ? tables_.RecordOf(*form) : nullptr;
  combo_busy_ = true;
  combo_.Clear();
  if (record != nullptr) {
    combo_.Fill(*form, record->Name);
    const DesignControl* selected = form->ControlSel.get();
    const Kind kind = selected != nullptr ? selected->Id : Kind::Form;
    combo_.Bring(selected, selected != nullptr ? selected->Tag : record->Name,
                 InfoOf(kind).ComboText);
  }
  if (view_ != nullptr) view_->ComboChanged();
  combo_busy_ = false;
}

void PropertySheet::ChooseComboRow(int place) {
  DesignForm* form = tables_.CurrentForm;
  const FormRec* record = form != nullptr ? tables_.RecordOf(*form) : nullptr;
  const auto& rows = combo_.Rows();
  if (combo_busy_ || record == nullptr || place < 0 ||
      static_cast<std::size_t>(place) >= rows.size()) {
    return;
  }
  const std::string text = rows[static_cast<std::size_t>(place)].Text;
  if (!Contains(text, "(")) return;
  if (ComboRowKind(text) == InfoOf(Kind::Form).Name) {
    host_.SelectObject(*form, nullptr);
    ShowSelection();
    return;
  }
  const ControlRef control = form->FindByTag(ComboRowName(text));
  if (!control) return;
  host_.SelectObject(*form, control);
  ShowSelection();
}

void PropertySheet::RemoveComboRow(std::string_view name) {
  if (combo_.Remove(name) && view_ != nullptr) view_->ComboChanged();
}

}  // namespace tarnwick
