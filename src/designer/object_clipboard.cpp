#include "designer/object_clipboard.h"

#include <array>
#include <type_traits>
#include <variant>

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

/// The record of a source as it stands before the copy's record is made: a copy of a deleted
/// object can come to stand in the very slot of its source.
using SourceRecord =
    std::variant<std::monostate, ObjectRec, WinSockRec, HtmlViewerRec, PopUpItemRec>;

SourceRecord ReadSource(const FormRec& form, const KindInfo& kind, int index) {
  return std::visit(
      [&](auto home) -> SourceRecord {
        if constexpr (std::is_same_v<decltype(home), std::monostate>) {
          return home;
        } else {
          return RecordOrEmpty(form.*home, index);
        }
      },
      kind.Records);
}

template <class Record>
void CopyFields(const KindInfo& kind, const Record& from, Record& to) {
  for (const RecordField& any : kind.Copy.Fields) {
    std::visit(
        [&](auto field) {
          if constexpr (std::is_invocable_v<decltype(field), Record&>) {
            to.*field = from.*field;
          }
        },
        any);
  }
}

void WriteCopy(FormRec& form, const KindInfo& kind, int index, const SourceRecord& source) {
  std::visit(
      [&](auto home) {
        if constexpr (!std::is_same_v<decltype(home), std::monostate>) {
          auto* const copy = (form.*home).At(index);
          using Record = std::remove_pointer_t<decltype(copy)>;
          if (copy != nullptr)
            CopyFields(kind, std::get<std::remove_const_t<Record>>(source), *copy);
        }
      },
      kind.Records);
}

void TakeMember(Member member, const DesignControl& from, DesignControl& to) {
  if (const auto value = from.Get(member)) to.Set(member, *value);
}

bool IsLive(const DesignForm& form, const ControlRef& control) {
  return control && form.Element(control->Id, control->Index) == control;
}

/// The rows that a copy of a list shows: the source's items, or its own name while the source has
/// none but its own. A check box that is copied with its check shows it.
void ShowCopiedRecord(const SourceRecord& source_record, const DesignControl* source,
                      DesignControl& copy) {
  const auto* const record = std::get_if<ObjectRec>(&source_record);
  if (source != nullptr && record != nullptr && !record->Items.empty()) {
    copy.Items = source->Items;
  } else {
    copy.AddItem(copy.Tag);
  }
  if (source != nullptr && copy.Id == Kind::CheckBox) copy.Value = source->Value;
}

}  // namespace

void ObjectClipboard::Copy(const DesignForm& form) {
  CopySource = form.ControlSel;
  CopyReady = true;
  CopyIndex = form.IndexObjet;
  last_pasted_ = nullptr;
}

ControlRef ObjectClipboard::Paste(ProjectTables& tables, DesignForm& form) {
  FormRec* record = tables.RecordOf(form);
  if (!CopyReady || record == nullptr || !CopySource) return nullptr;
  const KindInfo& kind = InfoOf(CopySource->Id);
  const CopyRule& rule = kind.Copy;
  if (!rule.Copied) return nullptr;
  const bool live = SourceIsLive(form);
  const SourceRecord source_record =
      live ? ReadSource(*record, kind, CopySource->Index) : SourceRecord{};
  ControlRef copy =
      LoadObject(tables, form, kind.Id, rule.Prefix.empty() ? kind.Prefix : rule.Prefix);
  if (!copy) return nullptr;
  if (live) {
    WriteCopy(*record, kind, copy->Index, source_record);
  } else {
    SetRecordDefaults(*record, kind.Id, copy->Index);
  }

  const DesignControl* source = live ? CopySource.get() : nullptr;
  const DesignControl* base = IsLive(form, last_pasted_) ? last_pasted_.get() : source;
  if (base != nullptr) {
    copy->Top = base->Top + kPasteStep;
    copy->Left = base->Left + kPasteStep;
  }
  if (source != nullptr) {
    if (rule.First) TakeMember(*rule.First, *source, *copy);
    for (const Member member : kCopiedMembers) TakeMember(member, *source, *copy);
    TakeMember(Member::Picture, *source, *copy);
  }
  ShowCopiedRecord(source_record, source, *copy);
  FitComboControl(*copy);
  if (rule.Tab != TabRule::None) {
    copy->Set(Member::TabIndex, std::int32_t{form.NextTabOrder});
    TakeTabOrder(tables, form, *copy, rule.Tab);
  }
  copy->Visible = true;
  last_pasted_ = copy;
  return copy;
}

std::string ObjectClipboard::WhyNothing() const {
  if (!CopyReady) return "Nothing to paste: no object was copied";
  if (!CopySource) return "Nothing to paste: the form itself was copied";
  return "Nothing to paste: " + CopySource->Tag + " has no copies";
}

bool ObjectClipboard::SourceIsLive(const DesignForm& form) const noexcept {
  return IsLive(form, CopySource);
}

void ObjectClipboard::NumberMoved(Kind kind, int index, bool back) noexcept {
  if (!CopySource || CopySource->Id != kind) return;
  if (back && CopyIndex >= index) ++CopyIndex;
  if (!back && CopyIndex > index) --CopyIndex;
}

}  // namespace tarnwick
