// The design surfaces of all forms.
#pragma once

#include <memory>
#include <vector>

#include "designer/form_user.h"
#include "model/project_observer.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// One `FormUser` for each design form, made when the form opens and gone when it closes.
class DesignSurfaces final : public ProjectObserver {
 public:
  DesignSurfaces(ShellState& state, DesignerHost& host) : state_(state), host_(host) {}

  /// The surface of a form; null for a number that is not in use.
  [[nodiscard]] FormUser* Of(int form);
  /// The surface of the current form; null without one.
  [[nodiscard]] FormUser* Current();

  void FormOpened(int form) override;
  void FormClosing(int form) override;
  void ControlsChanged(int form) override;

 private:
  ShellState& state_;
  DesignerHost& host_;
  std::vector<std::unique_ptr<FormUser>> surfaces_;
};

}  // namespace tarnwick
