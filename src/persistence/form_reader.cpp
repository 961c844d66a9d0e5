#include "persistence/form_reader.h"

#include <algorithm>
#include <type_traits>
#include <utility>
#include <variant>

#include "model/new_form.h"
#include "model/units.h"
#include "persistence/menu_text.h"
#include "persistence/stored_text.h"
#include "text/code_page.h"
#include "text/line_cursor.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// Twips from a number of pixels as text; a number too large for single precision is refused.
void ReadLength(std::string_view value, float& twips) {
  SetNumber(twips, Val(value) * kTwipsPerPixel);
}

}  // namespace

FormReader::FormReader(ProjectTables& tables, std::string file_name, int target)
    : tables_(tables), file_name_(std::move(file_name)), target_(target) {
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
  for (LineCursor lines(text); !refused && lines.Next();) {
    if (lines.Line().empty()) continue;
    scanner_.Scan(lines.Line());
    refused = !ReadRecord(lines.Line());
  }
  tables_.LoadingProject = loading;
  if (refused) return FormReadResult::Refused;
  return last_form_ > 0 ? FormReadResult::Read : FormReadResult::NoForm;
}

bool FormReader::ReadRecord(std::string_view line) {
  if (const std::optional<Kind> kind = scanner_.ObjectKind()) {
    ReadObject(*kind);
    return true;
  }
  if (StartsWithFolded(line, "[form]")) return ReadForm();
  if (StartsWithFolded(line, "[menu]")) {
    ReadMenuTitle();
  } else if (StartsWithFolded(line, "[menuitem]") || StartsWithFolded(line, "[itemmenu]") ||
             EqualsFolded(scanner_.KindWord(), "sub")) {
    ReadItemCode();
  } else if (scanner_.KindWord() == "DeclarePbl") {
    ReadDeclarations();
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
      refused_name_ = scanner_.Name();
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
  ReadLength(scanner_.Stored(Tag::Width), window_->Width);
  ReadLength(scanner_.Stored(Tag::Height), window_->Height);
  window_->NameObjet = "Form";
  DesignControl no_control;
  no_control.Id = Kind::Form;
  Object object{no_control, std::nullopt, nullptr, nullptr};
  TakeFields(Kind::Form, object);
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
      object.Code = &tables_.EventTable.OwnerFor(ObjectPlace{window_number_, kind, *object.Number});
    }
    if (auto* const records = record_->Objects(kind)) {
      object.Record = records->Ensure(*object.Number);
    }
  }
  TakeFields(kind, object);
  ReadPicture(kind, object);
}

void FormReader::ReadPicture(Kind kind, Object& object) {
  if (InfoOf(kind).PictureWord.empty() || object.Record == nullptr ||
      !HasPicturePath(object.Record->ImageFile))
    return;
  object.Control.Picture = ResolveProjectPath(tables_, object.Record->ImageFile, true);
  object.Record->Title = PictureResourceName(window_->Number(), kind, *object.Number);
}

void FormReader::ReadMenuTitle() {
  if (!std::exchange(menu_met_, true)) tables_.ClearMenuArrays();
  ReadMenu(tables_, *window_, scanner_.Value(Tag::String), scanner_.Name(),
           scanner_.Value(Tag::Items));
}

void FormReader::ReadItemCode() {
  const std::string code = scanner_.Value(Tag::Click);
  const std::string owner = form_key_ + "." + std::string(scanner_.Name());
  tables_.EventTable.Replace(owner, Event::OnClick, code);
  if (!code.empty()) AddToBar(std::string(scanner_.Name()), Event::OnClick);
}

void FormReader::ReadDeclarations() {
  std::string text = scanner_.Value(Tag::String);
  if (!text.empty()) record_->DeclarePbl = std::move(text);
}

void FormReader::AddToBar(std::string name, Event event) {
  FrmBarra* const bar = tables_.Bar(form_);
  if (bar != nullptr) bar->Entries.push_back({std::move(name), std::string(InfoOf(event).Name)});
}

void FormReader::Take(Object& object, Tag tag, Special special) {
  switch (special) {
    case Special::WindowCaption:
      return Put(tag, window_->Caption);
    case Special::WindowColor:
      return Put(tag, window_->BackColor);
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
  if (!control.Has(member)) return;
  switch (member) {
    case Member::Left:
      return ReadLength(scanner_.Stored(tag), control.Left);
    case Member::Top:
      return ReadLength(scanner_.Stored(tag), control.Top);
    case Member::Width:
      return ReadLength(scanner_.Stored(tag), control.Width);
    case Member::Height:
      return ReadLength(scanner_.Stored(tag), control.Height);
    case Member::Value:
      // The state of a check or option object is kept both on the control and in its record.
      control.Set(member, scanner_.Value(tag));
      return Take(object, tag, &ObjectRec::Checked);
    default:
      std::visit(
          [&](auto field) {
            if constexpr (!std::is_same_v<decltype(field), std::monostate>) {
              Put(tag, control.*field);
            }
          },
          FieldOf(member));
  }
}

void FormReader::Take(Object& object, Tag tag, Event event) {
  if (object.Control.Id == Kind::Form) return TakeFormCode(tag, event);
  if (object.Code == nullptr) return;
  const std::string code = scanner_.Value(tag);
  // Every event of the kind has an entry. Of two objects with one number the first keeps its code,
  // empty or not.
  object.Code->Add(event, code);
  if (code.empty()) return;
  std::string name(InfoOf(object.Control.Id).Array);
  AppendNumber(name, std::int64_t{*object.Number});
  AddToBar(std::move(name), event);
}

void FormReader::TakeFormCode(Tag tag, Event event) {
  const std::string code = scanner_.Value(tag);
  if (!code.empty()) AddToBar("Form", event);
  tables_.EventTable.Replace(form_key_, event, code);
}

void FormReader::Take(Object& object, Tag tag, ItemsText items) {
  const std::string rows = scanner_.Value(tag);
  if (object.Record != nullptr) object.Record->*items.Field = rows;
  object.Control.Items = ItemRows(rows);
}

void FormReader::Take(Object& /*object*/, Tag tag, CommaText text) {
  Put(tag, record_->*text.Field);
}

template <class T>
void FormReader::Take(Object& object, Tag tag, T ObjectRec::*field) {
  if (object.Record == nullptr) return;
  Put(tag, object.Record->*field);
  if constexpr (std::is_same_v<T, std::int16_t>) {
    if (field != &ObjectRec::TabOrder) return;
    const double next = static_cast<double>(object.Record->TabOrder) + 1;
    window_->NextTabOrder =
        std::max(window_->NextTabOrder, ToInt16(next).value_or(object.Record->TabOrder));
  }
}

template <class T>
void FormReader::Take(Object& /*object*/, Tag tag, T FormRec::*field) {
  Put(tag, record_->*field);
}

template <class T>
void FormReader::Take(Object& object, Tag tag, T WinSockRec::*field) {
  if (object.Number) Put(tag, record_->WinSocks.Ensure(*object.Number)->*field);
}

template <class T>
void FormReader::Take(Object& object, Tag tag, T HtmlViewerRec::*field) {
  if (object.Number) Put(tag, record_->HtmlViewers.Ensure(*object.Number)->*field);
}

template <class T>
void FormReader::Take(Object& object, Tag tag, T PopUpItemRec::*field) {
  if (object.Number) Put(tag, record_->PopUps.Ensure(*object.Number)->*field);
}

void FormReader::TakeFields(Kind kind, Object& object) {
  for (const LayoutField& field : LayoutOf(kind).Fields) {
    if (field.In == Tag::None) continue;
    std::visit([&](auto source) { Take(object, field.In, source); }, field.Value);
  }
  for (const InheritedMember& inherited : InheritedMembersOf(kind)) {
    Take(object, inherited.In, inherited.Target);
  }
}

}  // namespace tarnwick
