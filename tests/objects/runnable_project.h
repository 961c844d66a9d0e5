// Projects made by chance whose programs run: every value is one that a program can set, and all
// code is sound.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "fakes/project_builder.h"
#include "model/menu_bar.h"

namespace tarnwick::test {

/// Fills a project with up to three forms; the same for the same seed. The first form has an object
/// of every kind, so that every array of objects is declared.
class RunnableProject {
 public:
  explicit RunnableProject(std::uint32_t seed);

  void Fill(ProjectBuilder& project);

 private:
  static constexpr Kind kKinds[] = {
      Kind::Button,     Kind::Label,       Kind::Image,      Kind::CheckBox, Kind::OptionButton,
      Kind::TextBox,    Kind::RichTextBox, Kind::ListBox,    Kind::ComboBox, Kind::Time,
      Kind::OpenDialog, Kind::SaveDialog,  Kind::FileStream, Kind::PopUpMenu};

  int Below(int limit);
  std::int16_t Small(int limit);
  std::int32_t Color();
  bool Chance(int percent);
  std::string Name(std::string_view start);

  std::string Text(int longest);
  std::string Code();

  void AddForm(ProjectBuilder& project, bool first);

  void AddObject(ProjectBuilder& project, const BuiltForm& form, Kind kind);

  void FillRecord(ObjectRec& record);

  std::string Rows();

  void FillPopUp(ProjectBuilder& project, const BuiltForm& form, int number);

  void AddMenu(ProjectBuilder& project, const BuiltForm& form);

  std::mt19937 random_;
  int names_ = 0;
};

}  // namespace tarnwick::test
