#include "qt/frame/side_windows_view.h"

#include <string>

#include "inspector/form_add_items.h"
#include "qt/grid/item_dialog.h"
#include "shell/mdi_form.h"
#include "shell/shell_view.h"

namespace tarnwick {

void SideWindowsView::TellMissing(std::string_view window) {
  if (view_ != nullptr) view_->SetStatus(std::string(window) + " is not part of this version.");
}

void SideWindowsView::OpenPopUpEdit(int /*form*/, int /*index*/) {
  TellMissing("The designer of popup menus");
}

void SideWindowsView::OpenItemEdit(int form) {
  if (shell_ == nullptr) return;
  DesignForm* design = shell_->Tables().User(form);
  if (design == nullptr) return;
  FormAddItems logic(shell_->Tables(), shell_->Context().Observer, *design);
  RunItemDialog(logic, &parent_);
}

void SideWindowsView::OpenExaminer() {
  if (shell_ == nullptr) return;
  if (examiner_.isNull()) examiner_ = new ObjectsExaminerWindow(shell_->Support(), &parent_);
  examiner_->Open();
}

void SideWindowsView::NameChanged(int /*form*/, std::string_view /*old_name*/,
                                  std::string_view /*new_name*/) {}

}  // namespace tarnwick
