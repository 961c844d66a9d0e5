#include "project/compile.h"

#include <utility>

#include "codegen/program_source.h"
#include "text/code_page.h"

namespace tarnwick::project {

namespace {

void SetFormVisible(CompileHost& host, DesignForm* form, bool visible) {
  if (form == nullptr) return;
  form->Visible = visible;
  host.ShowDesignForm(*form, visible);
}

std::string InQuotes(std::string_view text) {
  return std::string(1, '"').append(text).append(1, '"');
}

}  // namespace

void CheckMainForm(ProjectTables& tables) {
  for (int i = 1; i <= tables.FormsCount; ++i) {
    const FormRec* form = tables.Form(i);
    if (form == nullptr || form->Removed != 1 || form->Name != FormListName(tables.MainFormName)) {
      continue;
    }
    if (!tables.ListaFrms.Empty()) tables.MainFormName = tables.ListaFrms.Lines().front().Text;
    return;
  }
}

std::string CompilerPath(const ProjectTables& tables, FilePort& files) {
  std::string own = tables.ProgramFolder + "\\Rc.exe";
  if (files.Exists(own) || tables.ExecutableFolder.empty()) return own;
  std::string beside = tables.ExecutableFolder + "\\Rc.exe";
  return files.Exists(beside) ? beside : own;
}

std::string CompilerCommandLine(const ProjectTables& tables, FilePort& files,
                                const std::string& source_file) {
  static const FormRec empty{};
  const FormRec* first = tables.Form(1);
  // The icon is that of form 1, not of the main form.
  const std::string& icon_file = (first == nullptr ? empty : *first).IconFile;
  const std::string icon = files.ShortPathOf(
      icon_file != kDefaultFile ? icon_file : tables.ProgramFolder + "\\IconApp.ico");

  constexpr std::string_view kEnding = ".com";
  std::string source = files.ShortPathOf(source_file);
  const bool ends =
      source.size() >= kEnding.size() &&
      EqualsFolded(std::string_view(source).substr(source.size() - kEnding.size()), kEnding);
  if (!ends) source += kEnding;
  // The first dot of the whole path: a dot in a folder's name cuts there.
  const std::string target = source.substr(0, source.find('.') + 1) + "EXE";

  return CompilerPath(tables, files) + " /COMPILE  " + InQuotes(icon) + ' ' + InQuotes(source) +
         ' ' + InQuotes(target) + ' ' + InQuotes(tables.ExeFile);
}

CompileOutcome GenerateProgram(ProjectTables& tables, GeneratorState& state, CompileHost& host,
                               const Ports& ports, const std::string& source_file,
                               const CompileOptions& options) {
  CheckMainForm(tables);
  host.SaveProject();

  host.HideContainer();
  SetFormVisible(host, tables.CurrentForm, false);

  CompileOutcome outcome;
  std::string text = GenerateSource(tables, state, options.WantsMap ? &outcome.Map : nullptr);
  for (int i = 1; i <= tables.FormsCount; ++i) {
    if (tables.IsLive(i)) SetFormVisible(host, tables.User(i), false);
  }
  if (!ports.Files.Replace(source_file, text)) {
    outcome.Source = {source_file, ports.Files.WhyNotReplaced()};
  }

  SetFormVisible(host, tables.CurrentForm, true);
  host.ShowContainer();

  outcome.CompilerFound = ports.Files.Exists(CompilerPath(tables, ports.Files));
  outcome.Started = options.StartsCompiler && ports.Processes.StartHidden(CompilerCommandLine(
                                                  tables, ports.Files, source_file));
  if (options.WantsMap) {
    outcome.Map.CountLines(text);
    outcome.Text = std::move(text);
  }
  return outcome;
}

}  // namespace tarnwick::project
