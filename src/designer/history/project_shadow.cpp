#include "designer/history/project_shadow.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

namespace {

MainFormValue MainFormOf(const ProjectTables& tables) {
  for (const FormList::Line& line : tables.ListaFrms.Lines()) {
    if (line.Text == tables.MainFormName) return {line.FormNumber, {}};
  }
  return {0, tables.MainFormName};
}

void CloseForm(ProjectTables& tables, ProjectObserver& observer, int form) {
  const auto slot = static_cast<std::size_t>(form);
  observer.FormClosing(form);
  if (tables.CurrentForm == tables.FormsUser[slot].get()) tables.CurrentForm = nullptr;
  tables.FormsUser[slot].reset();
  if (slot < tables.FormsBar.size()) tables.FormsBar[slot].reset();
}

/// The lines of the form list follow from the forms.
void RenewFormLine(ProjectTables& tables, int form) {
  if (tables.IsLive(form)) {
    const FormRec& record = *tables.Form(form);
    tables.ListaFrms.Put(form, FormListText(record.Name, record.FileName));
  } else {
    tables.ListaFrms.Remove(form);
  }
}

bool HasMenuControl(const std::vector<ObjectRow>& rows) {
  return std::any_of(rows.begin(), rows.end(), [](const ObjectRow& row) {
    return row.Control->Class() == ControlClass::Menu;
  });
}

void NotifyOfForm(ProjectObserver& observer, int form, const FormChange& change) {
  observer.FormChanged(form);
  if (HasMenuControl(change.Objects.Before) || HasMenuControl(change.Objects.After)) {
    observer.MenuBarChanged(form);
  }
  observer.ControlsChanged(form);
  if (!change.Bar.Empty()) observer.EventsBarChanged(form);
}

}  // namespace

bool ProjectChange::Empty() const {
  return CountBefore == CountAfter && MainBefore == MainAfter && Menus.Empty() && PopUps.Empty() &&
         Codes.empty() && Numbers.empty() &&
         std::all_of(Forms.begin(), Forms.end(),
                     [](const NumberedFormChange& form) { return form.Change.Empty(); });
}

ProjectShadow::ProjectShadow(ProjectTables& tables) {
  tables.EventTable.Watch();
  count_ = tables.FormsCount;
  static_cast<void>(Renew(tables, 0));
}

void ProjectShadow::Watch(const ProjectTables& tables, int form) {
  if (!tables.IsLive(form)) return;
  const auto [shadow, fresh] = forms_.try_emplace(form);
  if (fresh) static_cast<void>(shadow->second.Renew(tables, form));
}

void ProjectShadow::TakeSaved(const ProjectTables& tables) {
  main_ = MainFormOf(tables);
}

ProjectChange ProjectShadow::Renew(ProjectTables& tables, int form) {
  ProjectChange change;
  change.CountBefore = std::exchange(count_, tables.FormsCount);
  change.CountAfter = count_;
  change.MainBefore = std::exchange(main_, MainFormOf(tables));
  change.MainAfter = main_;

  const auto menus = std::tie(tables.MenuRows, tables.MenuTitles, tables.MenuItems);
  change.Menus.Before = menus_;
  if (menus_ == nullptr || *menus_ != menus) menus_ = std::make_shared<const MenuValues>(menus);
  change.Menus.After = menus_;
  const RecordArray<PopUpFormRec>& popups = std::as_const(tables.PopUpMenus);
  change.PopUps = RenewRows(
      popups_, static_cast<std::size_t>(popups.UBound()),
      [&](const Shared<PopUpFormRec>& row, std::size_t i) {
        return *row == RecordOrEmpty(popups, static_cast<int>(i) + 1);
      },
      [&](std::size_t i, const Shared<PopUpFormRec>*) {
        return std::make_shared<const PopUpFormRec>(RecordOrEmpty(popups, static_cast<int>(i) + 1));
      });

  const auto renew = [&](int number) {
    FormChange differs = forms_[number].Renew(tables, number);
    if (!differs.Empty()) change.Forms.push_back({number, std::move(differs)});
  };
  if (form > 0 && form <= change.CountBefore && forms_.contains(form)) renew(form);
  for (int added = change.CountBefore + 1; added <= change.CountAfter; ++added) renew(added);

  EventCodeTable::Changes code = tables.EventTable.TakeChanges();
  for (EventCodeTable::Changes::Owner& owner : code.Owners) {
    EventCodeTable::Entries now = tables.EventTable.EntriesOf(owner.Key);
    if (now == owner.Before) continue;
    change.Codes.push_back(
        {owner.Key, std::make_shared<const EventCodeTable::Entries>(std::move(owner.Before)),
         std::make_shared<const EventCodeTable::Entries>(std::move(now))});
  }
  change.Numbers = std::move(code.Numbers);
  return change;
}

void ProjectShadow::Put(ProjectTables& tables, ProjectObserver& observer,
                        const ProjectChange& change, bool back) {
  const MainFormValue main_now = MainFormOf(tables);
  PutForms(tables, observer, change, back);

  count_ = tables.FormsCount;
  if (!change.Menus.Empty()) {
    menus_ = back ? change.Menus.Before : change.Menus.After;
    std::tie(tables.MenuRows, tables.MenuTitles, tables.MenuItems) = *menus_;
  }
  if (!change.PopUps.Empty()) {
    PutRows(popups_, change.PopUps, back);
    tables.PopUpMenus.Splice(1, tables.PopUpMenus.UBound(), static_cast<int>(popups_.size()));
    for (std::size_t i = 0; i < popups_.size(); ++i) {
      *tables.PopUpMenus.At(static_cast<int>(i) + 1) = *popups_[i];
    }
  }
  EventCodeTable& events = tables.EventTable;
  // The keys of changed owners are those behind all removals.
  if (!back) {
    for (const auto& number : change.Numbers) events.RemoveNumber(number.Object, number.Last);
  }
  for (const CodeChange& code : change.Codes) {
    events.SetEntries(code.Owner, back ? *code.Before : *code.After);
  }
  if (back) {
    for (auto number = change.Numbers.rbegin(); number != change.Numbers.rend(); ++number) {
      events.InsertNumber(*number);
    }
  }
  // What was put back is no change of the user's.
  static_cast<void>(events.TakeChanges());

  for (const NumberedFormChange& form : change.Forms) RenewFormLine(tables, form.Form);
  const bool main_changes = change.MainBefore != change.MainAfter;
  const MainFormValue& main = !main_changes ? main_now
                              : back        ? change.MainBefore
                                            : change.MainAfter;
  const int line = tables.ListaFrms.PositionOf(main.Form);
  if (line >= 0) {
    tables.MainFormName = tables.ListaFrms.Lines()[static_cast<std::size_t>(line)].Text;
  } else if (main.Form == 0) {
    tables.MainFormName = main.Text;
  }
  main_ = MainFormOf(tables);

  for (const NumberedFormChange& form : change.Forms) {
    if (!tables.IsLive(form.Form)) continue;
    if (form.Change.OpenBefore != form.Change.OpenAfter) observer.FormOpened(form.Form);
    NotifyOfForm(observer, form.Form, form.Change);
  }
  if (!change.Forms.empty() || change.MainBefore != change.MainAfter) observer.FormListChanged();
}

void ProjectShadow::PutFormCount(ProjectTables& tables, std::int16_t count) {
  while (tables.FormsCount < count) {
    const int form = tables.GrowForms();
    tables.Form(form)->FileName = files_[form];
  }
  for (int form = count + 1; form <= tables.FormsCount; ++form) {
    files_[form] = tables.Form(form)->FileName;
  }
  const auto slots = static_cast<std::size_t>(count) + 1;
  tables.FormsTable.resize(slots);
  tables.FormsUser.resize(slots);
  tables.FormsBar.resize(slots);
  tables.FormsCount = count;
}

void ProjectShadow::PutForms(ProjectTables& tables, ProjectObserver& observer,
                             const ProjectChange& change, bool back) {
  for (const NumberedFormChange& form : change.Forms) {
    const bool open = back ? form.Change.OpenBefore : form.Change.OpenAfter;
    if (!open && tables.UserIfAny(form.Form) != nullptr) {
      // What hears of it asks whether the form is still in use.
      tables.Form(form.Form)->Removed = 1;
      CloseForm(tables, observer, form.Form);
    }
  }
  PutFormCount(tables, back ? change.CountBefore : change.CountAfter);
  for (const NumberedFormChange& form : change.Forms) {
    const bool opens = form.Change.OpenBefore != form.Change.OpenAfter &&
                       (back ? form.Change.OpenBefore : form.Change.OpenAfter);
    if (opens) tables.User(form.Form)->SetNumber(form.Form);
    forms_[form.Form].Put(tables, form.Form, form.Change, back);
    if (form.Form > tables.FormsCount) forms_.erase(form.Form);
  }
}

}  // namespace tarnwick
