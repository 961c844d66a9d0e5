// Edits of the property sheet: what a typed text, a picked value or a dialog does.
#include <utility>

#include "designer/history/history.h"
#include "inspector/control_font.h"
#include "inspector/property_sheet.h"
#include "inspector/row_record.h"
#include "inspector/row_store.h"
#include "inspector/typed_value.h"
#include "text/numbers.h"
#include "text/one_line.h"

namespace tarnwick {

namespace {

constexpr std::string_view kNumberRefused = "Not stored: the number is out of range.";
constexpr std::string_view kColourUnknown = "Not stored: no colour has this name.";
constexpr std::string_view kValueUnknown = "Not stored: the list has no such value.";
constexpr std::string_view kTextRefused =
    "Not stored: \"<\" or \">\" stands beside a word that the form file uses as a mark.";

}  // namespace

bool PropertySheet::IsEditable() const noexcept {
  return !is_filling_ && is_row_live_ && rows_.At(RowIndex_) != nullptr;
}

bool PropertySheet::ApplyText(std::string_view text) {
  if (!IsEditable() || Text(RowIndex_) == text) return false;
  return ApplyToRow(std::string(text));
}

/// The text as the row can hold it.
std::string PropertySheet::TakenText(std::string_view text) const {
  const std::string line = OneLineText(text);
  const RowBinding* binding = BindingAt(RowIndex_);
  return binding != nullptr ? StorableText(*binding, subject_.Id(), line) : line;
}

std::string PropertySheet::StepName() const {
  return EditStepName(Label(RowIndex_), SelName_);
}

/// Takes a text into the selected row and applies it; the row shows it even where it is refused.
bool PropertySheet::ApplyToRow(std::string text) {
  const std::optional<RowTarget> target = Target();
  text = TakenText(text);
  refusal_.clear();
  SetText(RowIndex_, text);
  if (!target) return false;
  const int form = target->Window.Number();
  const std::string key = subject_.Key().append(".").append(Label(RowIndex_));
  const bool goes_on = steps_.InStay(form, key);
  steps_.Stay(form, key, StepName());
  const bool is_stored = StoreTyped(*target, text);
  // A stay in which nothing was stored so far is not offered for undo.
  if (!is_stored && !goes_on) steps_.Leave();
  return is_stored;
}

bool PropertySheet::StoreTyped(const RowTarget& target, const std::string& text) {
  const int row = RowIndex_;
  if (row == 0) {
    Rename(target, text);
    return true;
  }
  const RowBinding* binding = BindingAt(row);
  if (binding == nullptr || !ApplyTyped(*binding, target, text)) return false;
  faults_.reset();
  RereadRowsBut(row);
  return true;
}

bool PropertySheet::ApplyTyped(const RowBinding& binding, const RowTarget& target,
                               const std::string& text) {
  // In a row of a list a typed text counts once it names a value.
  if (WidgetsOf(RowMark(RowIndex_)).List) {
    const int index = list_.IndexOf(text);
    if (index < 0) {
      if (!list_.Begins(text)) refusal_ = kValueUnknown;
      return false;
    }
    const std::string value = list_.Values()[static_cast<std::size_t>(index)];
    return edits_.Choice(binding, target, value, index);
  }
  if (IsTypedNumber(binding.Shape)) return ApplyNumber(binding, target, text);
  if (!IsStorable(binding, target.Id, text)) {
    refusal_ = kTextRefused;
    return false;
  }
  switch (binding.Shape) {
    case RowShape::Text:
      return edits_.Text(binding, target, text);
    case RowShape::File:
      return edits_.Text(binding, target, FileRowText(text, target.Id));
    default:
      return false;
  }
}

/// A number of many digits is stored digit by digit. One that turns out too large must not leave
/// its beginning behind: the row goes back to the value before it was typed in.
bool PropertySheet::ApplyNumber(const RowBinding& binding, const RowTarget& target,
                                const std::string& text) {
  const TypedNumber typed = ReadTypedNumber(binding.Shape, text);
  if (typed.Is == TypedNumber::State::Unfinished) return false;
  if (typed.Is == TypedNumber::State::Number && edits_.Number(binding, target, typed.Value)) {
    return true;
  }
  refusal_ = typed.Is == TypedNumber::State::Unknown ? kColourUnknown : kNumberRefused;
  if (number_at_entry_ && StoredNumber(binding, target) != number_at_entry_) {
    edits_.Number(binding, target, *number_at_entry_);
  }
  return false;
}

bool PropertySheet::Revert() {
  if (!IsEditable()) return false;
  const std::string shown = Text(RowIndex_);
  RereadRow(RowIndex_);
  if (shown == text_at_entry_ && Text(RowIndex_) == text_at_entry_) return false;
  if (Text(RowIndex_) != text_at_entry_) ApplyToRow(text_at_entry_);
  return true;
}

bool PropertySheet::ApplyChoice(std::string_view text, int index) {
  if (!IsEditable() || index < 0) return false;
  const int row = RowIndex_;
  const std::string value{text};
  refusal_.clear();
  CloseList();
  SetText(row, value);
  const std::optional<RowTarget> target = Target();
  const RowBinding* binding = BindingAt(row);
  if (!target || binding == nullptr) return false;
  const HistoryStep step(steps_, target->Window.Number(), StepName());
  if (!edits_.Choice(*binding, *target, value, index)) return false;
  faults_.reset();
  RereadRowsBut(row);
  TellRow(row);
  return true;
}

void PropertySheet::SyncRow(std::string_view name_objet, std::string_view row_name) {
  const RowSubject subject{tables_.CurrentForm, KindWordOf(name_objet)};
  const std::optional<RowTarget> target = subject.In(tables_);
  const RowBinding* binding = target ? BindingOf(row_name, target->Id) : nullptr;
  if (binding == nullptr || !edits_.Sync(*binding, *target) || !subject.IsSame(subject_)) return;
  RereadRow(rows_.RowOf(row_name));
}

void PropertySheet::Rename(const RowTarget& target, const std::string& name) {
  SelName_ = name;
  head_.Rename(target.Control, name, SelKind_);
  edits_.Rename(target, name);
  faults_.reset();
  TellRow(0);
}

void PropertySheet::PickValue() {
  if (!IsEditable()) return;
  const std::optional<RowTarget> target = Target();
  if (!target) return;
  const int mark = RowMark(RowIndex_);
  switch (mark) {
    case row_mark::kYesNo:
    case row_mark::kList:
      OpenList();
      break;
    case row_mark::kPicture:
    case row_mark::kIcon:
    case row_mark::kAnyFile:
    case row_mark::kHtmlFile:
      Picked(pickers_.File(mark, target->Id));
      break;
    case row_mark::kFont:
      PickFont(*target);
      break;
    case row_mark::kColor:
    case row_mark::kColorToo:
      PickColor();
      break;
    case row_mark::kFolder:
      Picked(pickers_.Folder(Text(RowIndex_)));
      break;
    case row_mark::kItems:
      OpenDesigner(*target);
      break;
    default:
      break;
  }
}

/// Opens the list with the present value marked; a second press of the button closes it.
void PropertySheet::OpenList() {
  if (list_.IsOpen()) {
    CloseList();
    return;
  }
  list_.Open(Text(RowIndex_));
  if (view_ != nullptr) view_->ListOpened(true);
}

void PropertySheet::PickFont(const RowTarget& target) {
  if (target.Control == nullptr) return;
  const RowBinding* color = BindingOf("fontcolor", target.Id);
  FontChoice start = FontOf(*target.Control);
  if (color != nullptr) {
    start.Color = ToInt32(StoredNumber(*color, target).value_or(0)).value_or(0);
  }
  const std::optional<FontChoice> font = pickers_.Font(start);
  // The dialog ran a loop of its own: look again whether the object is still there.
  const std::optional<RowTarget> now = Target();
  if (!font || !now || now->Control != target.Control) return;
  const HistoryStep step(steps_, now->Window.Number(), StepName());
  edits_.Font(*now, *font);
  RereadRowsBut(0);
  // Size and style are shown beside the name, which may be the same.
  for (int row = 1; row < RowCount(); ++row) {
    if (RowMark(row) == row_mark::kFont) TellRow(row);
  }
}

void PropertySheet::PickColor() {
  const std::int32_t start = RowColor(RowIndex_).value_or(0);
  if (const auto color = pickers_.Color(start)) Picked(NumberText(std::int64_t{*color}));
}

void PropertySheet::OpenDesigner(const RowTarget& target) {
  if (target.Id == Kind::PopUpMenu) {
    host_.OpenFormPopUp(target.Window, target.Index);
  } else {
    host_.OpenFormAddItems(target.Window);
  }
}

/// A picker filled the row. Even the text that stood there is applied again: the file behind it
/// may be another now.
void PropertySheet::Picked(const std::optional<std::string>& text) {
  if (!text || !IsEditable()) return;
  const HistoryStep step(steps_, subject_.FormNumber(), StepName());
  ApplyToRow(*text);
}

void PropertySheet::ResetValue() {
  const RowBinding* binding = BindingAt(RowIndex_);
  if (!IsEditable() || binding == nullptr || !binding->HasReset) return;
  const HistoryStep step(steps_, subject_.FormNumber(), StepName());
  Picked(std::string{NeutralFile(subject_.Id())});
  const std::optional<RowTarget> target = Target();
  if (target && target->Control != nullptr) edits_.RemovePicture(*target);
}

}  // namespace tarnwick
