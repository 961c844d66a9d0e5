#include "codegen/program_source.h"

#include <utility>
#include <vector>

#include "codegen/declarations.h"
#include "codegen/event_code.h"
#include "codegen/form_init.h"
#include "codegen/generation.h"
#include "codegen/show_diversion.h"
#include "codegen/transparent_frame.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

/// Calls `write()` with each form that was not removed selected, in the order of the numbers.
template <class Write>
void ForEachForm(Generation& gen, Write write) {
  for (int i = 1; i <= gen.Tables.FormsCount; ++i) {
    if (!gen.Tables.IsLive(i)) continue;
    gen.SelectForm(i);
    write();
  }
}

bool HasTransparentFrame(const ProjectTables& tables, int form) {
  const DesignForm* user = tables.UserIfAny(form);
  return user != nullptr && user->HasObjects(Kind::TransparentFrame);
}

/// Room for the text of a project, so that it grows without being copied in most cases.
std::size_t ExpectedSize(const ProjectTables& tables) {
  constexpr std::size_t kPerControl = 768;
  constexpr std::size_t kPerForm = 1024;
  std::size_t size = kPerForm;
  for (int i = 1; i <= tables.FormsCount; ++i) {
    size += kPerForm;
    if (const DesignForm* user = tables.UserIfAny(i)) size += kPerControl * user->Controls().size();
  }
  return size;
}

void WriteIncludeLine(Generation& gen) {
  // Asked of the form, not of the project: without a form in slot 1 there is no such line.
  if (gen.State.i != 1) return;
  gen.Out.Line("$Include \"", gen.Tables.ProgramFolder, "\\Tarnwick1.lib\"");
}

void WriteStartLine(Generation& gen) {
  const FormRec* first = gen.Tables.Form(1);
  if (first != nullptr && HasTransparentFrame(gen.Tables, 1)) {
    gen.Out.Line(first->Name, ".Show");
  } else {
    gen.Out.Line(FormListName(gen.Tables.MainFormName), ".ShowModal");
  }
}

void WriteFreeLines(Generation& gen) {
  const int highest = gen.User().UBound(Kind::HtmlViewer);
  for (int j = 1; j <= highest; ++j) {
    if (const ControlRef viewer = gen.User().Element(Kind::HtmlViewer, j)) {
      gen.Out.Line(viewer->Tag, ".Free");
    }
  }
}

/// Forms with a transparent frame are not shown by their own name.
std::vector<ShowDiversion> DiversionsOf(const ProjectTables& tables) {
  std::vector<ShowDiversion> diverted;
  for (int i = 1; i <= tables.FormsCount; ++i) {
    if (!tables.IsLive(i) || !HasTransparentFrame(tables, i)) continue;
    diverted.push_back({tables.Form(i)->Name, TransparentFrameSubName(i)});
  }
  return diverted;
}

void WriteSections(ProjectTables& tables, GeneratorState& state, TextSink sink) {
  Generation gen(tables, state, std::move(sink));
  gen.Out.Line("Dim Font As QFont");
  ForEachForm(gen, [&] { WriteDeclarations(gen); });
  ForEachForm(gen, [&] {
    if (gen.User().HasObjects(Kind::TransparentFrame)) WriteTransparentFrameSub(gen);
  });
  ForEachForm(gen, [&] {
    WriteIncludeLine(gen);
    WriteSubDeclares(gen);
  });
  ForEachForm(gen, [&] {
    WriteEventSubs(gen);
    gen.State.KindCounters.Reset(CounterLife::Form);
    WriteFormInit(gen);
  });
  gen.Out.Blank();
  WriteStartLine(gen);
  ForEachForm(gen, [&] { WriteFreeLines(gen); });
  gen.Out.Flush();
}

}  // namespace

void WriteSource(ProjectTables& tables, GeneratorState& state, const TextSink& sink) {
  state.KindCounters.Reset(CounterLife::Form);
  state.DefaultIconDone = false;
  const std::vector<ShowDiversion> diverted = DiversionsOf(tables);
  if (diverted.empty()) {
    WriteSections(tables, state, sink);
  } else {
    std::string text;
    text.reserve(ExpectedSize(tables));
    WriteSections(tables, state, [&](std::string_view piece) { text += piece; });
    sink(DivertShowCalls(text, diverted));
  }
  // The text is printed whole, as one more line.
  sink("\r\n");
}

std::string GenerateSource(ProjectTables& tables, GeneratorState& state) {
  std::string text;
  text.reserve(ExpectedSize(tables));
  WriteSource(tables, state, [&](std::string_view piece) { text += piece; });
  return text;
}

}  // namespace tarnwick
