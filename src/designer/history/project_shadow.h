// The project as the last step left it: forms, menus, popups, and what a step changed on them.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "designer/history/form_shadow.h"
#include "model/project_observer.h"

namespace tarnwick {

/// The rows, titles and items of the menu that was read or edited last.
using MenuValues =
    std::tuple<std::vector<std::string>, std::vector<MenuBarRec>, std::vector<MenuItemRec>>;

/// The main form, by number while some form has that line, since its text follows names and files.
struct MainFormValue {
  int Form = 0;
  std::string Text;
  friend bool operator==(const MainFormValue&, const MainFormValue&) = default;
};

/// The entries of one owner of event code before and after a step.
struct CodeChange {
  std::string Owner;
  Shared<EventCodeTable::Entries> Before;
  Shared<EventCodeTable::Entries> After;
};

struct NumberedFormChange {
  int Form = 0;
  FormChange Change;
};

/// What differs between two states of a project.
struct ProjectChange {
  std::int16_t CountBefore = 0;
  std::int16_t CountAfter = 0;
  MainFormValue MainBefore;
  MainFormValue MainAfter;
  ValueChange<MenuValues> Menus;
  RowsChange<Shared<PopUpFormRec>> PopUps;
  std::vector<NumberedFormChange> Forms;
  std::vector<CodeChange> Codes;
  std::vector<EventCodeTable::Changes::Removed> Numbers;

  [[nodiscard]] bool Empty() const;
};

class ProjectShadow {
 public:
  /// Takes the project over as it is. Forms are looked at first when a step begins on them.
  explicit ProjectShadow(ProjectTables& tables);

  /// Has the form in the shadow from now on; nothing for a number that is not in use.
  void Watch(const ProjectTables& tables, int form);
  /// Takes over what a save changed, which is no part of a step: the text of the main form.
  void TakeSaved(const ProjectTables& tables);
  /// Takes over what the tables hold now of a form, of forms added since and of the project
  /// itself, and returns what is different from before.
  ProjectChange Renew(ProjectTables& tables, int form);
  /// Puts one side of a change into the tables and notifies the observer of everything that
  /// changed.
  void Put(ProjectTables& tables, ProjectObserver& observer, const ProjectChange& change,
           bool back);

 private:
  void PutFormCount(ProjectTables& tables, std::int16_t count);
  void PutForms(ProjectTables& tables, ProjectObserver& observer, const ProjectChange& change,
                bool back);

  std::int16_t count_ = 0;
  MainFormValue main_;
  Shared<MenuValues> menus_;
  std::vector<Shared<PopUpFormRec>> popups_;
  std::map<int, FormShadow> forms_;
  std::map<int, std::string> files_;  ///< of forms that were added, saved and taken back
};

}  // namespace tarnwick
