// `FormUser`: what presses, moves, keys and commands do on a design window.
#pragma once

#include <cstdint>
#include <string_view>

#include "designer/designer_host.h"
#include "designer/drag.h"
#include "designer/history/history.h"
#include "designer/object_clipboard.h"
#include "designer/window_style.h"
#include "model/project_observer.h"
#include "model/project_records.h"
#include "platform/ports.h"

namespace tarnwick {

/// What a design surface is given; all of it outlives the surface. `Gesture` is the window's own.
struct DesignerPorts {
  GesturePort& Gesture;
  MessagePort& Messages;
  ScreenPort& Screen;
  ProjectObserver& Observer;
  DesignerHost& Host;
  History& Steps;
};

/// Mouse buttons, shift bits and keys as the handlers take them.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kShiftBit = 1;
inline constexpr int kCtrlBit = 2;
inline constexpr int kAltBit = 4;
namespace keys {
inline constexpr int kTab = 9;
inline constexpr int kReturn = 13;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kDelete = 46;
inline constexpr int kC = 67;
inline constexpr int kV = 86;
inline constexpr int kX = 88;
inline constexpr int kF5 = 116;
inline constexpr int kF7 = 118;
}  // namespace keys

enum class WindowState : std::uint8_t { Normal, Minimised, Maximised };

/// The logic over one `DesignForm`, whose public state is the selection (`Objeto`, `NameObjet`,
/// `IndexObjet`, `ControlSel`, `m_bDesignMode`). A view forwards what the user does and paints
/// what the form says:
///
///   surface.ObjectMouseDown(control, kLeftButton, 0, x, y);   // press, x and y of the control
///   surface.MouseMove();                                      // any move while captured
///   surface.MouseUp();                                        // any release
///
/// Places are twips. A surface lives as long as its form; every operation is total.
class FormUser {
 public:
  FormUser(DesignForm& form, ProjectTables& tables, DesignerPorts ports);
  FormUser(const FormUser&) = delete;
  FormUser& operator=(const FormUser&) = delete;
  ~FormUser() = default;

  [[nodiscard]] DesignForm& Form() noexcept { return form_; }
  [[nodiscard]] const DesignForm& Form() const noexcept { return form_; }
  [[nodiscard]] int Number() const noexcept { return form_.Number(); }
  /// Frame hints of the window.
  [[nodiscard]] const clsStyle& FormStyle() const noexcept { return style_; }
  [[nodiscard]] DragMode GestureMode() const noexcept { return drag_.Mode(); }

  /// First show of the window: paints the grid and binds the frame. The form's values were set
  /// where it came into being (`LoadFormWindow`, or a file).
  void Form_Load();
  /// Builds the handles and paints the dot grid, with a yield after each dot.
  void PintaPuntitos();

  // Mouse. A press on a control comes with the place within the control, one on the window with
  // the place within the window.
  void Form_MouseDown(int Button, int Shift, float X, float Y);
  void ObjectMouseDown(const ControlRef& control, int Button, int Shift, float X, float Y);
  void HandleMouseDown(int handle, int Button);
  void MouseMove();
  /// Releases on the window, its objects and handles alike.
  void MouseUp();
  /// Opens the code of the selection, where its kind has events.
  void DoubleClick();
  /// An item of the form's menu bar was chosen: it is selected and its code opened.
  void MenuItemPress(const ControlRef& item);

  /// A key of the window or of an object on it. True when the key has a meaning here.
  bool KeyDown(int KeyCode, int Shift);

  /// The window has a new size, twips. All sizes until ResizeEnded are one step.
  void Form_Resize(float width, float height, WindowState state);
  void ResizeEnded();
  /// Gives up a gesture, the object stays where it was and stays selected; otherwise puts an armed
  /// tool down. Neither selection nor lock change.
  void Escape();

  // What others changed.
  /// Objects have other places or sizes: the handles follow.
  void ControlsMoved();
  /// An undo or redo changed the form: its frame, its handles and the property sheet follow.
  void Restored();
  /// An undo or redo moved the number of an object.
  void NumberMoved(const ObjectPlace& object, bool back);

  // Selection, as every other window sets it.
  /// Selects an object as a press does, handles and property sheet included.
  void SelectObject(const ControlRef& control);
  /// Selects the form itself.
  void SelectForm();
  /// Selects an item of the form's menu bar, by its name alone.
  void SelectMenuItem(const ControlRef& item);

  // Gesture.
  void DragBegin(const ControlRef& control);
  void DragEnd();
  void ShowHandles(bool bShowHandles);
  void DrawRubberBand() { drag_.DrawRubberBand(); }

  // Commands of the Edit menu; the key tests are theirs.
  void CutObject(int KeyCode);
  void DeletObject(int KeyCode, int Shift);
  void CopyObject(int KeyCode, int Shift);
  void PasteObject(int KeyCode, int Shift);
  /// Blocks the form or lifts the block.
  void ToggleLock();
  void BringToFront();
  void SendToBack();
  void aligngrid();
  /// Sets the frame of the window for a border code, which the record keeps.
  void borderstylea(int style);

  /// The entries of the object pop-up menu for the selection.
  [[nodiscard]] ObjectPopUp PopUpEntries() const;
  void ShowMessage(std::string_view text);
  void twipspixeles() const noexcept {}
  /// Forgets copy source and drag: the controls they meant were rebuilt.
  void ForgetReferences();

 private:
  [[nodiscard]] bool Ready();
  [[nodiscard]] bool IsLive(const ControlRef& control) const noexcept;
  [[nodiscard]] bool ForwardsPress(const DesignControl& control) const;
  [[nodiscard]] bool ToolArmed() const;
  [[nodiscard]] std::string StepName(std::string_view deed) const;
  [[nodiscard]] std::string_view GestureName() const;
  void DeleteSelected(const ControlRef& control);
  void FinishGesture();
  void DragCancelled();
  [[nodiscard]] bool Refused(int KeyCode, int Shift, int key);
  void EndGesture();
  void PressForm(int Button, float X, float Y);
  void PressEmptyForm(int Button);
  void PutObject(Kind kind, float X, float Y);
  void DragFirstUnder(float X, float Y);
  void ReleaseAndOpenPopUp();
  void SelectNothing();
  void Disarm();
  void ShowPropertiesIfVisible();
  void SyncPlaceRows();
  void SelectionRefresh();
  void MoveKey(int KeyCode, int Shift);
  void WalkObjects(bool forward);
  void SettleMoved();

  DesignForm& form_;
  ProjectTables& tables_;
  DesignerPorts ports_;
  Drag drag_;
  ObjectClipboard clipboard_;
  clsStyle style_;
  bool forwarding_frame_ = false;
  bool maximised_ = false;
  bool placing_ = false;  ///< the gesture began by placing an object and is one step with it
};

}  // namespace tarnwick
