// "Compile and Run": save, generate, write the source, start the compiler.
#pragma once

#include <string>

#include "codegen/generator_state.h"
#include "codegen/source_map.h"
#include "model/project_records.h"
#include "platform/ports.h"
#include "project/write_outcome.h"

namespace tarnwick::project {

/// A main form that was removed gives way to the first form of the list.
void CheckMainForm(ProjectTables& tables);

/// `Rc.exe` of the program folder, or that beside the program when only that is there.
[[nodiscard]] std::string CompilerPath(const ProjectTables& tables, FilePort& files);
/// The compiler's command line for a source that has been written.
[[nodiscard]] std::string CompilerCommandLine(const ProjectTables& tables, FilePort& files,
                                              const std::string& source_file);

/// The windows around a compilation, as far as it moves them. No method fails; a host
/// without windows leaves them all empty.
class CompileHost {
 public:
  CompileHost() = default;
  CompileHost(const CompileHost&) = delete;
  CompileHost& operator=(const CompileHost&) = delete;
  virtual ~CompileHost() = default;

  /// The Save command, with its dialog where the project has no name yet.
  virtual void SaveProject() = 0;
  virtual void ShowContainer() = 0;
  virtual void HideContainer() = 0;
  /// Shows or hides a design form; its own `Visible` has been set already.
  virtual void ShowDesignForm(DesignForm& form, bool visible) = 0;
};

/// What a compilation does beside writing the source.
struct CompileOptions {
  bool StartsCompiler = true;
  bool WantsMap = false;  ///< the outcome is to have the text and what its lines come from
};

/// What became of a compilation.
struct CompileOutcome {
  WriteOutcome Source;        ///< of the generated source
  bool CompilerFound = true;  ///< `Rc.exe` lies in the program folder or beside the program
  bool Started = true;        ///< it was started
  std::string Text;           ///< the generated source, when it is wanted
  SourceMap Map;              ///< of its lines, likewise
};

/// "Compile and Run": checks the main form, saves, writes the generated program to `source_file`
/// and starts the compiler on it, hidden, without waiting. Every step runs even if the one
/// before failed; nothing is shown. The forms end hidden but for the current one.
CompileOutcome GenerateProgram(ProjectTables& tables, GeneratorState& state, CompileHost& host,
                               const Ports& ports, const std::string& source_file,
                               const CompileOptions& options = {});

}  // namespace tarnwick::project
