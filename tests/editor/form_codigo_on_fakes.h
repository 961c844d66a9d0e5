// The code editor of a small project, with fakes for its window and its editing widget.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "designer/selection.h"
#include "editor/code_drafts.h"
#include "editor/editor_project.h"
#include "editor/form_codigo.h"
#include "fakes/fake_code_host.h"
#include "fakes/fake_edit_widget.h"
#include "fakes/fake_ports.h"

namespace tarnwick::test {

class FormCodigoTest : public testing::Test {
 protected:
  void Select(Kind kind, int index) { tarnwick::Select(*Window(), Window()->Element(kind, index)); }
  void SelectItem(std::string_view name) {
    Window()->ControlSel = nullptr;
    Window()->NameObjet = name;
    Window()->IndexObjet = 0;
  }
  DesignForm* Window() { return project_.Tables.CurrentForm; }
  std::string Code(std::string_view key) {
    const std::string* code = project_.Tables.EventTable.Find(key);
    return code == nullptr ? "(none)" : *code;
  }
  void SetCode(std::string_view key, std::string_view code) {
    project_.Tables.EventTable.Replace(key, code);
  }
  std::vector<std::string> EventTexts() {
    std::vector<std::string> texts;
    for (const editor::EventRow& row : codigo_.Events()) texts.push_back(row.Text);
    return texts;
  }
  /// What would be lost if the program ended now.
  editor::CodeDrafts::Texts NotAccepted() {
    editor::CodeDrafts::Texts texts = drafts_.All();
    codigo_.Typed().AddTo(texts);
    return texts;
  }
  std::string Remembered(std::string_view section, std::string_view key) {
    return settings_.ReadEventIndex(section, key);
  }

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
