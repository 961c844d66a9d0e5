// What the main window asks of the code editor and the other rooms' windows.
#pragma once

#include <string_view>

namespace tarnwick {

/// Opening and closing of the windows whose logic lies in the rooms beside this one. The program
/// joins them here, so that the commands know nothing of their insides.
class SideWindows {
 public:
  SideWindows() = default;
  SideWindows(const SideWindows&) = delete;
  SideWindows& operator=(const SideWindows&) = delete;
  virtual ~SideWindows() = default;

  /// Gives the editing widgets of `FormViewCodes` and `FormCodigo` the language definition.
  virtual void LoadLanguage() = 0;
  /// Tells the windows that the support tables are filled.
  virtual void SupportTablesLoaded() = 0;
  /// Builds `FormCodigo` and `FormViewCodes`, hidden.
  virtual void LoadCodeWindows() = 0;

  /// Opens `FormCodigo` on the selection of the current form, or where `JumpKey` says.
  virtual void OpenCode() = 0;
  [[nodiscard]] virtual bool IsCodeOpen() = 0;
  virtual void BringCodeToFront() = 0;
  /// Stores the text that `FormCodigo` shows, as a change of event does; nothing while it is
  /// closed. A text of `FormViewCodes` stays there until its Ok.
  virtual void StoreShownCode() = 0;
  /// Closes `FormCodigo` and `FormViewCodes`; what was not accepted goes.
  virtual void CloseCode() = 0;

  /// Opens `FormViewCodes` on the current form.
  virtual void OpenPublicDeclarations() = 0;
  /// Opens `FormMenu` on the current form.
  virtual void OpenMenuEdit() = 0;
  /// Opens `FormPopUp` on a popup menu of the form and comes back when it is closed.
  virtual void OpenPopUpEdit(int form, int index) = 0;
  /// Opens `FormAddItems` on the selected list of the form and comes back when it is closed.
  virtual void OpenItemEdit(int form) = 0;
  /// Opens `FormViewObjects`.
  virtual void OpenExaminer() = 0;
  /// Object or form was renamed: names that code editor and events bar show follow.
  virtual void NameChanged(int form, std::string_view old_name, std::string_view new_name) = 0;
};

}  // namespace tarnwick
