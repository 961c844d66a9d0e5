// The code editor of a small project, with fakes for its window and its editing widget.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "designer/selection.h"
#include "editor/code_drafts.h"
#include "editor/form_codigo.h"
#include "fakes/editor_project.h"
#include "fakes/fake_code_host.h"
#include "fakes/fake_edit_widget.h"
#include "fakes/fake_ports.h"

namespace tarnwick::test {

class FormCodigoTest : public testing::Test {
 protected:
  FormCodigoTest();
  ~FormCodigoTest() override;

  void Select(Kind kind, int index);
  void SelectItem(std::string_view name);
  DesignForm* Window() { return project_.Tables.CurrentForm; }
  std::string Code(std::string_view key);
  void SetCode(std::string_view key, std::string_view code);
  std::vector<std::string> EventTexts();
  /// What would be lost if the program ended now.
  editor::CodeDrafts::Texts NotAccepted();
  std::string Remembered(std::string_view section, std::string_view key);

  EditorProject project_;
  FakePorts ports_;
  Settings settings_{ports_.Profiles, "C:\\Tarnwick"};
  FakeEditWidget editor_;
  FakeCodeHost host_;
  editor::CodeDrafts drafts_{project_.Tables};
  editor::FormCodigo codigo_{project_.Tables, project_.Language, settings_, editor_, host_,
                             drafts_};
};

}  // namespace tarnwick::test
