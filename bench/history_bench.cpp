// What a step costs on a form of a thousand objects: time to record it, and memory of 500 of them.
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "designer/history/history.h"
#include "designer/object_kinds.h"
#include "designer/settle.h"
#include "model/new_form.h"

namespace tarnwick {
namespace {

constexpr int kObjects = 1000;

/// A form of buttons and labels, each with code.
struct LargeForm {
  LargeForm() {
    AddForm(Tables);
    for (int i = 0; i < kObjects; ++i) {
      const ControlRef control =
          CreateObject(Tables, *Tables.User(1), i % 2 == 0 ? Kind::Button : Kind::Label, 0, 0);
      Tables.EventTable.Replace("Form1." + control->ArrayAndIndex() + ".OnClick",
                                "Print \"the code of an object\"\r\nBeep");
    }
    // The first step takes the form over.
    Steps.Begin(1, "First");
    Steps.End();
  }
  ProjectTables Tables;
  ProjectObserver Observer;
  History Steps{Tables, Observer};
};

void RecordMove(benchmark::State& state) {
  LargeForm form;
  const ControlRef control = form.Tables.User(1)->Element(Kind::Button, kObjects / 4);
  for (auto _ : state) {
    const HistoryStep step(form.Steps, 1, "Move");
    control->Left += 15;
  }
}
BENCHMARK(RecordMove);

/// Deletes the first button again and again: all others of the kind move down.
void DeleteFirst(LargeForm& form) {
  DesignForm& window = *form.Tables.User(1);
  const HistoryStep step(form.Steps, 1, "Delete");
  const ControlRef first = window.Element(Kind::Button, 1);
  if (!first) return;
  DeleteObject(form.Tables, window, first);
  SettleForm(form.Tables, window, Kind::Button, 1);
}

void MemoryOfSteps(benchmark::State& state) {
  for (auto _ : state) {
    LargeForm form;
    const auto before = mallinfo2().uordblks;
    for (std::size_t i = 0; i < History::kMostSteps; ++i) {
      if (state.range(0) == 0) {
        const HistoryStep step(form.Steps, 1, "Move");
        for (const ControlRef& control : form.Tables.User(1)->Elements(Kind::Button)) {
          if (control) control->Left += 15;
        }
      } else {
        DeleteFirst(form);
      }
    }
    state.counters["MiB"] = static_cast<double>(mallinfo2().uordblks - before) / (1024.0 * 1024.0);
  }
}
BENCHMARK(MemoryOfSteps)->ArgName("deletes")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void UndoAndRedo(benchmark::State& state) {
  LargeForm form;
  DeleteFirst(form);
  for (auto _ : state) {
    form.Steps.Undo();
    form.Steps.Redo();
  }
}
BENCHMARK(UndoAndRedo);

}  // namespace
}  // namespace tarnwick
