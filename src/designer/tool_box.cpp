#include "designer/tool_box.h"

#include <algorithm>
#include <array>

namespace tarnwick {

namespace {

/// The object kinds by rising number of their tools.
constexpr std::array<Kind, kObjectKindCount> kPlacing = [] {
  std::array<Kind, kObjectKindCount> kinds{};
  for (std::size_t i = 0; i < kinds.size(); ++i) kinds[i] = ObjectKinds()[i].Id;
  std::sort(kinds.begin(), kinds.end(),
            [](Kind a, Kind b) { return InfoOf(a).Tool < InfoOf(b).Tool; });
  return kinds;
}();

/// The arrow and the form come first, the menu, which places nothing either, last.
constexpr std::array<ToolInfo, kObjectKindCount + 3> kTools = [] {
  std::array<ToolInfo, kObjectKindCount + 3> tools{};
  auto at = tools.begin();
  *at++ = {kArrowTool, "Cursor", "Form"};
  *at++ = {kFormTool, "Add New Form", "Form"};
  for (const Kind kind : kPlacing) {
    *at++ = {InfoOf(kind).Tool, InfoOf(kind).Name, InfoOf(kind).Name};
  }
  *at = {kMenuTool, "Menu", ""};
  return tools;
}();

static_assert(
    [] {
      for (std::size_t i = 0; i < kTools.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
          if (kTools[i].Number == kTools[j].Number) return false;
        }
      }
      return true;
    }(),
    "two tools have one number");

}  // namespace

std::span<const ToolInfo> AllTools() noexcept {
  return kTools;
}

const ToolInfo* ToolOf(int number) noexcept {
  for (const ToolInfo& tool : kTools) {
    if (tool.Number == number) return &tool;
  }
  return nullptr;
}

int ArmedTool(const DesignForm* form) noexcept {
  if (form == nullptr || form->Objeto.empty()) return kArrowTool;
  // "Form" stands with the arrow, which the table lists first.
  for (const ToolInfo& tool : kTools) {
    if (tool.Objeto == form->Objeto) return tool.Number;
  }
  return kArrowTool;
}

bool ToolFits(int number, const DesignForm* form) noexcept {
  if (form == nullptr) return true;
  for (const KindInfo& kind : ObjectKinds()) {
    if (kind.Tool == number && kind.OnePerForm && form->FirstOf(kind.Id)) return false;
  }
  return true;
}

}  // namespace tarnwick
