// Any bytes as a project of the former version: converted, then opened.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fakes/fake_project.h"
#include "project/convert_project.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tarnwick::test::FakeProject project;
  project.Ports.Files.Put("C:\\Work\\old.ptn",
                          std::string(reinterpret_cast<const char*>(data), size));
  const auto index = tarnwick::project::ConvertOldProject(project.Ports.Files, "C:\\Work\\old.ptn");
  if (!index) std::abort();
  project.Tables.ProjectFile = *index;
  if (!tarnwick::project::LoadProject(project.Context, *index)) std::abort();
  return 0;
}
