// The tool box: one table and one state for the docked box, the floating box and the menu.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "model/design_form.h"

namespace tarnwick {

inline constexpr int kMenuTool = 8;
inline constexpr int kFormTool = 9;
inline constexpr int kTransparentFrameTool = InfoOf(Kind::TransparentFrame).Tool;
inline constexpr int kArrowTool = 17;

/// A tool, by the number that chooses what a press of it does.
struct ToolInfo {
  int Number = 0;
  std::string_view Tip{};     ///< of the button; also the caption of its `mnuItemObj` row
  std::string_view Objeto{};  ///< what the tool makes the current form's `Objeto`
};

/// All tools in the order of the screen, the arrow first.
[[nodiscard]] std::span<const ToolInfo> AllTools() noexcept;
/// The tool of a number; null for a number without one.
[[nodiscard]] const ToolInfo* ToolOf(int number) noexcept;
/// The tool that is down while `form` is the current form: the one its `Objeto` names, otherwise
/// the arrow. All boxes ask here, so they cannot disagree.
[[nodiscard]] int ArmedTool(const DesignForm* form) noexcept;
/// Whether a press of the tool makes sense: a form takes one TransparentFrame at most.
[[nodiscard]] bool ToolFits(int number, const DesignForm* form) noexcept;

}  // namespace tarnwick
