// Projects made by chance whose programs run: every value is one that a program can set, and all
// code is sound.
#pragma once

#include <cstdint>
#include <string>

#include "fakes/project_builder.h"
#include "fakes/random_parts.h"
#include "model/menu_bar.h"

namespace tarnwick::test {

/// Fills a project with up to three forms; the same for the same seed. The first form has an object
/// of every kind, so that every array of objects is declared.
class RunnableProject final : private RandomParts {
 public:
  explicit RunnableProject(std::uint32_t seed);
  ~RunnableProject() override;

  void Fill(ProjectBuilder& project);

 private:
  static constexpr Kind kKinds[] = {
      Kind::Button,     Kind::Label,       Kind::Image,      Kind::CheckBox, Kind::OptionButton,
      Kind::TextBox,    Kind::RichTextBox, Kind::ListBox,    Kind::ComboBox, Kind::Time,
      Kind::OpenDialog, Kind::SaveDialog,  Kind::FileStream, Kind::PopUpMenu};

  std::string Text(int longest) override;
  std::string Code() override;
  std::int16_t Small(int limit);
  std::int32_t Color();
  std::string Rows();
  void AddForm(ProjectBuilder& project, bool first);
  void AddObject(ProjectBuilder& project, const BuiltForm& form, Kind kind);
  void FillRecord(ObjectRec& record);
  void AddMenu(ProjectBuilder& project, const BuiltForm& form);
};

}  // namespace tarnwick::test
