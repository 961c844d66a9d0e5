// What projects made by chance have in common, whatever values they may hold.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "fakes/project_builder.h"

namespace tarnwick::test {

/// Numbers, names and popup menus; the same for the same seed. What a text or a piece of code may
/// be is for the kind of project to say.
class RandomParts {
 protected:
  explicit RandomParts(std::uint32_t seed);
  RandomParts(const RandomParts&) = delete;
  RandomParts& operator=(const RandomParts&) = delete;
  virtual ~RandomParts();

  /// A text of up to so many characters.
  virtual std::string Text(int longest) = 0;
  virtual std::string Code() = 0;

  std::uint32_t Any();
  /// 0 to `limit` - 1.
  int Below(int limit);
  bool Chance(int percent);
  /// A name that no other object of the project has.
  std::string Name(std::string_view start);
  /// A text of up to so many of these characters.
  std::string TextOf(std::string_view letters, int longest);
  /// Gives a popup menu up to three rows with up to two entries each, and code to half of them.
  void FillPopUp(ProjectBuilder& project, const BuiltForm& form, int number);

 private:
  std::mt19937 random_;
  int names_ = 0;
};

}  // namespace tarnwick::test
