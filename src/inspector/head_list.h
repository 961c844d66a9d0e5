// The list of objects at the panel's head.
#pragma once

#include "inspector/inspector_host.h"
#include "inspector/object_combo.h"
#include "model/project_records.h"

namespace tarnwick {

/// Keeps the rows of the list in step with the current form and chooses the object of a row. While
/// the list itself is being changed nothing can be chosen: a widget that moves its own mark must
/// not select an object.
class HeadList {
 public:
  HeadList(ProjectTables& tables, InspectorHost& host) : tables_(tables), host_(host) {}
  void SetView(PropertySheetView* view) noexcept { view_ = view; }

  [[nodiscard]] const ObjectCombo& Rows() const noexcept { return rows_; }
  /// Builds the rows for the current form; none without one.
  void Fill();
  void Clear();
  /// Brings the list to the row of an object, or of the form for null; a row that is missing is
  /// added.
  void Bring(const DesignControl* object, std::string_view name, Kind kind);
  /// Gives the row of an object, or of the form, a new name with the kind behind it.
  void Rename(const DesignControl* object, std::string_view name, std::string_view kind);
  /// An object is about to go.
  void Remove(const DesignControl& object);
  /// Selects the object of a row, or the form, as a press does. False when the row's object is gone
  /// or the list is being changed.
  bool Choose(int row);

 private:
  ProjectTables& tables_;
  InspectorHost& host_;
  PropertySheetView* view_ = nullptr;
  ObjectCombo rows_;
  bool is_changing_ = false;
};

}  // namespace tarnwick
