#include "basic/run_source.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "basic/check/checker.h"
#include "basic/code/emitter.h"
#include "basic/vm/machine.h"
#include "fakes/source_text.h"

namespace tarnwick::basic {
namespace {

/// No classes: the tables' programs have no objects.
class NoClasses : public ClassCatalog {
 public:
  std::optional<ClassId> FindClass(std::string_view) const override { return std::nullopt; }
  std::string_view ClassName(ClassId) const override { return {}; }
  const MemberFacts* FindMember(ClassId, std::string_view) const override { return nullptr; }
  std::optional<ClassId> FindBuiltInObject(std::string_view) const override { return std::nullopt; }
  bool CopiesValues(ClassId) const override { return false; }
  bool IsParent(ClassId) const override { return false; }
  std::vector<std::string_view> ClassNames() const override { return {}; }
  std::vector<std::string_view> MemberNames(ClassId) const override { return {}; }
};

std::string PlaceText(SourcePlace at) {
  return std::to_string(at.Line) + ":" + std::to_string(at.Column) + ": ";
}

}  // namespace

LineResult RunSource(const std::string& text, ProgramWorld& world, const RunOptions& options) {
  test::ParsedText parsed(text);
  LineResult result;
  const NoClasses classes;
  const Program program = Check(std::move(parsed.Tree), classes, false, parsed.Found);
  const std::vector<Message>& found = parsed.Found.All();
  const auto error = std::find_if(found.begin(), found.end(), [](const Message& message) {
    return message.Level == Severity::Error;
  });
  if (error != found.end()) {
    result.Error = PlaceText(error->At) + error->Text;
    return result;
  }
  const EmitResult emitted = Emit(program);
  if (!emitted.Error.empty()) {
    result.Error = PlaceText(emitted.At) + emitted.Error;
    return result;
  }
  std::optional<Machine> machine(std::in_place, emitted.Made, world.Host, options);
  machine->SetResources(world.Resources);
  const RunResult run = machine->Run();
  machine.reset();
  result.Output = world.Log;
  result.Error = run.Text;
  if (run.End != RunEnd::Ended && run.End != RunEnd::Error) result.Error = "did not end";
  for (const RunNote& note : run.Notes) result.Notes += "note: " + note.Text + "\n";
  // One use is the code's own.
  for (const TextBody& constant : emitted.Made.Texts) result.TextsHeld += constant.Count - 1;
  return result;
}

LineResult RunTableProgram(const std::string& text, Dispatch how) {
  ProgramWorld world;
  RunOptions options;
  options.MaxSteps = 1'000'000;
  options.TextLimit = kTableTextLimit;
  options.How = how;
  return RunSource(text, world, options);
}

}  // namespace tarnwick::basic
