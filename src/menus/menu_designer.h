// `FormMenu` and `FormPopUp`, the two designers of menus, without their widgets.
#pragma once

#include <string>
#include <vector>

#include "designer/history/history.h"
#include "menus/menu_preview.h"
#include "menus/row_faults.h"
#include "menus/row_list.h"
#include "project/project_context.h"

namespace tarnwick::menus {

/// The code editor, as "Subroutines" opens it.
class CodeOpener {
 public:
  CodeOpener() = default;
  CodeOpener(const CodeOpener&) = delete;
  CodeOpener& operator=(const CodeOpener&) = delete;
  virtual ~CodeOpener() = default;

  /// Opens the code editor where `JumpKey` says.
  virtual void OpenCode() = 0;
};

/// One opening of a designer. Until Ok nothing of the project changes; a designer that closes in
/// any other way keeps nothing.
class MenuDesigner {
 public:
  MenuDesigner(const MenuDesigner&) = delete;
  MenuDesigner& operator=(const MenuDesigner&) = delete;
  virtual ~MenuDesigner() = default;

  [[nodiscard]] const MenuDesign& Design() const noexcept { return design_; }
  [[nodiscard]] RowList& List() noexcept { return list_; }
  [[nodiscard]] const RowList& List() const noexcept { return list_; }
  /// What is wrong with each row, "" for nothing.
  [[nodiscard]] std::vector<std::string> Faults() const {
    return FaultsOfRows(design_, list_.ListMenu(), other_names_);
  }
  /// The menu that the rows make, with the texts that are being typed.
  [[nodiscard]] std::vector<PreviewMenu> Preview() const {
    return PreviewOf(design_, list_.RowsWithTexts());
  }

  /// Takes the rows, as one step of the history; texts that were typed and not added yet go into
  /// the selected row first. False when form or popup menu are gone.
  bool Ok();
  /// `btns`: opens the code of the item named in the second text box. False when there is no such
  /// button or the name is empty.
  virtual bool Subroutines() { return false; }

 protected:
  MenuDesigner(const MenuDesign& design, project::ProjectContext& context, History& steps, int form,
               Rows rows, NameSet other_names);
  /// Puts the rows into the project.
  virtual bool Store(const Rows& rows) = 0;
  [[nodiscard]] project::ProjectContext& Context() noexcept { return context_; }
  [[nodiscard]] int Form() const noexcept { return form_; }

 private:
  const MenuDesign& design_;
  project::ProjectContext& context_;
  History& steps_;
  int form_;
  RowList list_;
  NameSet other_names_;
};

/// The designer of a form's menu bar.
class FormMenu final : public MenuDesigner {
 public:
  /// Opens with the rows of the form's own menu bar.
  FormMenu(project::ProjectContext& context, History& steps, int form);

 private:
  bool Store(const Rows& rows) override;
};

/// The designer of one popup menu of a form.
class FormPopUp final : public MenuDesigner {
 public:
  /// Opens with the rows stored under the popup's number.
  FormPopUp(project::ProjectContext& context, History& steps, CodeOpener& code, int form,
            int index);
  bool Subroutines() override;

 private:
  bool Store(const Rows& rows) override;

  CodeOpener& code_;
  int index_;
};

}  // namespace tarnwick::menus
