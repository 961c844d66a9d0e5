#include "fakes/random_parts.h"

namespace tarnwick::test {

RandomParts::RandomParts(std::uint32_t seed) : random_(seed) {}
RandomParts::~RandomParts() = default;

std::uint32_t RandomParts::Any() {
  return static_cast<std::uint32_t>(random_());
}

int RandomParts::Below(int limit) {
  return static_cast<int>(Any() % static_cast<std::uint32_t>(limit));
}

bool RandomParts::Chance(int percent) {
  return Below(100) < percent;
}

std::string RandomParts::Name(std::string_view start) {
  return std::string(start) + std::to_string(++names_);
}

std::string RandomParts::TextOf(std::string_view letters, int longest) {
  std::string text;
  for (int n = Below(longest + 1); n > 0; --n) {
    text += letters[static_cast<std::size_t>(Below(static_cast<int>(letters.size())))];
  }
  return text;
}

void RandomParts::FillPopUp(ProjectBuilder& project, const BuiltForm& form, int number) {
  project.Tables.PopUpMenus.Ensure(number)->Items.assign(1, {});
  for (int n = Below(4); n > 0; --n) {
    const std::string top = Name("pop");
    project.PopUpItem(number, top, "x" + Text(8));
    if (Chance(50)) form.ItemCode(top, Code());
    for (int sub = Below(3); sub > 0; --sub) {
      const std::string entry = Name("sub");
      project.PopUpEntry(number, entry, "y" + Text(8));
      if (Chance(50)) form.ItemCode(entry, Code());
    }
  }
}

}  // namespace tarnwick::test
