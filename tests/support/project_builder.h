// Projects built in memory, for tests and benchmarks.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/new_form.h"
#include "model/project_records.h"
#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick::test {

/// An object on a form. Its control and record are open to be changed; the calls that answer the
/// object itself can be put in a row:
///
///   form.Add(Kind::Button, "Button1").At(10, 10).Code(Event::OnClick, "Beep").Record.TabOrder = 3;
struct BuiltObject {
  ProjectTables& Tables;
  DesignForm& User;
  DesignControl& Control;
  ObjectRec& Record;  ///< of a kind without such records it belongs to nothing

  BuiltObject& At(int left, int top) {
    Control.Left = static_cast<float>(left * kTwipsPerPixel);
    Control.Top = static_cast<float>(top * kTwipsPerPixel);
    return *this;
  }
  BuiltObject& Size(int width, int height) {
    Control.Width = static_cast<float>(width * kTwipsPerPixel);
    Control.Height = static_cast<float>(height * kTwipsPerPixel);
    return *this;
  }
  /// Stores code under the object's key, as the editor does.
  BuiltObject& Code(Event event, std::string code) {
    Tables.EventTable.Replace(User.KeyPrefix() + "." + Control.ArrayAndIndex(), event,
                              std::move(code));
    return *this;
  }
  BuiltObject& Picture(std::string path) {
    Record.ImageFile = std::move(path);
    return *this;
  }
  BuiltObject& Rows(std::vector<std::string> rows) {
    Control.Items = std::move(rows);
    return *this;
  }
  /// Takes the object off the form, as a deletion does: its record stays.
  void Delete() { User.Unload(User.Element(Control.Id, Control.Index)); }
};

/// A form of the project.
struct BuiltForm {
  ProjectTables& Tables;
  int Number;

  [[nodiscard]] FormRec& Record() const { return *Tables.Form(Number); }
  [[nodiscard]] DesignForm& User() const { return *Tables.User(Number); }

  /// Adds an object of a kind with the name the user sees, and its record: visible and enabled,
  /// as the tool box makes it, but without its texts.
  BuiltObject Add(Kind kind, std::string_view name) const {
    DesignControl& control = *User().Load(kind);
    control.Tag = name;
    control.Visible = true;
    return {Tables, User(), control, RecordOf(kind, control.Index)};
  }
  /// Stores code of an event of the form.
  const BuiltForm& Code(Event event, std::string code) const {
    Tables.EventTable.Replace(User().KeyPrefix(), event, std::move(code));
    return *this;
  }
  /// Stores OnClick code of a menu or popup item.
  const BuiltForm& ItemCode(std::string_view item, std::string code) const {
    Tables.EventTable.Replace(User().KeyPrefix() + "." + std::string(item), Event::OnClick,
                              std::move(code));
    return *this;
  }
  /// Gives the form a menu control for each title of the project's menu, so that its bar shows.
  const BuiltForm& ShowMenuBar() const {
    for (std::size_t n = 1; n < Tables.MenuTitles.size(); ++n) {
      DesignControl& title = *User().Load(Kind::Menu);
      title.Tag = Tables.MenuTitles[n].Name;
      title.Caption = Tables.MenuTitles[n].Caption;
      title.Visible = true;
    }
    return *this;
  }
  /// Marks the form as removed by the user: its slot and its line in the list go.
  void Remove() const {
    Record().Removed = 1;
    Tables.ListaFrms.Remove(Number);
  }

 private:
  ObjectRec& RecordOf(Kind kind, int index) const {
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
};

/// A project under construction, by default with its program in "C:\Tarnwick" and itself in
/// "C:\Work":
///
///   ProjectBuilder project;
///   project.AddForm().Add(Kind::Label, "Hello");
///   GenerateSource(project.Tables, state);
class ProjectBuilder {
 public:
  ProjectBuilder() {
    Tables.ProgramFolder = "C:\\Tarnwick";
    Tables.ProjectFile = "C:\\Work\\Demo.tnp";
    Tables.SourceFile = "C:\\Tarnwick\\UnTitle.com";
    Tables.ExeFile = "C:\\Tarnwick\\UnTitle.exe";
  }

  /// Adds a form with its defaults; the first one is the main form and has the focus. Forms are
  /// named "Form1", "Form2", ... unless another name is given.
  BuiltForm AddForm(std::string_view name = {}) {
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
  [[nodiscard]] BuiltForm Form(int number) { return {Tables, number}; }

  /// Adds a title to the menu bar.
  ProjectBuilder& Title(std::string name, std::string caption) {
    const std::size_t number = Tables.MenuTitles.size();
    Tables.MenuTitles.push_back(
        {std::move(caption), "Menu" + std::to_string(number), "", std::move(name), 0});
    return *this;
  }
  /// Adds an item under the title that came last.
  ProjectBuilder& Item(std::string name, std::string caption) {
    const std::size_t number = Tables.MenuItems.size();
    Tables.MenuItems.push_back({std::move(caption),
                                static_cast<std::int16_t>(Tables.MenuTitles.size() - 1),
                                "Item" + std::to_string(number), std::move(name)});
    Tables.MenuTitles.back().LastItem = static_cast<std::int32_t>(number);
    return *this;
  }
  /// Adds a top-level row to popup number `popup`.
  ProjectBuilder& PopUpItem(int popup, std::string name, std::string caption) {
    auto& items = Tables.PopUpMenus.Ensure(popup)->Items;
    if (items.empty()) items.resize(1);
    items.push_back({std::vector<PopUpEntryRec>(1), std::move(name), std::move(caption), 0});
    return *this;
  }
  /// Adds a sub-item under the row that came last in popup number `popup`.
  ProjectBuilder& PopUpEntry(int popup, std::string name, std::string text) {
    PopUpMenuRec& item = Tables.PopUpMenus.Ensure(popup)->Items.back();
    item.Entries.push_back({std::move(name), std::move(text)});
    ++item.Level;
    return *this;
  }

  ProjectTables Tables;
};

}  // namespace tarnwick::test
