#include "codegen/program_source.h"

#include <string>
#include <vector>

#include "codegen/declarations.h"
#include "codegen/event_code.h"
#include "codegen/form_init.h"
#include "codegen/generation.h"
#include "codegen/show_rewriter.h"
#include "codegen/transparent_frame.h"
#include "text/strings.h"

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

void WriteIncludeLine(Generation& gen) {
  // Asked of the form, not of the project: without a form in slot 1 there is no such line.
  if (gen.State.i != 1) return;
  gen.Mark({.Part = SourcePart::Include});
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
  gen.Mark({.Part = SourcePart::Free});
  const int highest = gen.User().UBound(Kind::HtmlViewer);
  for (int j = 1; j <= highest; ++j) {
    if (const ControlRef viewer = gen.User().Element(Kind::HtmlViewer, j)) {
      gen.Out.Line(viewer->Tag, ".Free");
    }
  }
}

/// About as many bytes as the program takes.
std::size_t ExpectedSize(const ProjectTables& tables) {
  constexpr std::size_t kBytesPerObject = 512;
  std::size_t objects = 1;
  for (const auto& window : tables.FormsUser) {
    if (window) objects += window->Controls().size();
  }
  return objects * kBytesPerObject;
}

std::string WriteSections(ProjectTables& tables, GeneratorState& state, SourceMap* map) {
  Generation gen(tables, state);
  gen.Map = map;
  gen.Out.Expect(ExpectedSize(tables));
  const auto mark_whole = [&](SourcePart part) {
    if (map != nullptr) map->Begin(gen.Out.Size(), {.Part = part});
  };
  mark_whole(SourcePart::Dims);
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
  mark_whole(SourcePart::Start);
  WriteStartLine(gen);
  ForEachForm(gen, [&] { WriteFreeLines(gen); });
  return gen.Out.Take();
}

}  // namespace

std::string GenerateSource(ProjectTables& tables, GeneratorState& state, SourceMap* map) {
  state.KindCounters.Reset(CounterLife::Form);
  state.DefaultIconDone = false;
  std::string text = WriteSections(tables, state, map);
  // Forms with a transparent frame are not shown by their own name.
  for (int i = 1; i <= tables.FormsCount; ++i) {
    if (!tables.IsLive(i) || !HasTransparentFrame(tables, i)) continue;
    std::vector<TextChange> changes;
    text = RewriteShowCalls(text, tables.Form(i)->Name + ".show", TransparentFrameSubName(i),
                            map == nullptr ? nullptr : &changes);
    if (map != nullptr) map->Follow(changes);
  }
  // The text is printed whole, as one more line.
  text += kLineEnd;
  return text;
}

}  // namespace tarnwick
