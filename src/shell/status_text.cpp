#include "shell/status_text.h"

#include <algorithm>
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

std::string CompileStatus(const ProjectTables& tables, const project::CompileOutcome& outcome) {
  if (!outcome.Source) return NotSavedStatus(outcome.Source);
  if (!outcome.CompilerFound) {
    return "Rc.exe was not found: put Rc.exe into " + tables.ProgramFolder +
           ". Source text: " + tables.SourceFile;
  }
  if (!outcome.Started) {
    return "Rc.exe could not be started; a Windows program needs Wine here. Source text: " +
           tables.SourceFile;
  }
  return "Rc.exe started. Source text: " + tables.SourceFile;
}

std::string NothingStartedStatus(const ProjectTables& tables,
                                 const project::CompileOutcome& outcome) {
  std::string text =
      outcome.CompilerFound
          ? "Rc.exe could not be started, and tarnwick-run was not found"
          : "Neither Rc.exe nor tarnwick-run was found: put Rc.exe into " + tables.ProgramFolder;
  return text + ". Source text: " + tables.SourceFile;
}

std::string SavedStatus(std::string_view now) {
  constexpr std::size_t kTime = 11;
  constexpr std::size_t kTimeLength = 5;
  return "Saved " + std::string(now.substr(std::min(kTime, now.size()), kTimeLength));
}

std::string NotSavedStatus(const project::WriteOutcome& outcome) {
  if (outcome.Failed.empty()) return "Not saved: a form has no file";
  std::string text = "Not saved: " + outcome.Failed;
  if (!outcome.Reason.empty()) text.append(": ").append(outcome.Reason);
  return text;
}

std::string NotOpenedStatus(std::string_view path, std::string_view reason) {
  return std::string("Not opened: ").append(path).append(": ").append(reason);
}

std::string OpenElsewhereStatus(std::string_view path) {
  return std::string(path) + " is open in another window of Tarnwick: the last save wins";
}

std::string RestoredStatus(std::string_view when) {
  return std::string("Restored as of ").append(when).append(", not saved yet");
}

std::string LeftBehindStatus() {
  return "Changes that were not saved are kept: File, Restore Unsaved Work";
}

std::string NoHelpStatus(std::string_view path) {
  return std::string("The help is not installed: there is no ").append(path);
}

}  // namespace tarnwick
