// What the parts of a design surface work on.
#pragma once

#include <string>
#include <string_view>

#include "designer/designer_host.h"
#include "designer/history/history.h"
#include "model/project_observer.h"
#include "model/project_records.h"
#include "platform/ports.h"

namespace tarnwick {

/// The ports of a design surface; all of them outlive it. `Gesture` belongs to its window.
struct DesignerPorts {
  GesturePort& Gesture;
  MessagePort& Messages;
  ScreenPort& Screen;
  ProjectObserver& Observer;
  DesignerHost& Host;
  History& Steps;
};

/// One design form with the tables and ports that every part of its surface needs. Holds no state
/// of its own.
struct DesignContext {
  DesignForm& Form;
  ProjectTables& Tables;
  DesignerPorts Ports;

  [[nodiscard]] int Number() const noexcept { return Form.Number(); }
  /// The record of the form; null when the tables have none.
  [[nodiscard]] FormRec* Record() const { return Tables.RecordOf(Form); }
  /// False while a project is read, and while the code editor is open, which then comes to the
  /// front: presses and keys have no effect meanwhile.
  [[nodiscard]] bool Ready() const;
  /// True for a control of the form that is no template.
  [[nodiscard]] bool IsLive(const ControlRef& control) const noexcept;
  /// The name of a step of the history: the action and the selected object, or the form.
  [[nodiscard]] std::string StepName(std::string_view action) const;
  /// Shows a message box with the program's title.
  void ShowMessage(std::string_view text) const;
};

}  // namespace tarnwick
