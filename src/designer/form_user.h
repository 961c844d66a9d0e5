// `FormUser`: the logic of one design window.
#pragma once

#include "designer/form_frame.h"
#include "designer/form_keys.h"

namespace tarnwick {

/// Joins the parts that work on one `DesignForm`: selection, mouse, commands, keyboard and frame.
/// The form holds their public state (`Objeto`, `NameObjet`, `IndexObjet`, `ControlSel`,
/// `m_bDesignMode`); a view forwards what the user does and paints what the form holds. Lives as
/// long as its form; every operation of the parts is total.
class FormUser {
 public:
  FormUser(DesignForm& form, ProjectTables& tables, DesignerPorts ports);
  FormUser(const FormUser&) = delete;
  FormUser& operator=(const FormUser&) = delete;
  ~FormUser() = default;

  [[nodiscard]] DesignForm& Form() noexcept { return context_.Form; }
  [[nodiscard]] const DesignForm& Form() const noexcept { return context_.Form; }
  [[nodiscard]] int Number() const noexcept { return context_.Number(); }
  /// The record of the form; null when the tables have none.
  [[nodiscard]] const FormRec* Record() const { return context_.Record(); }

  [[nodiscard]] FormFrame& Frame() noexcept { return frame_; }
  [[nodiscard]] const FormFrame& Frame() const noexcept { return frame_; }
  [[nodiscard]] FormSelection& Selection() noexcept { return selection_; }
  [[nodiscard]] FormGestures& Gestures() noexcept { return gestures_; }
  [[nodiscard]] const FormGestures& Gestures() const noexcept { return gestures_; }
  [[nodiscard]] ObjectCommands& Commands() noexcept { return commands_; }
  [[nodiscard]] FormKeys& Keys() noexcept { return keys_; }

  /// First show of the window: paints the grid and sets the frame. The form's values were set when
  /// it was made (`LoadFormWindow`, or a file).
  void Form_Load();
  /// Builds the handles and paints the dot grid, with a yield after each dot.
  void PintaPuntitos();

  // Selection, as every other window sets it.
  /// Ends a gesture and selects an object as a press does, handles and property sheet included.
  void SelectObject(const ControlRef& control);
  /// Selects the form itself.
  void SelectForm() { selection_.SelectForm(); }
  /// Ends a gesture and selects an item of the form's menu bar, by its name alone.
  void SelectMenuItem(const ControlRef& item);
  /// An item of the form's menu bar was chosen: selects it and opens its code.
  void MenuItemPress(const ControlRef& item);

  // What others changed.
  /// An undo or redo changed the form: its frame, its handles and the property sheet follow.
  void Restored();
  /// An undo or redo moved the number of an object.
  void NumberMoved(const ObjectPlace& object, bool back);

 private:
  DesignContext context_;
  Drag drag_;
  FormFrame frame_;
  FormSelection selection_;
  FormGestures gestures_;
  ObjectCommands commands_;
  FormKeys keys_;
};

}  // namespace tarnwick
