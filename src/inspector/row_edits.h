// What an edit of a row does to the project, beyond the grid itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "inspector/inspector_host.h"
#include "inspector/row_bindings.h"
#include "model/project_observer.h"
#include "platform/ports.h"

namespace tarnwick {

/// What an edit of a row is called in the history.
[[nodiscard]] inline std::string EditStepName(std::string_view row, std::string_view object) {
  return std::string("Edit ").append(row).append(" of ").append(object);
}

/// Stores values and sets going what follows from them: the window is painted again, pictures are
/// loaded, handles move, views are notified. Each method returns whether something was stored.
class RowEdits {
 public:
  RowEdits(ProjectTables& tables, ProjectObserver& observer, InspectorHost& host)
      : tables_(tables), observer_(observer), host_(host) {}

  bool Number(const RowBinding& binding, const RowTarget& target, double value);
  bool Text(const RowBinding& binding, const RowTarget& target, std::string_view text);
  /// A value of a row's list: as its text where the row is held as text, else as its index.
  bool Choice(const RowBinding& binding, const RowTarget& target, std::string_view value,
              int index);
  /// Brings a row's record up to date: sizes from window or control, "cursor", "enabled",
  /// "taborder" and "visible" from the last value that such a row was given.
  bool Sync(const RowBinding& binding, const RowTarget& target);
  /// Font and colour of a control; a kind without a font colour of its own keeps none.
  void Font(const RowTarget& target, const FontChoice& font);
  /// Takes the picture off a control.
  void RemovePicture(const RowTarget& target);
  /// Gives an object, or a form, another name; all views of the old one are notified.
  void Rename(const RowTarget& target, const std::string& name);

 private:
  void RenameForm(const RowTarget& target, const std::string& old_name, const std::string& name);
  void Finish(const RowBinding& binding, const RowTarget& target);
  void LoadWindowIcon(const RowTarget& target);
  void LoadPicture(const RowTarget& target, const std::string& path);
  [[nodiscard]] std::optional<std::string> LoadablePath(const std::string& path);
  void TellChanged(int form, Kind kind);

  ProjectTables& tables_;
  ProjectObserver& observer_;
  InspectorHost& host_;
  double last_choice_ = 0;
};

}  // namespace tarnwick
