#include "fakes/program_world.h"

namespace tarnwick::basic {

ProgramWorld::ProgramWorld() {
  Files.Add("a.txt", "alpha");
  Files.Add("b.txt", "be");
  Files.Add("c.ini", "");
  Console.Input = "Ann\n12,5\n";
  Console.Keys = "k";
}

ProgramWorld::~ProgramWorld() = default;

}  // namespace tarnwick::basic
