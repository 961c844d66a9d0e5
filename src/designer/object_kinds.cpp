#include "designer/object_kinds.h"

#include <limits>
#include <type_traits>
#include <variant>

#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

/// Gives a popup its rows, unless they belong to an older popup of another form.
void PutFreshRows(ProjectTables& tables, int form, int index) {
  PopUpFormRec* rows = tables.PopUpMenus.Ensure(index);
  if (rows == nullptr || (!rows->Items.empty() && PopUpElsewhere(tables, form, index))) return;
  *rows = {};
  rows->Items.resize(1);
  rows->Items.front().Entries.resize(1);
}

template <class Record>
RecordArray<Record> FormRec::*HomeOf(const KindInfo& kind) noexcept {
  const auto* const home = std::get_if<RecordArray<Record> FormRec::*>(&kind.Records);
  return home == nullptr ? nullptr : *home;
}

/// The record that a field of a kind's row lies in; null where there is none.
template <class Record>
Record* OwnerOf(FormRec& form, const KindInfo& kind, int index, const RecordDefault& value) {
  if constexpr (std::is_same_v<Record, FormRec>) {
    return &form;
  } else {
    RecordArray<Record> FormRec::*home = HomeOf<Record>(kind);
    if constexpr (std::is_same_v<Record, ObjectRec>) {
      if (value.Into != nullptr) home = value.Into;
    }
    return home == nullptr ? nullptr : (form.*home).At(index);
  }
}

template <class Record, class Field>
void Store(FormRec& form, const KindInfo& kind, int index, const RecordDefault& value,
           Field Record::*field) {
  Record* const record = OwnerOf<Record>(form, kind, index, value);
  if (record == nullptr) return;
  if constexpr (std::is_same_v<Field, std::string>) {
    const auto* const text = std::get_if<std::string_view>(&value.Value);
    record->*field = text == nullptr ? std::string_view(form.Name) : *text;
  } else if (const auto* const number = std::get_if<std::int16_t>(&value.Value)) {
    record->*field = *number;
  }
}

void SetDefaults(FormRec& form, const KindInfo& kind, int index) {
  for (const RecordDefault& value : kind.Defaults) {
    std::visit([&](auto field) { Store(form, kind, index, value, field); }, value.Field);
  }
}

void ReadPixels(double twips, std::int16_t& field) noexcept {
  if (const auto pixels = ToInt16(twips / kTwipsPerPixel)) field = *pixels;
}

std::string OwnerKey(const DesignForm& form, const DesignControl& control) {
  return form.KeyPrefix() + "." + control.Tag;
}

}  // namespace

bool PopUpElsewhere(const ProjectTables& tables, int form, int index) {
  for (int other = 1; other <= tables.FormsCount; ++other) {
    const DesignForm* user = other == form ? nullptr : tables.UserIfAny(other);
    if (user != nullptr && tables.IsLive(other) && user->Element(Kind::PopUpMenu, index)) {
      return true;
    }
  }
  return false;
}

void SetRecordDefaults(FormRec& record, Kind kind, int index) {
  const KindInfo& info = InfoOf(kind);
  for (const RecordDefault& value : info.Defaults) {
    if (value.Into != nullptr) continue;
    std::visit([&](auto field) { Store(record, info, index, value, field); }, value.Field);
  }
}

std::optional<Kind> ArmedKind(std::string_view objeto) noexcept {
  for (const KindInfo& kind : AllKinds()) {
    if (kind.Placed && kind.Name == objeto) return kind.Id;
  }
  return std::nullopt;
}

std::string NewObjectName(std::string_view form_name, Kind kind, int index,
                          std::string_view prefix) {
  std::string name(form_name);
  name += prefix;
  if (!InfoOf(kind).OnePerForm) AppendNumber(name, std::int64_t{index});
  return name;
}

void PutFreshRecord(ProjectTables& tables, int form, Kind kind, int index) {
  FormRec* record = tables.Form(form);
  if (record == nullptr) return;
  const KindInfo& info = InfoOf(kind);
  std::visit(
      [&](auto home) {
        if constexpr (!std::is_same_v<decltype(home), std::monostate>) {
          if (auto* const fresh = (record->*home).Ensure(index)) *fresh = {};
        }
      },
      info.Records);
  if (info.Companion != nullptr) {
    if (std::string* items = (record->*info.Companion).Ensure(index)) items->clear();
  }
  if (kind == Kind::PopUpMenu) PutFreshRows(tables, form, index);
}

ControlRef LoadObject(ProjectTables& tables, DesignForm& form, Kind kind,
                      std::string_view name_prefix) {
  const FormRec* record = tables.RecordOf(form);
  const int index = form.UBound(kind) + 1;
  if (record == nullptr || index > std::numeric_limits<std::int16_t>::max()) return nullptr;
  PutFreshRecord(tables, form.Number(), kind, index);
  ControlRef control = form.Load(kind);
  control->Tag = NewObjectName(record->Name, kind, index, name_prefix);
  return control;
}

void TakeTabOrder(ProjectTables& tables, DesignForm& form, const DesignControl& control,
                  TabRule rule) {
  if (rule == TabRule::None) return;
  FormRec* record = tables.RecordOf(form);
  RecordArray<ObjectRec>* objects = nullptr;
  if (record != nullptr && rule == TabRule::Own) objects = record->Objects(control.Id);
  if (record != nullptr && rule == TabRule::InTextBoxes) objects = &record->TextBoxes;
  ObjectRec* object = objects != nullptr ? objects->At(control.Index) : nullptr;
  if (object != nullptr) object->TabOrder = form.NextTabOrder;
  if (form.NextTabOrder < std::numeric_limits<std::int16_t>::max()) ++form.NextTabOrder;
}

ControlRef CreateObject(ProjectTables& tables, DesignForm& form, Kind kind, float x, float y) {
  const KindInfo& info = InfoOf(kind);
  FormRec* record = tables.RecordOf(form);
  if (!info.Placed || record == nullptr) return nullptr;
  ControlRef control = LoadObject(tables, form, kind, info.Prefix);
  if (!control) return nullptr;
  SetDefaults(*record, info, control->Index);
  TakeTabOrder(tables, form, *control, info.Tab);
  control->Top = y;
  control->Left = x;
  // Set on every kind; a kind without the member does not take it.
  control->Set(Member::Caption, control->Tag);
  control->Set(Member::Text, control->Tag);
  control->AddItem(control->Tag);
  control->Visible = true;
  const std::string owner = OwnerKey(form, *control);
  for (const Event event : NewObjectEvents()) tables.EventTable.Add(owner, event, "");
  return control;
}

void DeleteObject(ProjectTables& tables, DesignForm& form, const ControlRef& control) {
  if (!control) return;
  const std::string owner = OwnerKey(form, *control);
  for (const Event event : NewObjectEvents()) {
    tables.EventTable.Remove(owner + std::string(InfoOf(event).Suffix));
  }
  FormRec* record = tables.RecordOf(form);
  if (record != nullptr && control->Id == Kind::Image) {
    if (ObjectRec* image = record->Images.At(control->Index)) image->ImageFile.clear();
  }
  control->Visible = false;
  form.Unload(control);
}

void StoreFramePlace(FormRec& record, const DesignControl& frame) {
  ReadPixels(frame.Left, record.TfLeft);
  ReadPixels(frame.Top, record.TfTop);
  ReadPixels(frame.Width, record.TfWidth);
  ReadPixels(frame.Height, record.TfHeight);
}

}  // namespace tarnwick
