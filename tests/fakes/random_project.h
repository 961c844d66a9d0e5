// Projects made by chance, the same for the same seed: for properties, fuzzing and benchmarks.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "fakes/project_builder.h"
#include "model/menu_bar.h"

namespace tarnwick::test {

struct RandomProjectShape {
  int Forms = 3;
  int ObjectsPerForm = 20;
  /// Leaves out what a form file cannot give back: see Random().
  bool Holdable = true;
};

/// Makes a project with objects of every kind, code, menus and popups.
///
///   RandomProject made(seed);
///   made.Fill(project.Builder, {.Forms = 3});
///
/// A project that a file can hold has values without brackets and separators, objects that keep
/// their numbers, sockets behind a numbered object of their own number, and menus that came last.
class RandomProject {
 public:
  explicit RandomProject(std::uint32_t seed);

  void Fill(ProjectBuilder& project, const RandomProjectShape& shape);

 private:
  [[nodiscard]] int Below(int limit);
  [[nodiscard]] std::int16_t Short();
  [[nodiscard]] std::int32_t Color();
  [[nodiscard]] bool Chance(int percent);

  [[nodiscard]] std::string Text(int longest);
  [[nodiscard]] std::string Code();
  [[nodiscard]] std::string Name(std::string_view start);
  [[nodiscard]] std::string Rows();

  void AddForm(ProjectBuilder& project);

  void FillForm(const BuiltForm& form);

  void AddObject(ProjectBuilder& project, const BuiltForm& form, Kind kind);

  void FillControl(DesignControl& control);

  void FillRecord(ObjectRec& record);

  void FillPopUp(ProjectBuilder& project, const BuiltForm& form, int number);

  void AddMenu(const BuiltForm& form);

  std::mt19937 random_;
  RandomProjectShape shape_;
  int names_ = 0;
  int times_ = 0;
};

}  // namespace tarnwick::test
