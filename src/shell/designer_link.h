// What design surfaces and property sheet ask of the rest, served by the main window.
#pragma once

#include "designer/designer_host.h"
#include "inspector/inspector_host.h"
#include "inspector/property_sheet.h"
#include "shell/shell_state.h"

namespace tarnwick {

class DesignSurfaces;

/// The design surfaces' door to the other rooms. Which buttons and tools are on follows from the
/// tables, so a change there only makes the view read their states again.
class DesignerLink final : public DesignerHost {
 public:
  explicit DesignerLink(ShellState& state) : state_(state) {}
  /// The sheet is built after the surfaces.
  void SetSheet(PropertySheet& sheet) { sheet_ = &sheet; }

  [[nodiscard]] bool PropertyPanelVisible() override { return state_.IsShown(Panel::Properties); }
  void ClearPanel() override { sheet_->ClearPanel(); }
  void ShowProperties(std::string_view name_objet, std::string_view object_name) override {
    sheet_->ShowProperties(name_objet, object_name);
  }
  void SyncRow(std::string_view name_objet, std::string_view row) override {
    sheet_->SyncRow(name_objet, row);
  }
  void RemoveHeadRow(const DesignControl& object) override { sheet_->RemoveComboRow(object); }

  void CommandsChanged() override { state_.View->CommandsChanged(); }
  void SetStatus(std::string_view text) override { state_.View->SetStatus(text); }
  void OpenObjectPopUp() override { state_.View->ShowObjectPopUp(); }

  void NumberMoved(const ObjectPlace& object, bool back) override;
  bool RaiseOpenCodeEditor() override;
  void OpenCode() override { state_.Run(Command::Code); }
  void CompileAndRun() override { state_.Run(Command::Compile); }

 private:
  ShellState& state_;
  PropertySheet* sheet_ = nullptr;
};

/// The property sheet's door to the other rooms.
class InspectorLink final : public InspectorHost {
 public:
  InspectorLink(ShellState& state, DesignSurfaces& surfaces) : state_(state), surfaces_(surfaces) {}

  void SelectObject(DesignForm& form, const ControlRef& control) override;
  void borderstylea(DesignForm& form, std::int16_t style) override;
  void FormRecolored(DesignForm& form) override;
  void PlaceChanged(DesignForm& form) override;
  [[nodiscard]] bool PictureLoads(const std::string& path) override {
    return state_.View->PictureLoads(path);
  }
  void NameChanged(DesignForm& form, std::string_view old_name,
                   std::string_view new_name) override {
    state_.Code->NameChanged(form.Number(), old_name, new_name);
  }
  void OpenFormPopUp(DesignForm& form, int index) override {
    state_.Menus->OpenPopUpEdit(form.Number(), index);
  }
  void OpenFormAddItems(DesignForm& form) override { state_.View->RunItemDialog(form.Number()); }

 private:
  ShellState& state_;
  DesignSurfaces& surfaces_;
};

}  // namespace tarnwick
