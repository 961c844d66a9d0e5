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

bool MenuDesigner::Ok() {
  if (list_.HasPendingText()) list_.Enter();
  return Store(list_.ListMenu());
}

FormMenu::FormMenu(project::ProjectContext& context, int form)
    : MenuDesigner(MenuBarDesign(), NameOfForm(context.Tables, form),
                   MenuBarRows(context.Tables, form), NamesBesideMenuBar(context.Tables, form)),
      context_(context),
      form_(form) {}

bool FormMenu::Store(const Rows& rows) {
  return RebuildFormWithMenu(context_, form_, rows);
}

FormPopUp::FormPopUp(project::ProjectContext& context, CodeOpener& code, int form, int index)
    : MenuDesigner(PopUpDesign(), NameOfForm(context.Tables, form),
                   RowsOfPopUp(RecordOrEmpty(std::as_const(context.Tables).PopUpMenus, index)),
                   NamesBesidePopUp(context.Tables, index)),
      context_(context),
      code_(code),
      form_(form),
      index_(index) {}

bool FormPopUp::Store(const Rows& rows) {
  ProjectTables& tables = context_.Tables;
  const DesignForm* window = tables.IsLive(form_) ? tables.UserIfAny(form_) : nullptr;
  if (window == nullptr || index_ < 1 || !window->Element(Kind::PopUpMenu, index_)) return false;
  ParsePopUpRows(*tables.PopUpMenus.Ensure(index_), rows);
  context_.Observer.ControlsChanged(form_);
  return true;
}

bool FormPopUp::Subroutines() {
  const std::string& name = List().Texts().Name;
  if (name.empty()) return false;
  std::string key = "Form";
  AppendNumber(key, std::int64_t{form_});
  context_.Tables.JumpKey = key.append(".").append(name);
  code_.OpenCode();
  return true;
}

}  // namespace tarnwick::menus
