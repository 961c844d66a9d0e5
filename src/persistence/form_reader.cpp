#include "persistence/form_reader.h"

#include <algorithm>
#include <utility>

#include "model/new_form.h"
#include "model/units.h"
#include "persistence/menu_text.h"
#include "persistence/stored_text.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kMessageTitle = "Tarnwick";

bool HasPicture(std::string_view path) {
  return !path.empty() && path != kNoPicture;
}

/// Twips from a number of pixels as text; a number too large for single precision is refused.
void ReadPlace(std::string_view value, float& twips) {
  if (const auto read = ToSingle(Val(value) * kTwipsPerPixel)) twips = *read;
}

}  // namespace

FormReader::FormReader(ProjectContext& context, std::string file_name, int target)
    : context_(context),
      tables_(context.Tables),
      file_name_(std::move(file_name)),
      target_(target) {
  form_ = target_ != 0 ? 0 : tables_.FormsCount;
  if (form_ == 0) {
    nowhere_ = std::make_unique<DesignForm>();
    nowhere_->SetNumber(0);
  }
  window_ = nowhere_ ? nowhere_.get() : tables_.User(form_);
  record_ = tables_.Form(form_);
  form_key_ = window_->KeyPrefix();
  window_number_ = window_->Number();
}

FormReadResult FormReader::Read(std::string_view text) {
  const auto loading = std::exchange(tables_.LoadingProject, std::int16_t{1});
  bool refused = false;
  for (std::size_t at = 0; at <= text.size() && !refused;) {
    const std::size_t end = std::min(text.find("\r\n", at), text.size());
    const std::string_view line = text.substr(at, end - at);
    if (!line.empty()) refused = !ReadLine(line);
    at = end + 2;
  }
  tables_.LoadingProject = loading;
  if (refused) return FormReadResult::Refused;
  return last_form_ > 0 ? FormReadResult::Read : FormReadResult::NoForm;
}

bool FormReader::ReadLine(std::string_view line) {
  scanner_.Scan(line);
  if (StartsWithFolded(line, "[form]")) return ReadForm();
  if (StartsWithFolded(line, "[menu]")) {
    ReadMenuTitle();
  } else if (StartsWithFolded(line, "[menuitem]") || StartsWithFolded(line, "[itemmenu]") ||
             EqualsFolded(scanner_.KindWord(), "sub")) {
    ReadItemCode();
  } else if (scanner_.KindWord() == "DeclarePbl") {
    ReadDeclarations();
  } else if (const std::optional<Kind> kind = scanner_.ObjectKind()) {
    ReadObject(*kind);
  }
  return true;
}

bool FormReader::ReadForm() {
  if (target_ != 0) {
    if (last_form_ != 0) return true;
    form_ = target_;
  } else {
    const std::string list_text = FormListText(scanner_.Name(), file_name_);
    if (tables_.ListaFrms.Holds(list_text)) {
      context_.Messages.Show(std::string(scanner_.Name()) + " already exist!", kMessageTitle);
      return false;
    }
    const int form = tables_.GrowForms();
    if (form == 0) return true;
    form_ = form;
    tables_.ListaFrms.Add(list_text, form_);
    LoadFormWindow(tables_, form_);
    tables_.Form(form_)->FileName = file_name_;
  }
  last_form_ = form_;
  window_ = tables_.User(form_);
  record_ = tables_.Form(form_);
  form_key_ = window_->KeyPrefix();
  window_number_ = window_->Number();
  ReadFormValues(form_);
  return true;
}

void FormReader::ReadFormValues(int form) {
  record_->Name = scanner_.Name();
  FrmBarra& bar = *tables_.Bar(form);
  bar.Caption = record_->Name + " Procedures";
  bar.Entries.clear();
  ReadPlace(scanner_.Stored(Tag::Width), window_->Width);
  ReadPlace(scanner_.Stored(Tag::Height), window_->Height);
  window_->NameObjet = "Form";
  DesignControl no_control;
  Object object{no_control, std::nullopt, nullptr, nullptr};
  for (const LayoutField& field : LayoutOf(Kind::Form).Fields) {
    if (field.In == Tag::None) continue;
    if (const auto* const event = std::get_if<Event>(&field.Value)) {
      const std::string_view code = scanner_.Value(field.In);
      if (!code.empty()) TellBar("Form", *event);
      tables_.EventTable.Replace(form_key_, *event, std::string(code));
    } else {
      std::visit([&](const auto& source) { Take(object, field.In, source); }, field.Value);
    }
  }
  if (record_->ImageFile != kDefaultFile) {
    window_->WindowPicture = ResolveProjectPath(tables_, record_->ImageFile, true);
  }
  if (record_->IconFile != kDefaultFile) {
    record_->IconFile = ResolveProjectPath(tables_, record_->IconFile, true);
  }
}

void FormReader::ReadObject(Kind kind) {
  DesignControl& control = *window_->Load(kind);
  control.Tag = scanner_.Name();
  control.Visible = true;
  Object object{control, ToInt16(Val(scanner_.Number())), nullptr, nullptr};
  if (object.Number && *object.Number < 0) object.Number.reset();
  if (object.Number) {
    if (InfoOf(kind).Events != EventListId::None) {
      object.Code = &tables_.EventTable.OwnerFor({window_number_, kind, *object.Number});
    }
    if (auto* const records = record_->Objects(kind))
      object.Record = records->Ensure(*object.Number);
  }
  for (const LayoutField& field : LayoutOf(kind).Fields) {
    if (field.In == Tag::None) continue;
    std::visit([&](const auto& source) { Take(object, field.In, source); }, field.Value);
  }
  for (const InheritedMember& member : InheritedMembersOf(kind)) {
    Take(object, member.In, member.Target);
  }
  ReadPicture(kind, object);
}

void FormReader::ReadPicture(Kind kind, Object& object) {
  const bool with_picture = kind == Kind::Button || kind == Kind::Image;
  if (!with_picture || object.Record == nullptr || !HasPicture(object.Record->ImageFile)) return;
  object.Control.Picture = ResolveProjectPath(tables_, object.Record->ImageFile, true);
  object.Record->Title = PictureResourceName(window_->Number(), kind, *object.Number);
}

void FormReader::ReadMenuTitle() {
  if (!std::exchange(menu_met_, true)) tables_.ClearMenuArrays();
  const std::string caption(scanner_.Value(Tag::String));
  ReadMenu(tables_, *window_, caption, scanner_.Name(), scanner_.Value(Tag::Items));
}

void FormReader::ReadItemCode() {
  const std::string_view code = scanner_.Value(Tag::Click);
  const std::string owner = form_key_ + "." + std::string(scanner_.Name());
  tables_.EventTable.Replace(owner, Event::OnClick, std::string(code));
  if (!code.empty()) TellBar(scanner_.Name(), Event::OnClick);
}

void FormReader::ReadDeclarations() {
  const std::string_view text = scanner_.Value(Tag::String);
  if (!text.empty()) record_->DeclarePbl = text;
}

void FormReader::TellBar(std::string_view name, Event event) {
  FrmBarra* const bar = tables_.Bar(form_);
  if (bar != nullptr) bar->Entries.push_back({std::string(name), std::string(InfoOf(event).Name)});
}

void FormReader::Take(Object& object, Tag tag, Special special) {
  switch (special) {
    case Special::WindowCaption:
      window_->Caption = scanner_.Value(tag);
      return;
    case Special::WindowColor:
      TakeNumber(tag, window_->BackColor);
      return;
    case Special::ItemList:
      if (object.Number) {
        ReadPopUpRows(*tables_.PopUpMenus.Ensure(*object.Number), scanner_.Value(tag));
      }
      return;
    case Special::Number:
    case Special::Name:
    case Special::One:
      return;
  }
}

void FormReader::Take(Object& object, Tag tag, Member member) {
  DesignControl& control = object.Control;
  switch (member) {
    case Member::Left:
      return ReadPlace(scanner_.Stored(tag), control.Left);
    case Member::Top:
      return ReadPlace(scanner_.Stored(tag), control.Top);
    case Member::Width:
      return ReadPlace(scanner_.Stored(tag), control.Width);
    case Member::Height:
      return ReadPlace(scanner_.Stored(tag), control.Height);
    default:
      break;
  }
  control.SetFromText(member, scanner_.Value(tag));
  // The state of a check or option object is kept on the control and in its record both.
  if (member == Member::Value) Take(object, tag, &ObjectRec::Checked);
}

void FormReader::Take(Object& object, Tag tag, Event event) {
  if (object.Code == nullptr) return;
  const std::string_view code = scanner_.Value(tag);
  if (!code.empty()) {
    std::string name(InfoOf(object.Control.Id).Array);
    AppendNumber(name, std::int64_t{*object.Number});
    TellBar(name, event);
  }
  tables_.EventTable.Add(*object.Code, event, code);
}

void FormReader::Take(Object& object, Tag tag, std::int16_t ObjectRec::*field) {
  if (object.Record == nullptr) return;
  TakeNumber(tag, object.Record->*field);
  if (field == &ObjectRec::TabOrder) {
    const double next = static_cast<double>(object.Record->TabOrder) + 1;
    window_->NextTabOrder =
        std::max(window_->NextTabOrder, ToInt16(next).value_or(object.Record->TabOrder));
  }
}

void FormReader::Take(Object& object, Tag tag, std::int32_t ObjectRec::*field) {
  if (object.Record != nullptr) TakeNumber(tag, object.Record->*field);
}

void FormReader::Take(Object& object, Tag tag, std::string ObjectRec::*field) {
  if (object.Record != nullptr) object.Record->*field = scanner_.Value(tag);
}

void FormReader::Take(Object& object, Tag tag, ItemsText items) {
  const std::string_view rows = scanner_.Value(tag);
  if (object.Record != nullptr) object.Record->*items.Field = rows;
  object.Control.Items = ItemRows(rows);
}

void FormReader::Take(Object& /*object*/, Tag tag, std::int16_t FormRec::*field) {
  TakeNumber(tag, record_->*field);
}

void FormReader::Take(Object& /*object*/, Tag tag, std::int32_t FormRec::*field) {
  TakeNumber(tag, record_->*field);
}

void FormReader::Take(Object& /*object*/, Tag tag, std::string FormRec::*field) {
  record_->*field = scanner_.Value(tag);
}

void FormReader::Take(Object& /*object*/, Tag tag, CommaText text) {
  record_->*text.Field = scanner_.Value(tag);
}

void FormReader::Take(Object& object, Tag tag, std::string WinSockRec::*field) {
  if (object.Number) record_->WinSocks.Ensure(*object.Number)->*field = scanner_.Value(tag);
}

void FormReader::Take(Object& object, Tag tag, std::string HtmlViewerRec::*field) {
  if (object.Number) record_->HtmlViewers.Ensure(*object.Number)->*field = scanner_.Value(tag);
}

void FormReader::Take(Object& object, Tag tag, std::int16_t PopUpItemRec::*field) {
  if (object.Number) TakeNumber(tag, record_->PopUps.Ensure(*object.Number)->*field);
}

void FormReader::Take(Object& object, Tag tag, std::string PopUpItemRec::*field) {
  if (object.Number) record_->PopUps.Ensure(*object.Number)->*field = scanner_.Value(tag);
}

}  // namespace tarnwick
