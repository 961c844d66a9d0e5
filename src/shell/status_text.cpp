#include "shell/status_text.h"

#include <string_view>

#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

std::string PlaceText(std::string_view name, float left, float top, float width, float height) {
  std::string text(name);
  text.append("   Left ").append(NumberText(left)).append("  Top ").append(NumberText(top));
  text.append("  Width ").append(NumberText(width)).append("  Height ").append(NumberText(height));
  return text;
}

}  // namespace

std::string SelectionStatus(const ProjectTables& tables) {
  const DesignForm* form = tables.CurrentForm;
  if (form == nullptr) return {};
  if (const DesignControl* control = form->ControlSel.get()) {
    return PlaceText(control->Tag, PixelsOf(control->Left), PixelsOf(control->Top),
                     PixelsOf(control->Width), PixelsOf(control->Height));
  }
  const FormRec* record = tables.RecordOf(*form);
  if (record == nullptr) return {};
  return PlaceText(record->Name, record->Left, record->Top, record->Width, record->Height);
}

std::string PointerStatus(float x, float y) {
  const auto whole = [](float twips) {
    const std::int32_t pixels = ToInt32(PixelsOf(twips)).value_or(0);
    return NumberText(std::int64_t{pixels});
  };
  return "X " + whole(x) + "  Y " + whole(y);
}

std::string CompileStatus(const ProjectTables& tables) {
  return "Source text: " + tables.SourceFile;
}

}  // namespace tarnwick
