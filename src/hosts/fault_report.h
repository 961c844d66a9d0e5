// What is kept of a fault of the runner itself: a file that its user can send.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <vector>

namespace tarnwick::basic {
class Machine;
}

namespace tarnwick::hosts {

class RunReport;

/// What is known of a run when the runner itself fails. All texts are in UTF-8.
struct FaultReport {
  std::string Runner;               ///< name and version
  std::string Program;              ///< path of the source; "" for none
  std::string What;                 ///< what the fault says of itself
  std::vector<std::string> Places;  ///< "in Work, /home/me/a.bas:3:1", innermost first
  std::uint64_t Steps = 0;          ///< instructions run; 0 where they were not counted
};

/// The lines of the file.
[[nodiscard]] std::string TextOf(const FaultReport& report);
/// Writes the report into the first of these folders that takes it, which is made when it is not
/// there. Returns the file's path, or "" when none took it.
[[nodiscard]] std::string WriteFaultReport(const FaultReport& report,
                                           const std::vector<std::string>& folders);
/// The user's data folder of the program, then the one for temporary files.
[[nodiscard]] std::vector<std::string> FaultFolders();

/// Reports faults of a process that runs programs; one watch at a time. An exception is handed to
/// `Report`. One that meets code which lets none through, such as the toolkit's, cannot be caught:
/// it is reported on standard error, and the process ends with `RunExit::Fault`.
///
///   FaultWatch watch("tarnwick-run 1.0", path);
///   try { ... } catch (const std::exception& fault) { Say(watch.Report(fault)); }
class FaultWatch {
 public:
  FaultWatch(std::string runner, std::string program);
  ~FaultWatch();
  FaultWatch(const FaultWatch&) = delete;
  FaultWatch& operator=(const FaultWatch&) = delete;

  /// While it lives, the machine runs the program. Both arguments outlive it.
  class Running {
   public:
    Running(const basic::Machine& machine, const RunReport& report);
    ~Running();
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

   private:
    int exceptions_;
  };

  /// Writes the report and returns what to tell the user, UTF-8 without a line end.
  [[nodiscard]] std::string Report(const std::exception& fault);

 private:
  FaultReport report_;
  const basic::Machine* machine_ = nullptr;
  const RunReport* places_ = nullptr;
  std::terminate_handler before_;

  void TakePlaces();
  [[noreturn]] static void EndProcess();
};

}  // namespace tarnwick::hosts
