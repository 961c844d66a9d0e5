#include "designer/object_clipboard.h"

#include <array>
#include <optional>

#include "designer/combo_control.h"
#include "designer/object_kinds.h"
#include "model/units.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr float kPasteStep = 10 * kTwipsPerPixel;

constexpr std::array kCopiedMembers{
    Member::Caption,    Member::Text,         Member::ToolTipText, Member::BorderStyle,
    Member::Width,      Member::Height,       Member::BackColor,   Member::FontName,
    Member::FontSize,   Member::ForeColor,    Member::FontBold,    Member::FontStrikethru,
    Member::FontItalic, Member::FontUnderline};

/// The fields of a record that a copy takes over, by kind.
void CopyFields(Kind kind, const ObjectRec& from, ObjectRec& to) {
  const auto take = [&from, &to](auto... fields) { ((to.*fields = from.*fields), ...); };
  using R = ObjectRec;
  switch (kind) {
    case Kind::ComboBox:
      return take(&R::Enabled, &R::Visible, &R::Items, &R::Sorted, &R::Cursor);
    case Kind::OpenDialog:
    case Kind::SaveDialog:
      return take(&R::FileName, &R::Filter, &R::InitialDir, &R::Title);
    case Kind::Time:
      return take(&R::Enabled, &R::Interval);
    case Kind::Button:
      return take(&R::Enabled, &R::Visible, &R::ImageFile, &R::Cursor, &R::FontColor, &R::Title);
    case Kind::TextBox:
      return take(&R::Visible, &R::Enabled, &R::ReadOnly);
    case Kind::RichTextBox:
      return take(&R::Enabled, &R::Visible, &R::ReadOnly, &R::HideScrollBars, &R::ScrollBars,
                  &R::Icon);
    case Kind::OptionButton:
      return take(&R::Visible, &R::Enabled, &R::Cursor);
    case Kind::Label:
      return take(&R::Visible, &R::Enabled, &R::Cursor, &R::Icon);
    case Kind::Image:
      return take(&R::Visible, &R::Enabled, &R::ImageFile, &R::Cursor, &R::Title);
    case Kind::ListBox:
      return take(&R::Visible, &R::Enabled, &R::Columns, &R::Cursor, &R::InitialDir,
                  &R::MultiSelect, &R::Sorted, &R::Items);
    case Kind::CheckBox:
      return take(&R::Visible, &R::Enabled, &R::Cursor, &R::Checked);
    default:
      return;
  }
}

/// The record of a source as it stands before the copy's record is made: a copy of a deleted
/// object can come to stand in the very slot of its source.
struct SourceRecord {
  ObjectRec Object;
  PopUpItemRec PopUp;
  HtmlViewerRec Viewer;
};

SourceRecord ReadSource(const FormRec& record, Kind kind, int index) {
  SourceRecord source;
  if (const RecordArray<ObjectRec>* objects = record.Objects(kind)) {
    source.Object = RecordOrEmpty(*objects, index);
  }
  if (kind == Kind::PopUpMenu) source.PopUp = RecordOrEmpty(record.PopUps, index);
  if (kind == Kind::HtmlViewer) source.Viewer = RecordOrEmpty(record.HtmlViewers, index);
  return source;
}

void WriteCopy(FormRec& record, Kind kind, int index, const SourceRecord& source) {
  if (RecordArray<ObjectRec>* objects = record.Objects(kind)) {
    if (ObjectRec* object = objects->At(index)) CopyFields(kind, source.Object, *object);
  }
  if (kind == Kind::PopUpMenu) {
    if (PopUpItemRec* item = record.PopUps.At(index)) {
      item->Alignment = source.PopUp.Alignment;
      item->AutoPopUp = source.PopUp.AutoPopUp;
    }
  }
  if (kind == Kind::HtmlViewer) {
    if (HtmlViewerRec* viewer = record.HtmlViewers.At(index)) {
      viewer->Navigate = source.Viewer.Navigate;
    }
  }
}

void TakeMember(Member member, const DesignControl& from, DesignControl& to) {
  if (const auto value = from.Get(member)) to.Set(member, *value);
}

/// The member that a kind's copy takes before all others.
std::optional<Member> FirstMember(Kind kind) noexcept {
  switch (kind) {
    case Kind::ListBox:
      return Member::Appearance;
    case Kind::Image:
      return Member::Stretch;
    case Kind::Label:
    case Kind::RichTextBox:
      return Member::WordWrap;
    default:
      return std::nullopt;
  }
}

bool IsLive(const DesignForm& form, const ControlRef& control) {
  return control && form.Element(control->Id, control->Index) == control;
}

/// The rows that a copy of a list shows: the source's items, or its own name while the source has
/// none but its own.
void FillList(const ObjectRec& source_record, const DesignControl* source, DesignControl& copy) {
  if (source != nullptr && !source_record.Items.empty()) {
    copy.Items = source->Items;
  } else {
    copy.AddItem(copy.Tag);
  }
}

}  // namespace

void ObjectClipboard::Copy(const DesignForm& form) {
  CopySource = form.ControlSel;
  CopyReady = true;
  CopyKind = form.NameObjet;
  CopyIndex = form.IndexObjet;
  last_pasted_ = nullptr;
}

ControlRef ObjectClipboard::Paste(ProjectTables& tables, DesignForm& form) {
  FormRec* record = tables.RecordOf(form);
  const CreationRule* rule = CopySource ? RuleOf(CopySource->Id) : nullptr;
  if (!CopyReady || record == nullptr || rule == nullptr || !rule->Copied) return nullptr;
  const Kind kind = rule->Id;
  const SourceRecord source_record = ReadSource(*record, kind, CopyIndex);
  ControlRef copy = LoadObject(tables, form, kind,
                               rule->PastePrefix.empty() ? InfoOf(kind).Prefix : rule->PastePrefix);
  if (!copy) return nullptr;
  WriteCopy(*record, kind, copy->Index, source_record);

  const DesignControl* source = IsLive(form, CopySource) ? CopySource.get() : nullptr;
  const DesignControl* base = IsLive(form, last_pasted_) ? last_pasted_.get() : source;
  if (base != nullptr) {
    copy->Top = base->Top + kPasteStep;
    copy->Left = base->Left + kPasteStep;
  }
  if (source != nullptr) {
    if (const auto first = FirstMember(kind)) TakeMember(*first, *source, *copy);
    for (const Member member : kCopiedMembers) TakeMember(member, *source, *copy);
    TakeMember(Member::Picture, *source, *copy);
  }
  FillList(source_record.Object, source, *copy);
  FitComboControl(*copy);
  // Images and labels alone take no place in the tab order; kinds without a record of one are
  // counted all the same.
  if (kind != Kind::Image && kind != Kind::Label) {
    copy->Set(Member::TabIndex, std::int32_t{form.NextTabOrder});
    TakeTabOrder(tables, form, *copy, rule->Tab == TabRule::None ? TabRule::CountOnly : rule->Tab);
  }
  copy->Visible = true;
  last_pasted_ = copy;
  return copy;
}

void ObjectClipboard::ForgetSource() noexcept {
  CopySource = nullptr;
  last_pasted_ = nullptr;
}

}  // namespace tarnwick
