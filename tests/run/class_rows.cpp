#include "run/class_rows.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::test {

namespace {

/// True for a property or event that the class table says works.
bool Works(const objects::MemberInfo& member, bool event) {
  using basic::MemberKind;
  const MemberKind kind = member.Facts.Kind;
  const bool property = kind == MemberKind::Property || kind == MemberKind::ArrayProperty;
  return (event ? kind == MemberKind::Event : property) &&
         member.Facts.Level == basic::SupportLevel::Full;
}

}  // namespace

const std::vector<std::string>& ClassesOfPrograms() {
  static const std::vector<std::string> kClasses{
      // of generated programs
      "QFont", "QForm", "QPopupMenu", "QMenuItem", "QSocket", "QButton", "QCheckBox", "QComboBox",
      "QImage", "QLabel", "QListBox", "QRadioButton", "QRichEdit", "QEdit", "QMainMenu", "QTimer",
      "QOpenDialog", "QSaveDialog", "QFileStream", "QGlassFrame", "QOleContainer",
      // of programs that are written by hand
      "QPanel", "QGroupBox", "QScrollBox", "QCanvas", "QBitmap", "QCoolBtn", "QOvalBtn",
      "QStatusBar", "QGauge", "QTrackBar", "QScrollBar", "QTabControl", "QStringGrid", "QSplitter",
      "QFontDialog", "QImageList", "QRect", "QStringList", "QMemoryStream", "QFileListBox",
      "QListView", "QTreeView"};
  return kClasses;
}

MemberTable::MemberTable(const std::string& file) {
  std::ifstream in(SourceFolder() + "/tests/run/" + file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  std::vector<std::string> heads;
  for (const std::string_view line : Split(text, "\n")) {
    const std::vector<std::string_view> cells = Split(line, "\t");
    if (cells.size() < 2) continue;
    if (heads.empty()) {
      heads.assign(cells.begin(), cells.end());
      continue;
    }
    MemberRow row;
    for (std::size_t i = 2; i < cells.size() && i < heads.size(); ++i) row[heads[i]] = cells[i];
    for (const std::string_view kind : Split(cells[0], " ")) {
      entries_.push_back({std::string(kind), std::string(cells[1]), row});
    }
  }
}

const MemberRow* MemberTable::Find(std::string_view kind, std::string_view member) const {
  const Entry* common = nullptr;
  for (const Entry& entry : entries_) {
    if (!EqualsFolded(entry.Member, member)) continue;
    if (EqualsFolded(entry.Class, kind)) {
      entry.Used = true;
      return &entry.Cells;
    }
    if (entry.Class == "*") common = &entry;
  }
  if (common == nullptr) return nullptr;
  common->Used = true;
  return &common->Cells;
}

std::vector<std::string> MemberTable::Unused() const {
  std::vector<std::string> names;
  for (const Entry& entry : entries_) {
    if (!entry.Used) names.push_back(entry.Class + "." + entry.Member);
  }
  return names;
}

void ForEachWorkingMember(
    const std::string& file, bool events,
    const std::function<void(const objects::ClassInfo& kind, const objects::MemberInfo& member,
                             const MemberRow& row)>& run) {
  const MemberTable table(file);
  const objects::ClassTable classes;
  for (const std::string& name : ClassesOfPrograms()) {
    const auto id = classes.FindClass(name);
    ASSERT_TRUE(id.has_value()) << name;
    const objects::ClassInfo& kind = objects::InfoOf(*id);
    for (const objects::MemberInfo& member : kind.Members) {
      if (!Works(member, events)) continue;
      const MemberRow* const row = table.Find(name, member.Facts.Name);
      if (row == nullptr) {
        ADD_FAILURE() << name << "." << member.Facts.Name << " has no row in " << file;
        continue;
      }
      run(kind, member, *row);
    }
  }
  EXPECT_EQ(table.Unused(), std::vector<std::string>());
}

}  // namespace tarnwick::test
