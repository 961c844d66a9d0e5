// class_builder <sources> <header> <source>: makes the table of the classes of a running program.
// It writes both files or, when a table has a fault, none.

#include <cstdio>
#include <fstream>
#include <string>

#include "build/class_text.h"
#include "build/source_reader.h"

namespace {

/// Writes a file unless it holds these bytes already, so that nothing is compiled in vain.
bool Write(const std::string& path, const std::string& bytes) {
  if (tarnwick::support::ReadFile(path) == bytes) return true;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (out) return true;
  std::fprintf(stderr, "%s: cannot be written\n", path.c_str());
  return false;
}

}  // namespace

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
  return Write(argv[2], header) && Write(argv[3], source) ? 0 : 1;
}
