// The selection of a design window: the object, its handles, and the panels that follow it.
#pragma once

#include "designer/design_context.h"
#include "designer/drag.h"

namespace tarnwick {

/// Sets the selection of a form, keeps its handles on the selected object and notifies the views.
/// A gesture that runs has to be ended or given up before an object is selected.
class FormSelection {
 public:
  FormSelection(DesignContext& context, Drag& drag) : context_(context), drag_(drag) {}

  /// Selects an object as a press does, handles and property sheet included. Has no effect on a
  /// control that is no live object.
  void SelectObject(const ControlRef& control);
  /// Selects the form itself. A gesture that runs is given up.
  void SelectForm();
  /// Selects an item of the form's menu bar by its name; no control is selected then.
  void SelectMenuItem(const ControlRef& item);
  /// Selects the form and hides the handles without notifying any view.
  void Clear();

  /// Shows the handles on the drag control, or hides them.
  void ShowHandles(bool bShowHandles);
  /// Moves visible handles to an object whose position or size was edited elsewhere.
  void ControlsMoved();

  /// Notifies the views of the selection and rebuilds the property sheet.
  void Refresh();
  /// Rebuilds the property sheet for the selection while the panel is shown.
  void ShowProperties();
  /// Writes position and size of the selected object into its record and into the sheet.
  void SyncPlaceRows();
  /// Brings handles, views and sheet up to date after objects were moved or sized.
  void ObjectsMoved();

 private:
  DesignContext& context_;
  Drag& drag_;
};

}  // namespace tarnwick
