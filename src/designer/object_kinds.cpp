#include "designer/object_kinds.h"

#include <algorithm>
#include <array>
#include <limits>

#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

constexpr RecordDefaults kPlain{};
constexpr RecordDefaults kShown{1, 1, "", "", "", ""};
constexpr RecordDefaults kButton{1, 1, kNoPicture, "", kNoPicture, ""};
constexpr RecordDefaults kImage{1, 1, kNoPicture, kNoPicture, "", ""};
constexpr RecordDefaults kFileDialog{0, 0, "", "", "", "All Files|*.*"};

constexpr std::array<CreationRule, 18> kRules{{
    {Kind::PopUpMenu, TabRule::None, kPlain, true, "PopupMenu"},
    {Kind::WinSock, TabRule::None, kPlain, false, ""},
    {Kind::HtmlViewer, TabRule::None, kPlain, true, "HtmlViewer"},
    {Kind::TransparentFrame, TabRule::None, kPlain, false, ""},
    {Kind::FileStream, TabRule::None, kPlain, true, "FileStream"},
    {Kind::Time, TabRule::None, kPlain, true, ""},
    {Kind::OpenDialog, TabRule::None, kFileDialog, true, ""},
    {Kind::SaveDialog, TabRule::None, kFileDialog, true, ""},
    {Kind::ComboBox, TabRule::Own, kShown, true, ""},
    {Kind::Button, TabRule::Own, kButton, true, ""},
    {Kind::TextBox, TabRule::Own, kShown, true, ""},
    {Kind::Label, TabRule::None, kShown, true, ""},
    {Kind::ListBox, TabRule::Own, kShown, true, ""},
    {Kind::Image, TabRule::None, kImage, true, ""},
    {Kind::RichTextBox, TabRule::InTextBoxes, kShown, true, ""},
    {Kind::CheckBox, TabRule::Own, kShown, true, ""},
    {Kind::OptionButton, TabRule::Own, kShown, true, ""},
    {Kind::Frame, TabRule::CountOnly, kPlain, false, ""},
}};

/// The entries that a deletion takes away: those of a new object, in an order of its own.
constexpr std::array kDeletedEvents{Event::OnTimer,     Event::OnClick,   Event::OnChange,
                                    Event::OnDblClick,  Event::OnEnter,   Event::OnMouseDown,
                                    Event::OnMouseMove, Event::OnMouseUp, Event::OnKeyDown,
                                    Event::OnKeyUp,     Event::OnKeyPress};

constexpr std::int16_t kNewFrameSide = 105;  // pixels
constexpr std::int16_t kNewFrameTransparency = 60;
constexpr std::int16_t kNewFrameAlign = 5;

/// True when a popup menu of that number stands on another form: the rows of all forms share one
/// array, and a new popup must not empty rows that belong to an older one.
bool PopUpElsewhere(const ProjectTables& tables, int form, int index) {
  for (int other = 1; other <= tables.FormsCount; ++other) {
    const DesignForm* user = other == form ? nullptr : tables.UserIfAny(other);
    if (user != nullptr && tables.IsLive(other) && user->Element(Kind::PopUpMenu, index)) {
      return true;
    }
  }
  return false;
}

void PutFreshPopUp(ProjectTables& tables, FormRec& record, int form, int index) {
  if (PopUpItemRec* item = record.PopUps.Ensure(index)) *item = {};
  PopUpFormRec* rows = tables.PopUpMenus.Ensure(index);
  if (rows == nullptr || (!rows->Items.empty() && PopUpElsewhere(tables, form, index))) return;
  *rows = {};
  rows->Items.resize(1);
  rows->Items.front().Entries.resize(1);
}

void SetFrameDefaults(FormRec& record) {
  record.TfTop = 0;
  record.TfLeft = 0;
  record.TfWidth = kNewFrameSide;
  record.TfHeight = kNewFrameSide;
  record.TfTransparency = kNewFrameTransparency;
  record.TfAlign = kNewFrameAlign;
  record.TfCursor = 0;
  record.TfTranspColor = 0;
  record.TfString.clear();
}

void SetRecordDefaults(ObjectRec& record, const RecordDefaults& defaults) {
  record.Enabled = defaults.Enabled;
  record.Visible = defaults.Visible;
  record.ImageFile = defaults.ImageFile;
  record.PictureName = defaults.PictureName;
  record.Title = defaults.Title;
  record.Filter = defaults.Filter;
}

void SetDefaults(FormRec& record, Kind kind, int index, const RecordDefaults& defaults) {
  if (RecordArray<ObjectRec>* objects = record.Objects(kind)) {
    if (ObjectRec* object = objects->At(index)) SetRecordDefaults(*object, defaults);
  }
  switch (kind) {
    case Kind::PopUpMenu:
      if (PopUpItemRec* item = record.PopUps.At(index)) *item = {0, 1, record.Name};
      break;
    case Kind::WinSock:
      if (WinSockRec* sock = record.WinSocks.At(index)) {
        *sock = {"AF_INET ", "IPPROTO_IP", "SOCK_STREAM", "0"};
      }
      break;
    case Kind::HtmlViewer:
      if (HtmlViewerRec* viewer = record.HtmlViewers.At(index)) {
        *viewer = {std::string(kNoPicture), "0", "0", "Form.ClientWidth", "Form.ClientHeight"};
      }
      break;
    case Kind::TransparentFrame:
      SetFrameDefaults(record);
      break;
    case Kind::Image:
      // The third "(None)" of an image goes to the Button of the same index. A form with fewer
      // buttons has no place for it.
      if (ObjectRec* button = record.Buttons.At(index)) button->Title = kNoPicture;
      break;
    default:
      break;
  }
}

void ReadPixels(double twips, std::int16_t& field) noexcept {
  if (const auto pixels = ToInt16(twips / kTwipsPerPixel)) field = *pixels;
}

std::string OwnerKey(const DesignForm& form, const DesignControl& control) {
  return form.KeyPrefix() + "." + control.Tag;
}

}  // namespace

std::span<const CreationRule> CreationRules() noexcept {
  return kRules;
}

const CreationRule* RuleOf(Kind kind) noexcept {
  const auto* const found = std::find_if(
      kRules.begin(), kRules.end(), [kind](const CreationRule& rule) { return rule.Id == kind; });
  return found == kRules.end() ? nullptr : &*found;
}

std::optional<Kind> ArmedKind(std::string_view objeto) noexcept {
  for (const CreationRule& rule : kRules) {
    if (InfoOf(rule.Id).Name == objeto) return rule.Id;
  }
  return std::nullopt;
}

std::string NewObjectName(std::string_view form_name, Kind kind, int index,
                          std::string_view prefix) {
  std::string name(form_name);
  name += prefix;
  if (kind != Kind::TransparentFrame) AppendNumber(name, std::int64_t{index});
  return name;
}

void PutFreshRecord(ProjectTables& tables, int form, Kind kind, int index) {
  FormRec* record = tables.Form(form);
  if (record == nullptr) return;
  if (RecordArray<ObjectRec>* objects = record->Objects(kind)) {
    if (ObjectRec* object = objects->Ensure(index)) *object = {};
  }
  switch (kind) {
    case Kind::ComboBox:
      if (std::string* items = record->ComboItems.Ensure(index)) items->clear();
      break;
    case Kind::PopUpMenu:
      PutFreshPopUp(tables, *record, form, index);
      break;
    case Kind::WinSock:
      if (WinSockRec* sock = record->WinSocks.Ensure(index)) *sock = {};
      break;
    case Kind::HtmlViewer:
      if (HtmlViewerRec* viewer = record->HtmlViewers.Ensure(index)) *viewer = {};
      break;
    default:
      break;
  }
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
  const CreationRule* rule = RuleOf(kind);
  FormRec* record = tables.RecordOf(form);
  if (rule == nullptr || record == nullptr) return nullptr;
  const KindInfo& info = InfoOf(kind);
  ControlRef control =
      LoadObject(tables, form, kind, info.Prefix.empty() ? info.NameWord : info.Prefix);
  if (!control) return nullptr;
  SetDefaults(*record, kind, control->Index, rule->Record);
  TakeTabOrder(tables, form, *control, rule->Tab);
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
  for (const Event event : kDeletedEvents) {
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
