#include "designer/tool_box.h"

#include <array>

namespace tarnwick {

namespace {

constexpr std::array kTools{
    ToolInfo{kArrowTool, "Cursor", "Form"},
    ToolInfo{kFormTool, "Add New Form", "Form"},
    ToolInfo{0, "Button", "Button"},
    ToolInfo{1, "TextBox", "TextBox"},
    ToolInfo{2, "Image", "Image"},
    ToolInfo{3, "Label", "Label"},
    ToolInfo{4, "ListBox", "ListBox"},
    ToolInfo{5, "OptionButton", "OptionButton"},
    ToolInfo{6, "CheckBox", "CheckBox"},
    ToolInfo{7, "ComboBox", "ComboBox"},
    ToolInfo{10, "RichTextBox", "RichTextBox"},
    ToolInfo{11, "Time", "Time"},
    ToolInfo{12, "OpenDialog", "OpenDialog"},
    ToolInfo{13, "SaveDialog", "SaveDialog"},
    ToolInfo{14, "FileStream", "FileStream"},
    ToolInfo{kTransparentFrameTool, "TransparentFrame", "TransparentFrame"},
    ToolInfo{16, "HtmlViewer", "HtmlViewer"},
    ToolInfo{18, "WinSock", "WinSock"},
    ToolInfo{19, "PopUpMenu", "PopUpMenu"},
    ToolInfo{kMenuTool, "Menu", ""},
};

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
  return number != kTransparentFrameTool || form == nullptr ||
         form->FirstOf(Kind::TransparentFrame) == nullptr;
}

}  // namespace tarnwick
