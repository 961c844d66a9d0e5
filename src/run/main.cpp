// tarnwick-run: runs a RapidQ program with its windows.
#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "objects/supported_list.h"
#include "run/classic_palette.h"
#include "run/runner_arguments.h"
#include "run/session.h"
#include "text/code_page.h"

namespace {

using tarnwick::hosts::RunExit;

/// True when windows can be shown at all.
bool HasDisplay() {
  for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

int Say(const std::string& text, RunExit exit) {
  std::FILE* const to = exit == RunExit::Ended ? stdout : stderr;
  std::fputs(text.c_str(), to);
  return static_cast<int>(exit);
}

int RunMain(int argc, char** argv) {
  using namespace tarnwick;
  const std::vector<std::string> words(argv + 1, argv + argc);
  std::string wrong;
  const auto arguments = run::ReadRunnerArguments(words, wrong);
  if (!arguments) {
    return Say("tarnwick-run: " + wrong + "\n\n" + run::RunnerHelp(), RunExit::Usage);
  }
  if (arguments->Help) return Say(run::RunnerHelp(), RunExit::Ended);
  if (arguments->Supported) return Say(CodePageToUtf8(objects::SupportedList()), RunExit::Ended);
  if (!HasDisplay()) {
    return Say("tarnwick-run: there is no display. Without windows: tarnwick-cli run\n",
               RunExit::Fault);
  }
  QApplication application(argc, argv);
  // The program ends when its text does, not when a window closes.
  QApplication::setQuitOnLastWindowClosed(false);
  run::ApplyClassicLook(application);
  return static_cast<int>(run::RunSession(*arguments, {}));
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return RunMain(argc, argv);
  } catch (const std::exception& fault) {
    return Say(std::string("tarnwick-run: ") + fault.what() + "\n", RunExit::Fault);
  }
}
