#include "editor/form_codigo_on_fakes.h"

namespace tarnwick::test {

FormCodigoTest::FormCodigoTest() = default;

FormCodigoTest::~FormCodigoTest() = default;

void FormCodigoTest::Select(Kind kind, int index) {
  tarnwick::Select(*Window(), Window()->Element(kind, index));
}

void FormCodigoTest::SelectItem(std::string_view name) {
  Window()->ControlSel = nullptr;
  Window()->NameObjet = name;
  Window()->IndexObjet = 0;
}

std::string FormCodigoTest::Code(std::string_view key) {
  const std::string* code = project_.Tables.EventTable.Find(key);
  return code == nullptr ? "(none)" : *code;
}

void FormCodigoTest::SetCode(std::string_view key, std::string_view code) {
  project_.Tables.EventTable.Replace(key, code);
}

std::vector<std::string> FormCodigoTest::EventTexts() {
  std::vector<std::string> texts;
  for (const editor::EventRow& row : codigo_.Events()) texts.push_back(row.Text);
  return texts;
}

editor::CodeDrafts::Texts FormCodigoTest::NotAccepted() {
  editor::CodeDrafts::Texts texts = drafts_.All();
  codigo_.Typed().AddTo(texts);
  return texts;
}

std::string FormCodigoTest::Remembered(std::string_view section, std::string_view key) {
  return settings_.ReadEventIndex(section, key);
}

}  // namespace tarnwick::test
