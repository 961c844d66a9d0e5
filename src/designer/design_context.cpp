#include "designer/design_context.h"

namespace tarnwick {

bool DesignContext::Ready() const {
  return Tables.LoadingProject != 1 && !Ports.Host.RaiseOpenCodeEditor();
}

bool DesignContext::IsLive(const ControlRef& control) const noexcept {
  return control && control->Index > 0 && Form.Element(control->Id, control->Index) == control;
}

std::string DesignContext::StepName(std::string_view action) const {
  const FormRec* const record = Record();
  std::string name(action);
  name += ' ';
  if (Form.ControlSel) {
    name += Form.ControlSel->Tag;
  } else if (record != nullptr) {
    name += record->Name;
  }
  return name;
}

void DesignContext::ShowMessage(std::string_view text) const {
  Ports.Messages.Show(text, "Tarnwick");
}

}  // namespace tarnwick
