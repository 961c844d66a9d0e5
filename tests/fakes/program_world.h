// The world in which the programs of the conformance tables run.
#pragma once

#include <string>
#include <vector>

#include "basic/hosts/hosts.h"
#include "fakes/program_hosts.h"

namespace tarnwick::basic {

/// Longest string of the tables' programs, so that short lines meet the limit.
inline constexpr std::size_t kTableTextLimit = 1000;

/// Three files in "C:\work", two lines of input, one key pressed.
struct ProgramWorld {
  ProgramWorld();
  ~ProgramWorld();
  ProgramWorld(const ProgramWorld&) = delete;
  ProgramWorld& operator=(const ProgramWorld&) = delete;

  std::string Log;
  tarnwick::test::LogConsole Console{Log};
  tarnwick::test::ProgramFiles Files;
  tarnwick::test::StillClock Clock{Log};
  tarnwick::test::LogSystem System{Log};
  tarnwick::test::LogPrinter Printer{Log};
  Hosts Host{&Console, nullptr, &Files, &Clock, &System, nullptr, &Printer};
  std::vector<std::string> Resources = {"a.txt", "gone.bmp"};
};

}  // namespace tarnwick::basic
