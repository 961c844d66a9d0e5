#include "fakes/project_builder.h"

namespace tarnwick::test {

BuiltObject& BuiltObject::At(int left, int top) {
  Control.Left = static_cast<float>(left * kTwipsPerPixel);
  Control.Top = static_cast<float>(top * kTwipsPerPixel);
  return *this;
}

BuiltObject& BuiltObject::Size(int width, int height) {
  Control.Width = static_cast<float>(width * kTwipsPerPixel);
  Control.Height = static_cast<float>(height * kTwipsPerPixel);
  return *this;
}

BuiltObject& BuiltObject::Code(Event event, std::string code) {
  Tables.EventTable.Replace(User.KeyPrefix() + "." + Control.ArrayAndIndex(), event,
                            std::move(code));
  return *this;
}

BuiltObject& BuiltObject::Picture(std::string path) {
  Record.ImageFile = std::move(path);
  return *this;
}

BuiltObject& BuiltObject::Rows(std::vector<std::string> rows) {
  Control.Items = std::move(rows);
  return *this;
}

void BuiltObject::Delete() {
  User.Unload(User.Element(Control.Id, Control.Index));
}

FormRec& BuiltForm::Record() const {
  return *Tables.Form(Number);
}

DesignForm& BuiltForm::User() const {
  return *Tables.User(Number);
}

BuiltObject BuiltForm::Add(Kind kind, std::string_view name) const {
  DesignControl& control = *User().Load(kind);
  control.Tag = name;
  control.Visible = true;
  return {Tables, User(), control, RecordOf(kind, control.Index)};
}

const BuiltForm& BuiltForm::Code(Event event, std::string code) const {
  Tables.EventTable.Replace(User().KeyPrefix(), event, std::move(code));
  return *this;
}

const BuiltForm& BuiltForm::ItemCode(std::string_view item, std::string code) const {
  Tables.EventTable.Replace(User().KeyPrefix() + "." + std::string(item), Event::OnClick,
                            std::move(code));
  return *this;
}

const BuiltForm& BuiltForm::ShowMenuBar() const {
  for (std::size_t n = 1; n < Tables.MenuTitles.size(); ++n) {
    DesignControl& title = *User().Load(Kind::Menu);
    title.Tag = Tables.MenuTitles[n].Name;
    title.Caption = Tables.MenuTitles[n].Caption;
    title.Visible = true;
  }
  return *this;
}

void BuiltForm::Remove() const {
  Record().Removed = 1;
  Tables.ListaFrms.Remove(Number);
}

ObjectRec& BuiltForm::RecordOf(Kind kind, int index) const {
  static ObjectRec none;
  FormRec& form = Record();
  if (kind == Kind::WinSock) form.WinSocks.GrowTo(index);
  if (kind == Kind::HtmlViewer) form.HtmlViewers.Ensure(index)->Navigate = kNoPicture;
  if (kind == Kind::PopUpMenu) {
    form.PopUps.Ensure(index)->AutoPopUp = 1;
    form.PopUps.At(index)->PopUpMenu = form.Name;
    Tables.PopUpMenus.GrowTo(index);
  }
  RecordArray<ObjectRec>* records = form.Objects(kind);
  if (records == nullptr) return none = ObjectRec{};
  ObjectRec& record = *records->Ensure(index);
  record.Enabled = 1;
  record.Visible = 1;
  return record;
}

ProjectBuilder::ProjectBuilder() {
  Tables.ProgramFolder = "C:\\Tarnwick";
  Tables.ProjectFile = "C:\\Work\\Demo.tnp";
  Tables.SourceFile = "C:\\Tarnwick\\UnTitle.com";
  Tables.ExeFile = "C:\\Tarnwick\\UnTitle.exe";
}

ProjectBuilder::~ProjectBuilder() = default;

BuiltForm ProjectBuilder::AddForm(std::string_view name) {
  const int number = tarnwick::AddForm(Tables);
  BuiltForm form{Tables, number};
  if (Tables.CurrentForm == nullptr) Tables.CurrentForm = &form.User();
  if (!name.empty()) {
    form.Record().Name = name;
    Tables.ListaFrms.SetText(number, FormListText(name, ""));
    if (number == 1) Tables.MainFormName = FormListText(name, "");
  }
  return form;
}

ProjectBuilder& ProjectBuilder::Title(std::string name, std::string caption) {
  const std::size_t number = Tables.MenuTitles.size();
  Tables.MenuTitles.push_back(
      {std::move(caption), "Menu" + std::to_string(number), "", std::move(name), 0});
  return *this;
}

ProjectBuilder& ProjectBuilder::Item(std::string name, std::string caption) {
  const std::size_t number = Tables.MenuItems.size();
  Tables.MenuItems.push_back({std::move(caption),
                              static_cast<std::int16_t>(Tables.MenuTitles.size() - 1),
                              "Item" + std::to_string(number), std::move(name)});
  Tables.MenuTitles.back().LastItem = static_cast<std::int32_t>(number);
  return *this;
}

ProjectBuilder& ProjectBuilder::PopUpItem(int popup, std::string name, std::string caption) {
  auto& items = Tables.PopUpMenus.Ensure(popup)->Items;
  if (items.empty()) items.resize(1);
  items.push_back({std::vector<PopUpEntryRec>(1), std::move(name), std::move(caption), 0});
  return *this;
}

ProjectBuilder& ProjectBuilder::PopUpEntry(int popup, std::string name, std::string text) {
  PopUpMenuRec& item = Tables.PopUpMenus.Ensure(popup)->Items.back();
  item.Entries.push_back({std::move(name), std::move(text)});
  ++item.Level;
  return *this;
}

}  // namespace tarnwick::test
