#include "menus/menu_designer.h"

#include <cstdint>
#include <utility>

#include "menus/form_rebuild.h"
#include "text/numbers.h"

namespace tarnwick::menus {

namespace {

std::string NameOfForm(const ProjectTables& tables, int form) {
  const FormRec* record = tables.Form(form);
  return record == nullptr ? std::string() : record->Name;
}

Rows MenuBarRows(const ProjectTables& tables, int form) {
  const DesignForm* window = tables.UserIfAny(form);
  return window == nullptr || !window->MenuBarVisible() ? Rows() : RowsOfFormMenu(*window);
}

}  // namespace

MenuDesigner::MenuDesigner(const MenuDesign& design, project::ProjectContext& context,
                           History& steps, int form, Rows rows, NameSet other_names)
    : design_(design),
      context_(context),
      steps_(steps),
      form_(form),
      list_(design, NameOfForm(context.Tables, form), std::move(rows)),
      other_names_(std::move(other_names)) {}

bool MenuDesigner::Ok() {
  if (list_.HasPendingText()) list_.Enter();
  const HistoryStep step(steps_, form_, design_.Step);
  return Store(list_.ListMenu());
}

FormMenu::FormMenu(project::ProjectContext& context, History& steps, int form)
    : MenuDesigner(MenuBarDesign(), context, steps, form, MenuBarRows(context.Tables, form),
                   NamesBesideMenuBar(context.Tables, form)) {}

bool FormMenu::Store(const Rows& rows) {
  return RebuildFormWithMenu(Context(), Form(), rows);
}

FormPopUp::FormPopUp(project::ProjectContext& context, History& steps, CodeOpener& code, int form,
                     int index)
    : MenuDesigner(PopUpDesign(), context, steps, form,
                   RowsOfPopUp(RecordOrEmpty(std::as_const(context.Tables).PopUpMenus, index)),
                   NamesBesidePopUp(context.Tables, index)),
      code_(code),
      index_(index) {}

bool FormPopUp::Store(const Rows& rows) {
  ProjectTables& tables = Context().Tables;
  const DesignForm* window = tables.IsLive(Form()) ? tables.UserIfAny(Form()) : nullptr;
  if (window == nullptr || index_ < 1 || !window->Element(Kind::PopUpMenu, index_)) return false;
  ParsePopUpRows(*tables.PopUpMenus.Ensure(index_), rows);
  Context().Observer.ControlsChanged(Form());
  return true;
}

bool FormPopUp::Subroutines() {
  const std::string& name = List().Texts().Name;
  if (name.empty()) return false;
  std::string key = "Form";
  AppendNumber(key, std::int64_t{Form()});
  Context().Tables.JumpKey = key.append(".").append(name);
  code_.OpenCode();
  return true;
}

}  // namespace tarnwick::menus
