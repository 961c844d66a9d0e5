// A whole main window on fakes, for the tests of its commands.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "designer/form_user.h"
#include "designer/tool_box.h"
#include "fakes/fake_instance_folders.h"
#include "fakes/fake_ports.h"
#include "fakes/fake_shell.h"
#include "inspector/property_sheet.h"
#include "shell/command_center.h"
#include "shell/events_bar.h"
#include "shell/form_commands.h"
#include "shell/form_main.h"
#include "shell/mdi_form.h"
#include "shell/program_icon.h"
#include "shell/project_commands.h"

namespace tarnwick {

inline constexpr std::string_view kProgram = "Z:\\opt\\tarnwick";

/// Twips of a number of pixels.
inline constexpr float Twips(int pixels) {
  return static_cast<float>(pixels * 15);
}

class ShellTest : public ::testing::Test {
 protected:
  FakePorts ports;
  FakeShellView view{ports.Log};
  FakeSideWindows windows{ports.Log};
  FakeObserver observer{ports.Log};
  ShellWindows views{view, windows, windows, windows};
  FakeInstanceFolders instances{ports.Files};
  MDIForm1 main{ports.All(), instances, std::string(kProgram)};
  ShellTest();
  ~ShellTest() override;

  CallLog& log() { return ports.Log; }
  ProjectTables& tables() { return main.Tables(); }
  FormUser& surface();

  /// Start-up as the program does it; the log is empty afterwards.
  void Start();
  bool closed = false;

  /// Arms a tool and presses and releases on the form, both at the same place in pixels.
  void Place(int tool, int x, int y);
  /// Saves the project and its forms under names of the folder, the log is empty afterwards.
  void SaveUnder(const std::string& path, std::initializer_list<std::string> forms);
  std::vector<std::string> Lines();

  /// The entries were made in this order; others may stand between them.
  void ExpectOrder(std::initializer_list<std::string_view> entries);
  std::string Text();
};

}  // namespace tarnwick
