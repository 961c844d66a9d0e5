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

/// True when the program begins with form 1 because that has a transparent frame.
bool BeginsWithFrame(const ProjectTables& tables) {
  return tables.Form(1) != nullptr && HasTransparentFrame(tables, 1);
}

void WriteStartLine(Generation& gen) {
  gen.Out.Line(FirstShownForm(gen.Tables), BeginsWithFrame(gen.Tables) ? ".Show" : ".ShowModal");
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

/// Calls `use(form)` with the number of each form that has a transparent frame: it is not shown by
/// its own name.
template <class Use>
void ForEachFramedForm(const ProjectTables& tables, Use use) {
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (tables.IsLive(form) && HasTransparentFrame(tables, form)) use(form);
  }
}

/// Writes the program before its calls of Show are rewritten.
void WriteSections(Generation& gen) {
  gen.State.KindCounters.Reset(CounterLife::Form);
  gen.State.DefaultIconDone = false;
  const auto mark_whole = [&](SourcePart part) {
    if (gen.Map != nullptr) gen.Map->Begin(gen.Out.Size(), {.Part = part});
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
}

}  // namespace

std::string_view FirstShownForm(const ProjectTables& tables) {
  return BeginsWithFrame(tables) ? std::string_view(tables.Form(1)->Name)
                                 : FormListName(tables.MainFormName);
}

std::string GenerateSource(ProjectTables& tables, GeneratorState& state, SourceMap* map) {
  Generation gen(tables, state);
  gen.Map = map;
  gen.Out.Expect(ExpectedSize(tables));
  WriteSections(gen);
  std::string text = gen.Out.Take();
  ForEachFramedForm(tables, [&](int form) {
    std::vector<TextChange> changes;
    text = RewriteShowCalls(text, tables.Form(form)->Name + ".show", TransparentFrameSubName(form),
                            map == nullptr ? nullptr : &changes);
    if (map != nullptr) map->Follow(changes);
  });
  // The text is printed whole, as one more line.
  text += kLineEnd;
  return text;
}

void WriteSource(ProjectTables& tables, GeneratorState& state, const TextSink& sink) {
  bool framed = false;
  ForEachFramedForm(tables, [&](int) { framed = true; });
  if (framed) return sink(GenerateSource(tables, state));
  constexpr std::size_t kPieceBytes = std::size_t{32} << 10U;
  Generation gen(tables, state, SourceText(sink, kPieceBytes));
  WriteSections(gen);
  gen.Out.Blank();
  gen.Out.Flush();
}

}  // namespace tarnwick
