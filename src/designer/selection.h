// The selection of a design window, and what can be selected on it.
#pragma once

#include <optional>
#include <string>

#include "model/design_form.h"

namespace tarnwick {

/// True for a live object that gestures and commands work on: no template, no handle, no menu.
[[nodiscard]] bool IsObject(const DesignControl& control) noexcept;
/// How `NameObjet` names a control: kind word and index, a TransparentFrame by its word alone, a
/// menu item by its own name.
[[nodiscard]] std::string NameObjetOf(const DesignControl& control);
/// Makes a control the selection, or the form itself for null: `ControlSel`, `NameObjet` and
/// `IndexObjet` always change together. A menu item is named by the selection but is no control
/// of it, so that no command can take it off the form.
void Select(DesignForm& form, const ControlRef& control);

/// Next or previous object in the order of creation, going around; null without objects. From
/// the form the walk begins at the first, or the last.
[[nodiscard]] ControlRef NeighbourOf(const DesignForm& form, const ControlRef& control,
                                     bool forward);
/// True while the form has a TransparentFrame; it then can have no second one.
[[nodiscard]] bool HasTransparentFrame(const DesignForm& form) noexcept;

}  // namespace tarnwick
