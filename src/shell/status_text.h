// Texts at the foot of the main window.
#pragma once

#include <string>
#include <string_view>

#include "model/project_records.h"
#include "project/compile.h"

namespace tarnwick {

/// "Form1Btn1   Left 10  Top 20  Width 75  Height 25": name, place and size in pixels of what is
/// selected on the current form; of the form itself its own. "" without a form.
[[nodiscard]] std::string SelectionStatus(const ProjectTables& tables);
/// "X 12  Y 30": a place on a design form, twips in, pixels out.
[[nodiscard]] std::string PointerStatus(float x, float y);
/// That there is neither a compiler nor a runner, or none that can be started.
[[nodiscard]] std::string NothingStartedStatus(const ProjectTables& tables,
                                               const project::CompileOutcome& outcome);
/// What Compile and Run started, or why it started nothing.
[[nodiscard]] std::string CompileStatus(const ProjectTables& tables,
                                        const project::CompileOutcome& outcome);
/// "Saved 14:05"; `now` is "2026-03-01 14:05:09".
[[nodiscard]] std::string SavedStatus(std::string_view now);
/// "Not saved: C:\\p.tnp: No space left on device".
[[nodiscard]] std::string NotSavedStatus(const project::WriteOutcome& outcome);
/// "Not opened: C:\\p.tnp: there is no such file".
[[nodiscard]] std::string NotOpenedStatus(std::string_view path, std::string_view reason);
[[nodiscard]] std::string OpenElsewhereStatus(std::string_view path);
/// What became of changes that the project was left with.
[[nodiscard]] std::string LeftBehindStatus();
[[nodiscard]] std::string RestoredStatus(std::string_view when);
/// The help file is no part of every installation.
[[nodiscard]] std::string NoHelpStatus(std::string_view path);

}  // namespace tarnwick
