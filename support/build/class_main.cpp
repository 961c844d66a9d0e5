// class_builder <sources> <header> <source>: makes the table of the classes of a running program.
// It writes both files or, when a table has a fault, none.

#include <cstdio>
#include <string>

#include "build/class_text.h"
#include "build/files.h"

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: class_builder <sources> <header> <source>\n", stderr);
    return 2;
  }
  using namespace tarnwick::support;
  Faults faults;
  const std::vector<RunClass> classes = LoadClasses(argv[1], faults);
  const std::string header = ClassWordsHeader(classes);
  const std::string source = ClassRowsSource(classes, faults);
  for (const std::string& line : faults.Lines()) std::fprintf(stderr, "%s\n", line.c_str());
  if (!faults.Empty()) return 1;
  return WriteFile(argv[2], header) && WriteFile(argv[3], source) ? 0 : 1;
}
