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
  explicit RecordingHost(CallLog& log);
  bool PanelVisible = true;
  bool EditorOpen = false;

  [[nodiscard]] bool PropertyPanelVisible() override { return PanelVisible; }
  void ClearPanel() override;
  void ShowProperties(std::string_view name_objet, std::string_view object_name) override;
  void SyncRow(std::string_view name_objet, std::string_view row) override;
  void RemoveHeadRow(const DesignControl& object) override;
  void CommandsChanged() override;
  void OpenObjectPopUp() override;
  void SetStatus(std::string_view text) override;
  void NumberMoved(const ObjectPlace& object, bool back) override;
  bool RaiseOpenCodeEditor() override;
  void OpenCode() override;
  void CompileAndRun() override;

 private:
  CallLog* log_;
};

/// Log entries: "paint", "selection", "window".
class RecordingObserver final : public ProjectObserver {
 public:
  explicit RecordingObserver(CallLog& log);
  void FormChanged(int /*form*/) override;
  void ControlsChanged(int /*form*/) override;
  void SelectionChanged(int /*form*/) override;

 private:
  CallLog* log_;
};

/// Form1 of a new project, its surface, and the mouse. The window's client area begins at screen
/// pixel (100, 50); places below are pixels of the window.
class SurfaceTest : public ::testing::Test {
 protected:
  SurfaceTest();
  ~SurfaceTest() override;

  [[nodiscard]] static float Twips(int pixels);
  void Point(int x, int y);
  /// A press on the window itself.
  void Press(int x, int y, int button = kLeftButton);
  /// A press on an object, at a place of the object.
  void PressOn(const ControlRef& control, int x = 1, int y = 1, int button = kLeftButton);
  void MoveTo(int x, int y);
  /// Arms a kind, presses, releases, and returns the selection.
  ControlRef Place(std::string_view kind, int x, int y);
  void Click(const ControlRef& control);
  /// Drags a handle from where it is to a place of the window.
  void DragHandle(int handle, int x, int y);
  [[nodiscard]] bool HandleVisible(int handle) const;
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
