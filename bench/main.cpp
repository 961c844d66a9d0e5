#include <benchmark/benchmark.h>

#include "platform/large_pages.h"

int main(int argc, char** argv) {
  // As the program on the command line does: otherwise a long text is measured by how the system
  // hands out its pages.
  tarnwick::PreferLargePages();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
