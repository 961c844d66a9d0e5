// What the design surface asks of the other windows of the program.
#pragma once

#include <string_view>

#include "model/design_control.h"
#include "model/event_table.h"

namespace tarnwick {

/// The object pop-up menu as it is to open: which entries can be chosen, which are checked.
struct ObjectPopUp {
  bool Code = true;
  bool Cut = true;
  bool Copy = true;
  bool Paste = true;
  bool Front = true;
  bool Back = true;
  bool Locked = false;             ///< check mark of `popBloquear`
  bool PropertiesChecked = false;  ///< check mark of `popPropiedades`
  friend bool operator==(const ObjectPopUp&, const ObjectPopUp&) = default;
};

/// The other rooms as a design surface sees them. Nothing here answers a failure: what cannot be
/// done is left out. `name_objet` is a selection as `FormUser` names it, "Button3" or "Form".
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
  /// Takes the row of an object out of the list at the panel's head.
  virtual void RemoveHeadRow(const DesignControl& object) = 0;

  // Toolbar, tool box, pop-up menu.
  /// Enables or disables Copy and Paste of the main toolbar, `BtnMenu` 4 and 5.
  virtual void EnableCopyPasteButtons(bool on) = 0;
  /// Enables or disables a tool of the tool boxes and its menu entry.
  virtual void EnableTool(int tool, bool on) = 0;
  /// `Objeto` of the form changed: tool boxes show what is armed now.
  virtual void ArmedToolChanged() = 0;
  /// `m_bDesignMode` of the form changed: the check marks of Lock follow it.
  virtual void LockChanged() = 0;
  /// Opens the object pop-up menu at the cursor.
  virtual void OpenObjectPopUp(const ObjectPopUp& entries) = 0;

  /// Quiet text at the foot of the main window.
  virtual void SetStatus(std::string_view text) = 0;

  // Code editor and compiler.
  /// The number of an object was taken out of its kind: the objects behind it have moved down by
  /// one. With `back` it is there again and they have moved up. Lines of `IniEvents` follow.
  virtual void NumberMoved(const ObjectPlace& object, bool back) = 0;
  /// While the code editor is open: brings it to the front and answers true; nothing can be
  /// selected meanwhile.
  virtual bool RaiseOpenCodeEditor() = 0;
  /// Opens the code editor on the selection.
  virtual void OpenCode() = 0;
  /// Compile and Run.
  virtual void CompileAndRun() = 0;

  // The container window of the design forms.
  [[nodiscard]] virtual bool ContainerMinimised() = 0;
  /// The container grows, or shrinks, by twips.
  virtual void GrowContainer(float width, float height) = 0;
};

}  // namespace tarnwick
