// How long it takes to write and to read projects of growing size.
#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "fakes/fake_project.h"
#include "growth.h"
#include "support/random_project.h"

namespace tarnwick {
namespace {

using test::FakeProject;
using test::RandomProject;

constexpr int kForms = 4;

/// A project of so many objects over a few forms, saved once; built once for each size.
FakeProject& ProjectOf(std::int64_t objects) {
  static std::map<std::int64_t, std::unique_ptr<FakeProject>> built;
  auto& project = built[objects];
  if (project) return *project;
  project = std::make_unique<FakeProject>();
  RandomProject(1).Fill(project->Builder,
                        {.Forms = kForms, .ObjectsPerForm = static_cast<int>(objects / kForms)});
  SaveProject(project->Context, project->Tables.ProjectFile);
  return *project;
}

std::int64_t BytesOnDisk(const FakeProject& project) {
  std::size_t bytes = ProjectFileText(project.Tables).size();
  for (int form = 1; form <= project.Tables.FormsCount; ++form) bytes += project.Saved(form).size();
  return static_cast<std::int64_t>(bytes);
}

/// Times one step for each size.
template <class Step>
void Measure(benchmark::State& state, Growth& growth, Step step) {
  FakeProject& project = ProjectOf(state.range(0));
  const std::int64_t bytes = BytesOnDisk(project);
  growth.Measure(state, [&] {
    if (!step(project)) state.SkipWithError("the project was refused");
    project.Ports.Log.Clear();
  });
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes);
}

void WriteProject(benchmark::State& state) {
  static Growth growth;
  Measure(state, growth, [](FakeProject& project) {
    return SaveProject(project.Context, project.Tables.ProjectFile);
  });
}
BENCHMARK(WriteProject)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

void ReadProject(benchmark::State& state) {
  static Growth growth;
  Measure(state, growth, [](FakeProject& project) {
    return LoadProject(project.Context, project.Tables.ProjectFile);
  });
}
BENCHMARK(ReadProject)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
