// A project read from disk with no window around it.
#pragma once

#include <cstdio>
#include <optional>
#include <string>

#include "platform/console_messages.h"
#include "platform/native_files.h"
#include "platform/native_screen.h"
#include "platform/no_dialogs.h"
#include "project/open_project.h"

namespace tarnwick {

/// The Windows path of a path of this machine, made absolute first.
[[nodiscard]] std::string WindowsPathOf(const std::string& native);

/// Messages on a stream; quiet ones are not shown at all.
class ToolMessages final : public MessagePort {
 public:
  ToolMessages(std::FILE* out, bool quiet) : console_(out), quiet_(quiet) {}
  void Show(std::string_view text, std::string_view title) override;
  [[nodiscard]] bool AskYesNo(std::string_view text, std::string_view title,
                              MessageIcon icon) override;

 private:
  ConsoleMessages console_;
  bool quiet_;
};

/// The tables of one project and the ports that reading and saving need.
class LoadedProject {
 public:
  /// Without a program folder the real one is used. Messages go to `err`.
  LoadedProject(const std::optional<std::string>& program_folder, std::FILE* err, bool quiet);

  /// Reads the project; its first form is then the current one. False when it cannot be read.
  bool Load(const std::string& native_path);

  NativeFiles Files;
  ToolMessages Messages;
  NoDialogs Dialogs;
  NativeScreen Screen;
  ProjectObserver Observer;
  project::ContainerHost Container;
  ProjectTables Tables;
  project::ProjectContext Context{Tables, Files, Messages, Dialogs, Screen, Observer, Container};
};

}  // namespace tarnwick
