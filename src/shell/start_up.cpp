#include "shell/start_up.h"

#include <array>
#include <optional>

#include "persistence/support_files.h"
#include "shell/titles.h"

namespace tarnwick {

namespace {

constexpr int kContainerWidth = 7000;   // twips
constexpr int kContainerHeight = 6000;  // twips

}  // namespace

void StartUp::Load(const ShellWindows& windows) {
  state_.Use(windows);
  ProjectTables& tables = state_.Tables;
  state_.View->SetTitle(TitleOfOpened(DefaultProjectFile(tables)));
  state_.View->SetApplicationTitle(kApplicationTitle);
  state_.EnableCommands(false);
  state_.View->StartTimer();
  tables.AccionProject = "app";
  tables.MainFormName = kFirstMainForm;
}

void StartUp::Time_Timer() {
  struct Step {
    void (StartUp::*Run)();
    std::string_view LogoText;  ///< shown when the step is done
  };
  static constexpr std::array kSteps{
      Step{&StartUp::DropEventIndex, ""},
      Step{&StartUp::SetDefaults, "Wait...  10%"},
      Step{&StartUp::LoadLanguage, "Wait...  50%"},
      Step{&StartUp::LoadSupportTables, "Wait...  70%"},
      Step{&StartUp::LoadCodeWindows, "Wait...  80%"},
      Step{&StartUp::LayOutPanels, "Wait...  100%"},
      Step{&StartUp::ShowFirstForm, ""},
  };
  state_.View->StopTimer();
  if (begun_) return;
  begun_ = true;
  state_.View->ShowLogo("Wait...  1%");
  state_.Ports.Screen.Yield();
  for (const Step& step : kSteps) {
    (this->*step.Run)();
    if (!step.LogoText.empty()) state_.View->ShowLogo(step.LogoText);
    state_.Ports.Screen.Yield();
  }
  done_ = true;
}

void StartUp::DropEventIndex() {
  const std::string& path = state_.Settings.EventIndexPath();
  if (state_.Ports.Files.Exists(path)) state_.Ports.Files.Remove(path);
}

void StartUp::SetDefaults() {
  SetDefaultPaths(state_.Tables);
}

void StartUp::AddSupportFile(std::string_view name,
                             void (*add)(language::SupportTables&, std::string_view)) {
  const std::optional<std::string> text =
      state_.Ports.Files.Read(std::string(state_.Tables.ProgramFolder).append(name));
  // A support file that is missing leaves its tables empty.
  if (text) add(state_.Support, *text);
}

void StartUp::LoadLanguage() {
  AddSupportFile("\\Add003.tn", AddKeywordFile);
}

void StartUp::LoadSupportTables() {
  AddSupportFile("\\Add002.tn", AddFunctionFile);
  AddSupportFile("\\Add001.tn", AddMemberFile);
  AddSupportFile("\\Add004.tn", AddKindFile);
}

void StartUp::LoadCodeWindows() {
  state_.Code->LoadCodeWindows();
}

void StartUp::LayOutPanels() {
  state_.View->LayOutPanels();
  for (std::size_t i = 0; i < kPanelCount; ++i) {
    state_.View->ShowPanel(static_cast<Panel>(i), state_.Flags.PanelShown[i]);
  }
}

void StartUp::ShowFirstForm() {
  state_.View->ShowContainerAt(kContainerWidth, kContainerHeight);
  forms_.AddFirst();
  state_.EnableCommands(true);
  state_.View->CloseLogo();
}

}  // namespace tarnwick
