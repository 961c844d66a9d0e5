#include "shell/design_surfaces.h"

namespace tarnwick {

FormUser* DesignSurfaces::Of(int form) {
  ProjectTables& tables = state_.Tables;
  if (!tables.IsLive(form)) return nullptr;
  DesignForm* window = tables.User(form);
  if (window == nullptr) return nullptr;
  const auto slot = static_cast<std::size_t>(form);
  if (slot >= surfaces_.size()) surfaces_.resize(slot + 1);
  std::unique_ptr<FormUser>& surface = surfaces_[slot];
  if (!surface || &surface->Form() != window) {
    surface = std::make_unique<FormUser>(
        *window, tables,
        DesignerPorts{state_.View->Gestures(form), state_.Ports.Messages, state_.Ports.Screen,
                      state_.Observer, host_, state_.Steps});
    surface->Form_Load();
  }
  return surface.get();
}

FormUser* DesignSurfaces::Current() {
  const DesignForm* form = state_.Tables.CurrentForm;
  return form == nullptr ? nullptr : Of(form->Number());
}

void DesignSurfaces::FormOpened(int form) {
  static_cast<void>(Of(form));
}

void DesignSurfaces::ControlsChanged(int form) {
  const auto slot = static_cast<std::size_t>(form);
  if (form >= 1 && slot < surfaces_.size() && surfaces_[slot])
    surfaces_[slot]->Selection().ControlsMoved();
}

void DesignSurfaces::FormClosing(int form) {
  const auto slot = static_cast<std::size_t>(form);
  if (form >= 1 && slot < surfaces_.size()) surfaces_[slot].reset();
}

}  // namespace tarnwick
