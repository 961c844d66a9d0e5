// All hosts of one running program.
#pragma once

namespace tarnwick::basic {

class ClockHost;
class ConsoleHost;
class FileHost;
class NativeCalls;
class ObjectHost;
class PrinterHost;
class SystemHost;

/// A host that is not there is null: what needs it ends the program with a run-time error that
/// names it. The hosts outlive the machine.
struct Hosts {
  ConsoleHost* Console = nullptr;
  ObjectHost* Objects = nullptr;
  FileHost* Files = nullptr;
  ClockHost* Clock = nullptr;
  SystemHost* System = nullptr;
  NativeCalls* Natives = nullptr;
  PrinterHost* Printer = nullptr;  ///< without one, what LPRINT writes is lost, with a note
};

}  // namespace tarnwick::basic
