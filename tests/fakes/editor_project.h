// The project and the tables on which the code windows are tested.
#pragma once

#include <utility>
#include <vector>

#include "fakes/project_builder.h"
#include "language/support_tables.h"
#include "model/menu_bar.h"

namespace tarnwick::test {

/// See IntellisenseCases for what stands where.
struct EditorProject {
  ProjectBuilder Builder;
  ProjectTables& Tables = Builder.Tables;
  language::SupportTables Language;

  EditorProject();
  ~EditorProject();
  EditorProject(const EditorProject&) = delete;
  EditorProject& operator=(const EditorProject&) = delete;

  void Members(std::string_view key, const std::vector<std::string>& names);
};

}  // namespace tarnwick::test
