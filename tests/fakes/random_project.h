// Projects made by chance, the same for the same seed: for properties, fuzzing and benchmarks.
#pragma once

#include <cstdint>
#include <string>

#include "fakes/project_builder.h"
#include "fakes/random_parts.h"
#include "model/menu_bar.h"

namespace tarnwick::test {

struct RandomProjectShape {
  int Forms = 3;
  int ObjectsPerForm = 20;
  /// Leaves out what a form file cannot give back: see RandomProject.
  bool Holdable = true;
};

/// Makes a project with objects of every kind, code, menus and popups.
///
///   RandomProject made(seed);
///   made.Fill(project.Builder, {.Forms = 3});
///
/// A project that a file can hold has values without brackets and separators, objects that keep
/// their numbers, sockets behind a numbered object of their own number, and menus that came last.
class RandomProject final : private RandomParts {
 public:
  explicit RandomProject(std::uint32_t seed);
  ~RandomProject() override;

  void Fill(ProjectBuilder& project, const RandomProjectShape& shape);

 private:
  std::string Text(int longest) override;
  std::string Code() override;
  std::int16_t Short();
  std::int32_t Color();
  std::string Rows();
  void AddForm(ProjectBuilder& project);
  void FillForm(const BuiltForm& form);
  void AddObject(ProjectBuilder& project, const BuiltForm& form, Kind kind);
  void FillControl(DesignControl& control);
  void FillRecord(ObjectRec& record);
  void AddMenu(const BuiltForm& form);

  RandomProjectShape shape_;
  int times_ = 0;
};

}  // namespace tarnwick::test
