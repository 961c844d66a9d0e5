// What the design surface asks of the other windows of the program.
#pragma once

#include <string_view>

#include "model/design_control.h"
#include "model/event_table.h"

namespace tarnwick {

/// The other rooms as a design surface sees them. No call here reports a failure: what cannot be
/// done is left out. `name_objet` is a selection as `DesignForm` names it, "Button3" or "Form".
class DesignerHost {
 public:
  DesignerHost() = default;
  DesignerHost(const DesignerHost&) = delete;
  DesignerHost& operator=(const DesignerHost&) = delete;
  virtual ~DesignerHost() = default;

  // The property panel.
  /// True while the panel is shown; only then is its grid rebuilt.
  [[nodiscard]] virtual bool PropertyPanelVisible() = 0;
  /// Hides the grid's edit widgets.
  virtual void ClearPanel() = 0;
  /// Rebuilds the grid for a selection and the object's name.
  virtual void ShowProperties(std::string_view name_objet, std::string_view object_name) = 0;
  /// Brings the record of the selection up to date for the row "height", "left", "top" or "width".
  virtual void SyncRow(std::string_view name_objet, std::string_view row) = 0;
  /// Removes the row of an object from the list at the panel's head.
  virtual void RemoveHeadRow(const DesignControl& object) = 0;

  // Toolbar, tool boxes, pop-up menu, status bar.
  /// Selection, armed tool, lock or the TransparentFrame of the form changed: which commands and
  /// tools are enabled, checked or pressed may be different now.
  virtual void CommandsChanged() = 0;
  /// Opens the object pop-up menu at the cursor.
  virtual void OpenObjectPopUp() = 0;
  /// Shows a text in the status bar of the main window.
  virtual void SetStatus(std::string_view text) = 0;

  // Code editor and compiler.
  /// The number of an object was removed from its kind: the objects after it have moved down by
  /// one. With `back` it was inserted again and they have moved up. Lines of `IniEvents` follow.
  virtual void NumberMoved(const ObjectPlace& object, bool back) = 0;
  /// While the code editor is open: brings it to the front and returns true; nothing can be
  /// selected meanwhile.
  virtual bool RaiseOpenCodeEditor() = 0;
  /// Opens the code editor on the selection.
  virtual void OpenCode() = 0;
  /// Compile and Run.
  virtual void CompileAndRun() = 0;
};

}  // namespace tarnwick
