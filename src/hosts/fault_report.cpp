#include "hosts/fault_report.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "basic/vm/machine.h"
#include "hosts/run_report.h"

namespace tarnwick::hosts {
namespace {

namespace fs = std::filesystem;

/// The watch of this process; null for none.
FaultWatch* g_watch = nullptr;

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace

std::string TextOf(const FaultReport& report) {
  std::string text = report.Runner + " failed.\n\n";
  text += "fault:   " + report.What + "\n";
  if (!report.Program.empty()) text += "program: " + report.Program + "\n";
  text += "steps:   " + (report.Steps == 0 ? "not counted" : std::to_string(report.Steps)) + "\n";
  text += report.Places.empty() ? "No line of the program was running.\n" : "The program was at\n";
  for (const std::string& place : report.Places) text += "  " + place + "\n";
  return text;
}

std::string WriteFaultReport(const FaultReport& report, const std::vector<std::string>& folders) {
  const std::string name = "run-fault-" + std::to_string(::getpid()) + ".txt";
  for (const std::string& folder : folders) {
    std::error_code failed;
    fs::create_directories(folder, failed);
    const fs::path path = fs::path(folder) / name;
    std::ofstream file(path, std::ios::binary);
    if (file << TextOf(report) << std::flush) return path.string();
  }
  return {};
}

std::vector<std::string> FaultFolders() {
  // By the desktop's convention a data folder that is no absolute path is ignored.
  fs::path data = Environment("XDG_DATA_HOME");
  const std::string home = Environment("HOME");
  if (!data.is_absolute() && !home.empty()) data = fs::path(home) / ".local" / "share";
  std::vector<std::string> folders;
  if (data.is_absolute()) folders.push_back((data / "tarnwick").string());
  std::error_code failed;
  const fs::path temporary = fs::temp_directory_path(failed);
  if (!failed) folders.push_back(temporary.string());
  return folders;
}

FaultWatch::FaultWatch(std::string runner, std::string program)
    : report_{std::move(runner), std::move(program), {}, {}, 0},
      before_(std::set_terminate(&EndProcess)) {
  g_watch = this;
}

FaultWatch::~FaultWatch() {
  g_watch = nullptr;
  std::set_terminate(before_);
}

FaultWatch::Running::Running(const basic::Machine& machine, const RunReport& report)
    : exceptions_(std::uncaught_exceptions()) {
  if (g_watch == nullptr) return;
  g_watch->machine_ = &machine;
  g_watch->places_ = &report;
}

FaultWatch::Running::~Running() {
  if (g_watch == nullptr) return;
  // Behind a fault the calls are gone.
  if (std::uncaught_exceptions() > exceptions_) g_watch->TakePlaces();
  g_watch->machine_ = nullptr;
  g_watch->places_ = nullptr;
}

void FaultWatch::TakePlaces() {
  if (machine_ == nullptr || places_ == nullptr) return;
  report_.Steps = machine_->Steps();
  const std::vector<basic::CallSite> chain = machine_->Chain();
  report_.Places = ChainLines(*places_, chain);
  // A chain of one call is no chain: its line is the place.
  if (report_.Places.empty() && !chain.empty()) {
    report_.Places.push_back(places_->PlaceText(chain.front().At));
  }
}

std::string FaultWatch::Report(const std::exception& fault) {
  TakePlaces();
  report_.What = fault.what();
  const std::string file = WriteFaultReport(report_, FaultFolders());
  std::string text = "fault of the runner: " + report_.What;
  if (!report_.Places.empty()) text += ", " + report_.Places.front();
  return text + (file.empty() ? "" : ". A report is in " + file);
}

void FaultWatch::EndProcess() {
  FaultWatch* const watch = std::exchange(g_watch, nullptr);
  const std::exception_ptr fault = std::current_exception();
  if (watch == nullptr || fault == nullptr) std::abort();
  try {
    std::rethrow_exception(fault);
  } catch (const std::exception& known) {
    std::fprintf(stderr, "%s: %s\n", watch->report_.Runner.c_str(), watch->Report(known).c_str());
  } catch (...) {
    std::fprintf(stderr, "%s: fault of the runner\n", watch->report_.Runner.c_str());
  }
  std::_Exit(static_cast<int>(RunExit::Fault));
}

}  // namespace tarnwick::hosts
