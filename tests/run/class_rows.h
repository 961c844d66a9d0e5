// Tables of what the tests of all classes do: a row for each property and each event that the class
// table says is there.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "objects/class_table.h"

namespace tarnwick::test {

/// The classes of which a program can make objects.
[[nodiscard]] const std::vector<std::string>& ClassesOfPrograms();

/// The cells of a row behind the class and the member, by the names in the head of the table.
using MemberRow = std::map<std::string, std::string>;

/// A table with the columns `class` and `member` in front. A class may be several with blanks
/// between, or * for every class that has no row of its own.
class MemberTable {
 public:
  /// Reads tests/run/<file>.
  explicit MemberTable(const std::string& file);
  /// The row of a member; null when there is none.
  [[nodiscard]] const MemberRow* Find(std::string_view kind, std::string_view member) const;
  /// Rows that no class of `kinds` has used so far, as "class.member".
  [[nodiscard]] std::vector<std::string> Unused() const;

 private:
  struct Entry {
    std::string Class;
    std::string Member;
    MemberRow Cells;
    mutable bool Used = false;
  };
  std::vector<Entry> entries_;
};

/// Calls `run` with each event of these classes that the class table says works, or with
/// each such property, and its row of tests/run/<file>. A member without a row and a row without a
/// member fail the test.
void ForEachWorkingMember(
    const std::string& file, bool events,
    const std::function<void(const objects::ClassInfo& kind, const objects::MemberInfo& member,
                             const MemberRow& row)>& run);

}  // namespace tarnwick::test
