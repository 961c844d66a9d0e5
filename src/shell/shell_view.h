// What only a window can do, as the logic of the main window asks for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "shell/help_pages.h"
#include "shell/panels.h"

namespace tarnwick {

/// Windows beside the main window, in the order in which the end of the program unloads them.
enum class SideWindow : std::uint8_t {
  FormAddItems,
  FormCodigo,
  Logo,
  FormMenu,
  FormPopUp,
  FormViewCodes,
  FormViewObjects,
  FormMain,
  ObjectBar,
};
inline constexpr std::size_t kSideWindowCount = 9;

/// The view of the main window. It builds widgets, forwards what the user does, and does what is
/// asked here; what happens is decided by the logic. No method fails. Commands, tools and texts
/// are read back from `MDIForm1` whenever one of the `...Changed` methods is called.
class ShellView {
 public:
  ShellView() = default;
  ShellView(const ShellView&) = delete;
  ShellView& operator=(const ShellView&) = delete;
  virtual ~ShellView() = default;

  virtual void SetApplicationTitle(std::string_view title) = 0;
  virtual void SetTitle(std::string_view title) = 0;
  /// Lays out the panels, the form list and the scroll bars, and builds `ObjectBar`, hidden, with
  /// the main window as its parent.
  virtual void LayOutPanels() = 0;

  /// Starts `Time`, whose ticks call `MDIForm1::Time_Timer`.
  virtual void StartTimer() = 0;
  virtual void StopTimer() = 0;
  /// Shows the logo window on top of all with this text, or changes the text.
  virtual void ShowLogo(std::string_view text) = 0;
  /// Ends the logo's place on top of all and closes it.
  virtual void CloseLogo() = 0;

  /// Shows `FormContenedor` for the first time, at this size in twips.
  virtual void ShowContainerAt(int width, int height) = 0;
  virtual void HideContainer() = 0;
  virtual void ShowContainer() = 0;
  /// Takes a design window into the container: it is shown, in front, also when it was rolled up.
  /// The keyboard focus stays where it is.
  virtual void BringFormUp(int form) = 0;
  /// Gives a design window the keyboard focus.
  virtual void FocusForm(int form) = 0;
  /// Remembers the widget with the keyboard focus until RestoreFocus gives it back, unless that
  /// widget has gone.
  virtual void HoldFocus() = 0;
  virtual void RestoreFocus() = 0;
  /// Shows or hides one design window without choosing it.
  virtual void SetFormVisible(int form, bool visible) = 0;
  /// What the gestures on a form's design window ask of the platform. It is asked for before the
  /// window is made; the reference stays good.
  [[nodiscard]] virtual GesturePort& Gestures(int form) = 0;

  /// True when the file is a picture or an icon that can be shown.
  [[nodiscard]] virtual bool PictureLoads(const std::string& path) = 0;

  virtual void ShowPanel(Panel panel, bool shown) = 0;
  /// State or check mark of a command or tool may be different now.
  virtual void CommandsChanged() = 0;
  /// The list of recent projects is another one now.
  virtual void RecentProjectsChanged() = 0;
  /// The line of `ListaFrms` to mark as selected, from 0; -1 for none.
  virtual void SelectFormLine(int index) = 0;
  /// The arrow for the screen and the main window (true), or each window's own pointer.
  virtual void SetArrowPointer(bool arrow) = 0;
  /// What the check found is another list now.
  virtual void FindingsChanged() = 0;
  /// Gives the keyboard focus to the list of findings.
  virtual void FocusFindings() = 0;
  /// Gives the keyboard focus to the selected row of the property grid.
  virtual void FocusGridRow() = 0;
  /// Quiet text at the foot of the main window.
  virtual void SetStatus(std::string_view text) = 0;
  /// Place and size of the selection, at the foot of the main window.
  virtual void SetSelectionText(std::string_view text) = 0;

  /// Opens the object pop-up menu at the pointer.
  virtual void ShowObjectPopUp() = 0;
  /// Opens the list of unsaved work and returns when it is closed.
  virtual void RunRestoreDialog() = 0;
  /// Opens the dialog `FormMain` and returns when it is closed.
  virtual void RunFormMain() = 0;
  /// Opens `FormAddItems` on the selected list of the form and returns when it is closed.
  virtual void RunItemDialog(int form) = 0;
  /// Opens a page of the help in a window of its own, in front.
  virtual void ShowHelpPage(HelpPage page) = 0;
  /// Name, version and program folder, in a box.
  virtual void ShowAbout(std::string_view program_folder) = 0;
  /// Takes a half-typed value out of the focused widget into the tables.
  virtual void CommitPendingEdits() = 0;

  /// Asks the main window to close, as its close button does: `MDIForm1::Close` decides.
  virtual void CloseMainWindow() = 0;
  virtual void UnloadWindow(SideWindow window) = 0;
  /// Unloads `FormContenedor`.
  virtual void UnloadContainer() = 0;
};

}  // namespace tarnwick
