// How long it takes to write and to read projects of growing size.
#include <cmath>
#include <cstdint>
#include <ctime>
#include <iterator>
#include <map>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "fakes/fake_project.h"
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

/// Times one step for each size and reports the exponent with which it grows; 1 is linear.
template <class Step>
void Measure(benchmark::State& state, std::map<std::int64_t, double>& measured, Step step) {
  const std::int64_t objects = state.range(0);
  FakeProject& project = ProjectOf(objects);
  const std::int64_t bytes = BytesOnDisk(project);
  const auto start = std::clock();
  for (auto _ : state) {
    if (!step(project)) state.SkipWithError("the project was refused");
    project.Ports.Log.Clear();
  }
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  measured[objects] = seconds / static_cast<double>(state.iterations());
  if (const auto here = measured.find(objects); here != measured.begin()) {
    const auto before = std::prev(here);
    state.counters["growth"] =
        std::log(here->second / before->second) /
        std::log(static_cast<double>(objects) / static_cast<double>(before->first));
  }
  state.SetComplexityN(objects);
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * objects);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes);
}

void WriteProject(benchmark::State& state) {
  static std::map<std::int64_t, double> measured;
  Measure(state, measured, [](FakeProject& project) {
    return SaveProject(project.Context, project.Tables.ProjectFile);
  });
}
BENCHMARK(WriteProject)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void ReadProject(benchmark::State& state) {
  static std::map<std::int64_t, double> measured;
  Measure(state, measured, [](FakeProject& project) {
    return LoadProject(project.Context, project.Tables.ProjectFile);
  });
}
BENCHMARK(ReadProject)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

}  // namespace
}  // namespace tarnwick
