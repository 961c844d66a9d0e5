// How long it takes to write and to read projects of growing size.
#include <cstdint>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "fakes/fake_project.h"
#include "fakes/random_project.h"
#include "growth.h"
#include "working_set.h"

namespace tarnwick {
namespace {

using test::FakeProject;
using test::RandomProject;

constexpr int kForms = 4;

/// A project of so many objects over a few forms, saved once. No two are the same.
std::unique_ptr<FakeProject> MakeProject(std::int64_t objects) {
  static std::uint32_t seed = 0;
  auto project = std::make_unique<FakeProject>();
  RandomProject(++seed).Fill(
      project->Builder, {.Forms = kForms, .ObjectsPerForm = static_cast<int>(objects / kForms)});
  SaveProject(project->Context, project->Tables.ProjectFile);
  return project;
}

/// The bytes of all files of a project.
std::int64_t BytesOnDisk(const FakeProject& project) {
  const auto size_of = [&](const std::string& path) {
    return static_cast<std::int64_t>(project.Ports.Files.Bytes(path).value_or("").size());
  };
  std::int64_t bytes = size_of(project.Tables.ProjectFile);
  for (int form = 1; form <= project.Tables.FormsCount; ++form) {
    bytes += size_of(project.Tables.Form(form)->FileName);
  }
  return bytes;
}

/// Times one step for each size.
template <class Step>
void Measure(benchmark::State& state, Growth& growth, Step step) {
  static WorkingSet<FakeProject> projects;
  projects.SetSize(state.range(0), MakeProject);
  const std::int64_t bytes = BytesOnDisk(projects.Next());
  growth.Measure(state, [&] {
    FakeProject& project = projects.Next();
    if (!step(project)) state.SkipWithError("the project was refused");
    project.Ports.Log.Clear();
  });
  // All of one size have about as many.
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes);
}

void WriteProject(benchmark::State& state) {
  static Growth growth;
  Measure(state, growth, [](FakeProject& project) {
    return project::SaveProject(project.Context, project.Tables.ProjectFile);
  });
}
BENCHMARK(WriteProject)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

void ReadProject(benchmark::State& state) {
  static Growth growth;
  Measure(state, growth, [](FakeProject& project) {
    return project::LoadProject(project.Context, project.Tables.ProjectFile);
  });
}
BENCHMARK(ReadProject)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
