// Any bytes as the index of a project whose folder holds two forms.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fakes/fake_project.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tarnwick::test::FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {A}\r\n[Button](1) {B} Click<x>Click\r\n");
  project.Ports.Files.Put("C:\\Work\\sub\\b.ftn", "[Form](2) {B}\r\n");
  project.LoadIndex(std::string(reinterpret_cast<const char*>(data), size));
  // Whatever the index says, there is a project to work on, and it can be saved.
  if (project.Tables.FormsCount < 1 || project.Tables.LoadingProject != 0) std::abort();
  tarnwick::project::SaveProject(project.Context, project.Tables.ProjectFile);
  return 0;
}
