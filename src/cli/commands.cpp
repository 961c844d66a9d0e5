#include "cli/commands.h"

#include <filesystem>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/loaded_project.h"
#include "codegen/program_source.h"
#include "platform/program_folder.h"
#include "project/check.h"
#include "project/check_code.h"
#include "project/compile.h"
#include "project/convert_project.h"
#include "project/save_project.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick {

namespace {

bool Print(std::FILE* out, std::string_view text) {
  return std::fwrite(text.data(), 1, text.size(), out) == text.size();
}

int Fail(std::FILE* err, const std::string& what, const std::string& path) {
  Print(err, "tarnwick-cli: " + what + " " + path + "\n");
  return 1;
}

/// 0 when every form that the index names was read. The forms that were read are generated in any
/// case.
int ReportUnread(LoadedProject& loaded, std::FILE* err) {
  const std::vector<std::string> unread = project::UnreadForms(loaded.Tables, loaded.Files);
  for (const std::string& path : unread) Fail(err, "no form was read from", CodePageToUtf8(path));
  return unread.empty() ? 0 : 1;
}

int Generate(LoadedProject& loaded, const Arguments& arguments, std::FILE* out, std::FILE* err) {
  GeneratorState state;
  project::CheckMainForm(loaded.Tables);
  if (!arguments.OutputFile) {
    bool written = true;
    WriteSource(loaded.Tables, state,
                [&](std::string_view piece) { written = written && Print(out, piece); });
    written = written && std::fflush(out) == 0;
    return written ? ReportUnread(loaded, err) : Fail(err, "cannot write to", "standard output");
  }
  const std::string source = GenerateSource(loaded.Tables, state);
  const std::string path = WindowsPathOf(*arguments.OutputFile);
  if (!loaded.Files.Replace(path, source)) return Fail(err, "cannot write", *arguments.OutputFile);
  return ReportUnread(loaded, err);
}

int Resave(LoadedProject& project, const Arguments& arguments, std::FILE* err) {
  std::error_code ignored;
  std::filesystem::create_directories(arguments.OutputFolder, ignored);
  std::string folder = WindowsPathOf(arguments.OutputFolder);
  if (!folder.ends_with('\\')) folder += '\\';

  ProjectTables& tables = project.Tables;
  tables.ProjectFile = folder + std::string(BareName(tables.ProjectFile));
  bool all_named = true;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    std::string& name = tables.Form(form)->FileName;
    // A form without a file stays without one: it has no file name.
    all_named = all_named && !name.empty();
    if (!name.empty()) name = std::string(folder).append(BareName(name));
  }
  const bool saved{project::SaveProject(project.Context, tables.ProjectFile)};
  if (saved || (!all_named && project.Files.Exists(tables.ProjectFile))) return 0;
  return Fail(err, "cannot write the project into", arguments.OutputFolder);
}

int Convert(const Arguments& arguments, std::FILE* err) {
  NativeFiles files;
  const std::string path = WindowsPathOf(arguments.Input);
  if (!files.Read(path)) return Fail(err, "cannot read", arguments.Input);
  if (!project::ConvertOldProject(files, path)) {
    return Fail(err, "cannot write the new files beside", arguments.Input);
  }
  return 0;
}

int Check(LoadedProject& loaded, std::FILE* out) {
  std::vector<project::Finding> findings = project::CheckFiles(loaded.Tables, loaded.Files);
  const auto add = [&](std::vector<project::Finding> more) {
    std::move(more.begin(), more.end(), std::back_inserter(findings));
  };
  add(project::CheckProject(loaded.Tables, loaded.Files));
  project::AddCodeFaults(findings, loaded.Tables, loaded.Files, ExecutableFolder());
  for (const project::Finding& finding : findings) {
    Print(out, CodePageToUtf8(finding.Line()) + "\n");
  }
  return findings.empty() ? 0 : 1;
}

}  // namespace

int CommandRun::Run() {
  if (arguments_.What == Command::Convert) return Convert(arguments_, err_);
  if (arguments_.What == Command::Run) {
    return static_cast<int>(RunProgram(arguments_.Run, stdin, out_, err_));
  }
  // `check` lists missing files among its findings.
  const bool quiet = arguments_.What == Command::Check;
  LoadedProject& project = project_.emplace(arguments_.ProgramFolder, err_, quiet);
  if (!project.Load(arguments_.Input)) return Fail(err_, "cannot read", arguments_.Input);
  switch (arguments_.What) {
    case Command::Generate:
      return Generate(project, arguments_, out_, err_);
    case Command::Resave:
      return Resave(project, arguments_, err_);
    default:
      return Check(project, out_);
  }
}

}  // namespace tarnwick
