// `FormAddItems`: the dialog that edits the rows of a list as text.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "model/project_observer.h"
#include "model/project_records.h"

namespace tarnwick {

class History;

/// One opening of the dialog, on the selected ListBox or ComboBox of a form. The view shows
/// `TextAdd`, one item a line, and calls Ok with what it has become; closing it any other way
/// changes nothing.
class FormAddItems {
 public:
  FormAddItems(ProjectTables& tables, ProjectObserver& observer, History& steps, DesignForm& form);

  /// The items as the dialog opens, a line each, CR LF between them and after the last.
  [[nodiscard]] const std::string& TextAdd() const noexcept { return text_; }
  /// The text with "?" for the bytes that end an item, or stand for a comma, in the stored list.
  [[nodiscard]] static std::string Storable(std::string_view text);
  /// Stores the lines in the object's record and in its own list, so that the form shows them, as
  /// one step of the history.
  /// False when the object is gone.
  bool Ok(std::string_view text);

 private:
  [[nodiscard]] ObjectRec* Record();

  ProjectTables& tables_;
  ProjectObserver& observer_;
  History& steps_;
  int form_;
  bool is_list_box_;
  int index_;
  std::weak_ptr<DesignControl> control_;
  std::string text_;
};

}  // namespace tarnwick
