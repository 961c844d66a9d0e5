#include "fakes/editor_project.h"

namespace tarnwick::test {

EditorProject::EditorProject() {
  Builder.Title("mnuFile", "&File").Item("mnuOpen", "&Open");
  const BuiltForm main = Builder.AddForm("Main");
  main.Add(Kind::Button, "Ok");
  main.Add(Kind::Label, "my_label");
  main.Add(Kind::Image, "Pic");
  main.Add(Kind::Image, "Images3");
  main.Add(Kind::PopUpMenu, "Pop");
  BuildMenuControls(Tables, main.User());
  Builder.AddForm("Other").Add(Kind::ListBox, "Ok");
  Members("as", {"Integer", "QForm"});
  Members("button", {"Caption", "Color", "Click"});
  Members("listbox", {"AddItems"});
  Members("label", {"Caption"});
  Members("form", {"Show", "Caption"});
  Members("menu", {"Caption", "Visible"});
  Members("item(menu)", {"Checked", "Caption"});
  Members("image", {"Picture"});
  Members("images", {"wrong"});
  Members("popupmnu", {"Popup"});
  Members("screen", {"Width"});
  Members("application", {"Title"});
  Members("clipboard", {"Open"});
  Members("font", {"Bold"});
  Language.EventLists.Add("button", {"OnClick", "OnKeyUp"});
  Language.EventLists.Add("label", {"OnClick", "OnDblClick"});
  Language.EventLists.Add("images", {"OnPaint"});
  Language.EventLists.Add("form", {"OnShow"});
  Language.EventLists.Add("menu", {"OnClick"});
  Language.EventLists.Add("item(menu)", {"OnClick"});
  for (const char* kind : {"FORM", "BUTTON", "LABEL", "IMAGE", "POPUPMENU", "LISTBOX"}) {
    Language.ObjectHelp.Add(kind, {});
  }
}

EditorProject::~EditorProject() = default;

void EditorProject::Members(std::string_view key, const std::vector<std::string>& names) {
  std::vector<language::KindMember> members;
  for (const std::string& name : names) {
    members.push_back({name, language::MemberSort::Property});
  }
  Language.MemberLists.Add(key, std::move(members));
}

}  // namespace tarnwick::test
