// Any bytes as a form file: read, written again, and generated.
#include <cstddef>
#include <cstdint>
#include <string>

#include "codegen/program_source.h"
#include "fakes/fake_project.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tarnwick::test::FakeProject project;
  project.Load(std::string(reinterpret_cast<const char*>(data), size));
  std::string saved;
  for (int form = 1; form <= project.Tables.FormsCount; ++form) saved = project.Saved(form);
  project.Load(saved);
  tarnwick::GeneratorState state;
  return tarnwick::GenerateSource(project.Tables, state).empty() ? -1 : 0;
}
