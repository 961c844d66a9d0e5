// How long it takes to generate the source of projects of growing size.
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

#include "codegen/program_source.h"
#include "codegen/show_rewriter.h"
#include "fakes/project_builder.h"
#include "growth.h"
#include "working_set.h"

namespace tarnwick {
namespace {

using test::BuiltForm;
using test::BuiltObject;
using test::ProjectBuilder;

constexpr int kForms = 4;

/// Objects of these kinds in turn: mostly what real forms are made of.
constexpr std::array kMix{Kind::Button,  Kind::Label,    Kind::TextBox,      Kind::CheckBox,
                          Kind::ListBox, Kind::ComboBox, Kind::OptionButton, Kind::RichTextBox,
                          Kind::Image,   Kind::Label,    Kind::Time,         Kind::Button};

void FillObject(BuiltObject& object, int number) {
  // A project that was read has its objects in the table, with code or without.
  object.Tables.EventTable.OwnerFor(
      ObjectKey(object.User.Number(), object.Control.Id, object.Control.Index));
  object.At(number % 640, number % 480).Size(75, 25);
  object.Control.Caption = "Caption " + std::to_string(number);
  object.Control.Text = "Text " + std::to_string(number);
  object.Control.ToolTipText = "A short hint";
  object.Record.TabOrder = static_cast<std::int16_t>(number % 1000);
  switch (object.Control.Id) {
    case Kind::Button:
    case Kind::Image:
      object.Picture("pictures\\" + std::to_string(number % 50) + ".bmp");
      object.Code(Event::OnClick, "ShowMessage \"clicked\"");
      break;
    case Kind::ListBox:
      object.Rows({"first row", "second row"});
      break;
    case Kind::ComboBox:
      object.Record.Items = "first row\x95second row\x95";
      break;
    case Kind::Time:
      object.Code(Event::OnTimer, "DoEvents");
      break;
    default:
      break;
  }
}

/// A project of about `objects` objects over a few forms.
std::unique_ptr<ProjectBuilder> MakeProject(std::int64_t objects) {
  auto project = std::make_unique<ProjectBuilder>();
  for (int f = 0; f < kForms; ++f) {
    const BuiltForm form = project->AddForm();
    for (int n = 0; n < objects / kForms; ++n) {
      const Kind kind = kMix[static_cast<std::size_t>(n) % kMix.size()];
      BuiltObject object = form.Add(kind, form.Record().Name + "Obj" + std::to_string(n));
      FillObject(object, n);
    }
  }
  return project;
}

/// Generates projects of one size in turn; `generate` returns the bytes of a program.
void Measure(benchmark::State& state, Growth& growth,
             const std::function<std::size_t(ProjectTables&)>& generate) {
  static WorkingSet<ProjectBuilder> projects;
  projects.SetSize(state.range(0), MakeProject);
  std::size_t bytes = 0;
  growth.Measure(state, [&] { bytes += generate(projects.Next().Tables); });
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

/// In pieces, as the command line program prints it.
void GenerateProject(benchmark::State& state) {
  static Growth growth;
  GeneratorState generator;
  Measure(state, growth, [&](ProjectTables& tables) {
    std::size_t bytes = 0;
    WriteSource(tables, generator, [&](std::string_view piece) { bytes += piece.size(); });
    return bytes;
  });
}
BENCHMARK(GenerateProject)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

/// As one text, for the compiler.
void GenerateText(benchmark::State& state) {
  static Growth growth;
  GeneratorState generator;
  Measure(state, growth,
          [&](ProjectTables& tables) { return GenerateSource(tables, generator).size(); });
}
BENCHMARK(GenerateText)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

/// A text of `calls` lines, every fourth of which shows the form.
void RewriteShow(benchmark::State& state) {
  std::string text;
  for (std::int64_t n = 0; n < state.range(0); ++n) {
    text += n % 4 == 0 ? "Form1.Show\r\n" : "Button1.Caption = \"some text\"\r\n";
  }
  for (auto _ : state) {
    benchmark::DoNotOptimize(RewriteShowCalls(text, "Form1.show", "TrnspAbrFrm1"));
  }
  state.SetComplexityN(state.range(0));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(RewriteShow)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

/// Forms with a transparent frame each, and an object or two: every form has calls to divert. Each
/// of them takes a pass over the whole text, so the time grows with forms times text.
void GenerateFrames(benchmark::State& state) {
  ProjectBuilder project;
  for (std::int64_t n = 0; n < state.range(0); ++n) {
    const BuiltForm form = project.AddForm();
    form.Add(Kind::TransparentFrame, "Glass");
    form.Add(Kind::Button, "Button1").Code(Event::OnClick, form.Record().Name + ".Show");
  }
  GeneratorState generator;
  for (auto _ : state) benchmark::DoNotOptimize(GenerateSource(project.Tables, generator));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(GenerateFrames)
    ->RangeMultiplier(10)
    ->Range(10, 1000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

}  // namespace
}  // namespace tarnwick
