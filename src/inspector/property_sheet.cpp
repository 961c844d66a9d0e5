#include "inspector/property_sheet.h"

#include <utility>

#include "designer/history/history.h"
#include "inspector/control_font.h"
#include "inspector/row_help.h"
#include "inspector/row_store.h"
#include "inspector/typed_value.h"
#include "project/check.h"
#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick {

PropertySheet::PropertySheet(ProjectTables& tables, const language::SupportTables& support,
                             Ports& ports, ProjectObserver& observer, InspectorHost& host,
                             History& steps)
    : tables_(tables),
      support_(support),
      ports_(ports),
      host_(host),
      steps_(steps),
      edits_(tables, observer, host),
      pickers_(tables, ports),
      head_(tables, host) {}

void PropertySheet::SetView(PropertySheetView* view) noexcept {
  view_ = view;
  head_.SetView(view);
}

void PropertySheet::ShowProperties(std::string_view kind_or_name, std::string_view object_name) {
  if (!is_visible_) return;
  SelKind_ = KindWordOf(kind_or_name);
  SelName_ = object_name;
  is_filling_ = true;
  ClearPanel();
  TakeSubject();
  if (const std::optional<RowTarget> target = Target()) {
    head_.Bring(target->Control, SelName_, target->Id);
  }
  BuildRows();
  is_filling_ = false;
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
  steps_.Leave();
  is_row_selected_ = false;
  if (view_ != nullptr) view_->RowSelected();
}

void PropertySheet::ClearPanelAndCombo() {
  ClearPanel();
  subject_ = {};
  is_row_live_ = false;
  SelName_.clear();
  head_.Clear();
  rows_.Build({}, nullptr);
  if (view_ != nullptr) view_->RowsChanged();
}

void PropertySheet::SetPanelVisible(bool is_visible) {
  if (is_visible == is_visible_) return;
  is_visible_ = is_visible;
  if (!is_visible) return;
  head_.Fill();
  ShowSelection();
}

/// Notes for whom the rows are built. The selected row stays in use only while its subject does:
/// a late text of a row must not reach the next object.
void PropertySheet::TakeSubject() {
  RowSubject subject{tables_.CurrentForm, SelKind_};
  if (subject.IsSame(subject_)) return;
  is_row_live_ = false;
  subject_ = std::move(subject);
  if (view_ != nullptr) view_->SubjectChanged();
}

/// Fills the rows one after the other and lets the screen follow. Whatever runs meanwhile may take
/// the object away, or show another.
void PropertySheet::BuildRows() {
  const RowSubject subject = subject_;
  faults_.reset();
  {
    const std::optional<RowTarget> target = Target();
    rows_.Build(PropertyRowsOf(support_, SelKind_), target ? &*target : nullptr);
  }
  rows_.SetText(0, SelName_);
  for (int row = 1; row < RowCount(); ++row) {
    const std::optional<RowTarget> target = Target();
    if (!target) break;
    if (const RowBinding* binding = BindingAt(row)) {
      rows_.SetText(row, ValueText(*binding, *target));
    }
    ports_.Screen.Yield();
    if (!subject.IsSame(subject_)) return;
  }
  if (view_ != nullptr) view_->RowsChanged();
}

std::string PropertySheet::ValueText(const RowBinding& binding, const RowTarget& target) const {
  if (binding.Shape != RowShape::Index) return StoredText(binding, target).value_or("");
  const std::optional<double> index = StoredNumber(binding, target);
  return index ? EnumText(support_, SelKind_, binding.Row, static_cast<int>(*index)) : "";
}

void PropertySheet::RereadRow(int row) {
  const std::optional<RowTarget> target = Target();
  if (!target || row < 0) return;
  if (row == 0) return SetText(0, SelName_);
  if (const RowBinding* binding = BindingAt(row)) SetText(row, ValueText(*binding, *target));
}

/// Other rows may read what an edit wrote besides: both icon rows of a form, the colour that came
/// with a font.
void PropertySheet::RereadRowsBut(int row) {
  for (int i = 1; i < RowCount(); ++i) {
    if (i != row) RereadRow(i);
  }
}

void PropertySheet::SetText(int row, std::string text) {
  if (rows_.SetText(row, std::move(text))) TellRow(row);
}

void PropertySheet::TellRow(int row) {
  if (view_ != nullptr) view_->RowTextChanged(row);
}

const RowBinding* PropertySheet::BindingAt(int row) const noexcept {
  const GridRows::Cell* cell = rows_.At(row);
  return cell != nullptr ? cell->Binding : nullptr;
}

std::string_view PropertySheet::Label(int row) const noexcept {
  const GridRows::Cell* cell = rows_.At(row);
  return cell != nullptr ? std::string_view{cell->Row.Name} : std::string_view{};
}

const std::string& PropertySheet::Text(int row) const noexcept {
  static const std::string empty;
  const GridRows::Cell* cell = rows_.At(row);
  return cell != nullptr ? cell->Text : empty;
}

int PropertySheet::RowMark(int row) const noexcept {
  const GridRows::Cell* cell = rows_.At(row);
  return cell != nullptr ? cell->Row.Mark : row_mark::kText;
}

bool PropertySheet::TakesTyping(int row) const noexcept {
  if (row == 0) return RowCount() > 0;
  const RowBinding* binding = BindingAt(row);
  return binding != nullptr && binding->Shape != RowShape::Font &&
         binding->Shape != RowShape::Items;
}

std::optional<FontChoice> PropertySheet::RowFont(int row) const {
  const std::optional<RowTarget> target = Target();
  if (RowMark(row) != row_mark::kFont || !target || target->Control == nullptr) return std::nullopt;
  return FontOf(*target->Control);
}

std::optional<std::int32_t> PropertySheet::RowColor(int row) const {
  const RowBinding* binding = BindingAt(row);
  const std::optional<RowTarget> target = Target();
  if (binding == nullptr || binding->Shape != RowShape::Color || !target) return std::nullopt;
  const std::optional<double> number = StoredNumber(*binding, *target);
  return number ? ToInt32(*number) : std::nullopt;
}

std::vector<std::string> PropertySheet::RowPictures(int row) const {
  const int mark = RowMark(row);
  const std::string& text = Text(row);
  if ((mark != row_mark::kPicture && mark != row_mark::kIcon) || !HasPicturePath(text)) return {};
  if (text == kDefaultFile) return {tables_.ProgramFolder + "\\iconapp.ico"};
  return {text, ResolveProjectPath(tables_, text, true)};
}

bool PropertySheet::IsPath(int row) const noexcept {
  switch (RowMark(row)) {
    case row_mark::kPicture:
    case row_mark::kIcon:
    case row_mark::kFolder:
    case row_mark::kAnyFile:
    case row_mark::kHtmlFile:
      return true;
    default:
      return false;
  }
}

std::string PropertySheet::RowFault(int row) const {
  if (row == RowIndex_ && is_row_live_ && !refusal_.empty()) return refusal_;
  for (const project::Finding& fault : Faults()) {
    if (!EqualsFolded(fault.Row, Label(row))) continue;
    std::string text = fault.Text;
    if (!text.empty()) text.front() = UpperByte(text.front());
    return text.append(": ").append(fault.ToDo()).append(".");
  }
  return {};
}

/// The findings of the project's check that are about a row of the subject.
const std::vector<project::Finding>& PropertySheet::Faults() const {
  if (faults_) return *faults_;
  faults_.emplace();
  const std::optional<RowTarget> target = Target();
  if (!target) return *faults_;
  const int form = target->Window.Number();
  for (project::Finding& finding : project::CheckProject(tables_, ports_.Files)) {
    const bool is_meant = finding.Form == form && finding.Of == target->Id &&
                          finding.Index == target->Index && !finding.Row.empty();
    if (is_meant) faults_->push_back(std::move(finding));
  }
  return *faults_;
}

std::string PropertySheet::Help() const {
  return is_row_selected_ ? HelpOf(RowIndex_) : std::string();
}

std::string PropertySheet::HelpOf(int row) const {
  return RowHelp(support_, SelKind_, Label(row));
}

void PropertySheet::SetFilter(std::string_view text) {
  if (rows_.Filter() == text) return;
  rows_.SetFilter(text);
  if (view_ != nullptr) view_->RowsChanged();
}

void PropertySheet::SelectRow(int row) {
  const GridRows::Cell* cell = rows_.At(row);
  if (cell == nullptr) return;
  CloseList();
  if (is_row_live_ && row != RowIndex_) LeaveRow();
  RowIndex_ = row;
  is_row_selected_ = true;
  is_row_live_ = true;
  last_row_ = cell->Row.Name;
  refusal_.clear();
  text_at_entry_ = cell->Text;
  const std::optional<RowTarget> target = Target();
  number_at_entry_ = target && cell->Binding != nullptr && IsTypedNumber(cell->Binding->Shape)
                         ? StoredNumber(*cell->Binding, *target)
                         : std::nullopt;
  const bool is_parent = cell->Binding != nullptr && cell->Binding->Shape == RowShape::Parent;
  list_.Fill(is_parent ? head_.Rows().ParentNames() : cell->Row.Values);
  if (view_ != nullptr) view_->RowSelected();
}

int PropertySheet::RowToEnter() const noexcept {
  const int row = rows_.RowOf(last_row_);
  return row > 0 ? row : 0;
}

void PropertySheet::LeaveRow() {
  steps_.Leave();
  if (is_filling_ || !is_row_live_) return;
  const bool was_refused = !std::exchange(refusal_, {}).empty();
  RereadRow(RowIndex_);
  if (was_refused) TellRow(RowIndex_);
}

bool PropertySheet::Boton1Shown() const noexcept {
  return is_row_selected_ && RowTop(RowIndex_) >= 0 && WidgetsOf(RowMark(RowIndex_)).Boton1;
}

bool PropertySheet::Boton2Shown() const noexcept {
  return is_row_selected_ && RowTop(RowIndex_) >= 0 && WidgetsOf(RowMark(RowIndex_)).Boton2;
}

bool PropertySheet::Boton3Shown() const noexcept {
  const RowBinding* binding = BindingAt(RowIndex_);
  return Boton1Shown() && binding != nullptr && binding->HasReset;
}

bool PropertySheet::ButtonTakesFocus() const noexcept {
  return (Boton1Shown() || Boton2Shown()) && WidgetsOf(RowMark(RowIndex_)).TakesFocus;
}

void PropertySheet::CloseList() {
  if (list_.Close() && view_ != nullptr) view_->ListOpened(false);
}

std::string_view PropertySheet::SelectedKind() const noexcept {
  const DesignForm* form = tables_.CurrentForm;
  if (form == nullptr) return {};
  return InfoOf(form->ControlSel ? form->ControlSel->Id : Kind::Form).Name;
}

void PropertySheet::ChooseComboRow(int row) {
  if (head_.Choose(row)) ShowSelection();
}

}  // namespace tarnwick
