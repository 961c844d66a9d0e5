// A design surface over recording fakes.
#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "designer/form_user.h"
#include "fakes/fake_ports.h"
#include "model/new_form.h"
#include "model/units.h"

namespace tarnwick {

/// Log entries: "clear panel", "properties WORD NAME", "sync WORD ROW", "head - NAME",
/// "commands", "pop-up", "code", "compile", "status TEXT", "number out Button2",
/// "number back Button2".
class RecordingHost final : public DesignerHost {
 public:
  explicit RecordingHost(CallLog& log) : log_(&log) {}
  bool PanelVisible = true;
  bool EditorOpen = false;

  [[nodiscard]] bool PropertyPanelVisible() override { return PanelVisible; }
  void ClearPanel() override { log_->Add("clear panel"); }
  void ShowProperties(std::string_view name_objet, std::string_view object_name) override {
    log_->Add("properties " + std::string(name_objet) + " " + std::string(object_name));
  }
  void SyncRow(std::string_view name_objet, std::string_view row) override {
    log_->Add("sync " + std::string(name_objet) + " " + std::string(row));
  }
  void RemoveHeadRow(const DesignControl& object) override { log_->Add("head - " + object.Tag); }
  void CommandsChanged() override { log_->Add("commands"); }
  void OpenObjectPopUp() override { log_->Add("pop-up"); }
  void SetStatus(std::string_view text) override { log_->Add("status " + std::string(text)); }
  void NumberMoved(const ObjectPlace& object, bool back) override {
    log_->Add(std::string(back ? "number back " : "number out ") +
              std::string(InfoOf(object.Id).Array) + std::to_string(object.Number));
  }
  bool RaiseOpenCodeEditor() override {
    if (EditorOpen) log_->Add("raise editor");
    return EditorOpen;
  }
  void OpenCode() override { log_->Add("code"); }
  void CompileAndRun() override { log_->Add("compile"); }

 private:
  CallLog* log_;
};

/// Log entries: "paint", "selection", "window".
class RecordingObserver final : public ProjectObserver {
 public:
  explicit RecordingObserver(CallLog& log) : log_(&log) {}
  void FormChanged(int /*form*/) override { log_->Add("window"); }
  void ControlsChanged(int /*form*/) override { log_->Add("paint"); }
  void SelectionChanged(int /*form*/) override { log_->Add("selection"); }

 private:
  CallLog* log_;
};

/// Form1 of a new project, its surface, and the mouse. The window's client area begins at screen
/// pixel (100, 50); places below are pixels of the window.
class SurfaceTest : public ::testing::Test {
 protected:
  SurfaceTest() { ports.Gestures.Origin = {100, 50}; }

  [[nodiscard]] static float Twips(int pixels) {
    return static_cast<float>(pixels * kTwipsPerPixel);
  }
  void Point(int x, int y) { ports.Gestures.Cursor = {100 + x, 50 + y}; }
  /// A press on the window itself.
  void Press(int x, int y, int button = kLeftButton) {
    Point(x, y);
    gestures.Form_MouseDown(button, 0, Twips(x), Twips(y));
  }
  /// A press on an object, at a place of the object.
  void PressOn(const ControlRef& control, int x = 1, int y = 1, int button = kLeftButton) {
    Point(static_cast<int>(control->Left) / kTwipsPerPixel + x,
          static_cast<int>(control->Top) / kTwipsPerPixel + y);
    gestures.ObjectMouseDown(control, button, 0, Twips(x), Twips(y));
  }
  void MoveTo(int x, int y) {
    Point(x, y);
    gestures.MouseMove();
  }
  /// Arms a kind, presses, releases, and returns the selection.
  ControlRef Place(std::string_view kind, int x, int y) {
    form.Objeto = kind;
    Press(x, y);
    gestures.MouseUp();
    return form.ControlSel;
  }
  void Click(const ControlRef& control) {
    PressOn(control);
    gestures.MouseUp();
  }
  /// Drags a handle from where it is to a place of the window.
  void DragHandle(int handle, int x, int y) {
    const ControlRef grip = form.Element(Kind::Handle, handle);
    Point(static_cast<int>(grip->Left) / kTwipsPerPixel + 3,
          static_cast<int>(grip->Top) / kTwipsPerPixel + 3);
    gestures.HandleMouseDown(handle, kLeftButton);
    MoveTo(x, y);
    gestures.MouseUp();
  }
  [[nodiscard]] bool HandleVisible(int handle) const {
    return form.Element(Kind::Handle, handle)->Visible;
  }
  [[nodiscard]] const std::vector<std::string>& Log() const { return ports.Log.Entries(); }

  FakePorts ports;
  RecordingHost host{ports.Log};
  RecordingObserver observer{ports.Log};
  ProjectTables tables;
  int number = AddForm(tables);
  DesignForm& form = *tables.User(number);
  FormRec& record = *tables.Form(number);
  History history{tables, observer};
  FormUser user{
      form, tables,
      DesignerPorts{ports.Gestures, ports.Messages, ports.Screen, observer, host, history}};
  FormGestures& gestures = user.Gestures();
  ObjectCommands& commands = user.Commands();
};

}  // namespace tarnwick
