#include "basic/table_catalog.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

#include "fakes/build_paths.h"
#include "text/strings.h"

namespace tarnwick::basic::test {
namespace {

/// Kinds of members.tsv whose class has another name.
constexpr std::array<std::pair<std::string_view, std::string_view>, 24> kClasses = {{
    {"Form", "QFORM"},
    {"Button", "QBUTTON"},
    {"TextBox", "QEDIT"},
    {"Image", "QIMAGE"},
    {"Label", "QLABEL"},
    {"ListBox", "QLISTBOX"},
    {"OptionButton", "QRADIOBUTTON"},
    {"CheckBox", "QCHECKBOX"},
    {"ComboBox", "QCOMBOBOX"},
    {"RichTextBox", "QRICHEDIT"},
    {"Time", "QTIMER"},
    {"OpenDialog", "QOPENDIALOG"},
    {"SaveDialog", "QSAVEDIALOG"},
    {"FileStream", "QFILESTREAM"},
    {"TransparentFrame", "QGLASSFRAME"},
    {"HtmlViewer", "QOLECONTAINER"},
    {"WinSock", "QSOCKET"},
    {"PopUpMenu", "QPOPUPMENU"},
    {"Menu", "QMAINMENU"},
    {"Item(Menu)", "QMENUITEM"},
    {"Font", "QFONT"},
    {"Clipboard", "Clipboard"},
    {"Application", "Application"},
    {"Screen", "Screen"},
}};

std::string ReadFile(const std::string& name) {
  std::ifstream file(tarnwick::test::SourceFolder() + "/support/objects/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

TableCatalog::TableCatalog() {
  rows_.emplace_back().Name = "";  // number 0 is no class
  const std::string types = ReadFile("types.txt");
  for (std::string_view name : Split(types, "\n")) {
    name = Trim(name);
    if (StartsWithFolded(name, "Q")) RowOf(name);
  }
  const std::string members = ReadFile("members.tsv");
  for (const std::string_view line : Split(members, "\n")) {
    const std::vector<std::string_view> cells = Split(line, "\t");
    if (cells.size() < 5) continue;
    for (const auto& [kind, name] : kClasses) {
      if (kind == cells[0]) AddMember(RowOf(name), cells[1], cells[2], cells[3], cells[4]);
    }
  }
  AddMember(RowOf("QBUTTON"), "Color", "property", "INTEGER", "RW");
  for (ClassRow& row : rows_) AddMember(row, "Free", "method", "SUB", "");
}

TableCatalog::ClassRow& TableCatalog::RowOf(std::string_view name) {
  for (ClassRow& row : rows_) {
    if (EqualsFolded(row.Name, name)) return row;
  }
  ClassRow& row = rows_.emplace_back();
  row.Name = name;
  return row;
}

Type TableCatalog::TypeNamed(std::string_view name) {
  if (name == "STRING") return kTextType;
  if (name == "DOUBLE" || name == "SINGLE") return kRealType;
  if (name == "BYTE" || name == "WORD" || name == "INTEGER" || name == "LONG" ||
      name == "RESOURCE") {
    return kWholeType;
  }
  return kAnyObjectType;
}

void TableCatalog::TakeSignature(std::string_view signature, MemberFacts& facts) {
  std::vector<MemberParameter>& parameters = parameters_.emplace_back();
  const std::size_t open = signature.find('(');
  const std::size_t close = signature.rfind(')');
  if (open != std::string_view::npos && close > open) {
    for (std::string_view text : Split(signature.substr(open + 1, close - open - 1), ",")) {
      text = Trim(text);
      if (text.empty()) continue;
      if (text == "...") {
        facts.Repeats = true;
        continue;
      }
      MemberParameter parameter;
      const std::size_t as = text.find(" AS ");
      if (as != std::string_view::npos) {
        parameter.Kind = TypeNamed(text.substr(as + 4));
      } else if (text.back() == '$') {
        parameter.Kind = kTextType;
      } else if (text.back() != '%') {
        parameter.Kind = kVariantType;
        parameter.Reference = text == "variable" || text == "record" || text == "array";
      }
      parameters.push_back(parameter);
    }
  }
  facts.Parameters = parameters;
  facts.Required = facts.Repeats ? 1 : static_cast<int>(parameters.size());
  const std::size_t result = signature.rfind(" AS ");
  const bool function = signature.substr(0, 8) == "FUNCTION";
  if (function && result != std::string_view::npos &&
      (close == std::string_view::npos || result > close)) {
    facts.Value = TypeNamed(signature.substr(result + 4));
  }
}

void TableCatalog::AddMember(ClassRow& row, std::string_view name, std::string_view category,
                             std::string_view signature, std::string_view access) {
  MemberFacts facts;
  facts.Id = static_cast<MemberId>(row.Members.size());
  facts.Name = Keep(name);
  if (category == "method") {
    facts.Kind = MemberKind::Method;
    TakeSignature(signature, facts);
  } else if (category == "event" || signature.substr(0, 3) == "SUB") {
    facts.Kind = MemberKind::Event;
    if (category == "property") facts.Level = SupportLevel::None;
  } else {
    const std::size_t of = signature.find("ARRAY OF ");
    facts.Value = TypeNamed(of == std::string_view::npos ? signature : signature.substr(of + 9));
    if (of != std::string_view::npos) {
      facts.Kind = MemberKind::ArrayProperty;
      facts.Parameters = parameters_.emplace_back(of == 0 ? 1 : 2, MemberParameter{});
    }
    facts.Readable = access != "W";
    facts.Writable = access != "R";
  }
  row.Members.emplace(facts.Name, facts);
}

std::optional<ClassId> TableCatalog::FindClass(std::string_view name) const {
  for (std::size_t i = 1; i < rows_.size(); ++i) {
    if (EqualsFolded(rows_[i].Name, name)) return static_cast<ClassId>(i);
  }
  return std::nullopt;
}
std::string_view TableCatalog::ClassName(ClassId kind) const {
  return rows_[static_cast<std::size_t>(kind)].Name;
}
const MemberFacts* TableCatalog::FindMember(ClassId kind, std::string_view name) const {
  const auto& members = rows_[static_cast<std::size_t>(kind)].Members;
  const auto found = members.find(name);
  return found == members.end() ? nullptr : &found->second;
}
std::optional<ClassId> TableCatalog::FindBuiltInObject(std::string_view name) const {
  const bool built_in = EqualsFolded(name, "Clipboard") || EqualsFolded(name, "Application") ||
                        EqualsFolded(name, "Screen");
  return built_in ? FindClass(name) : std::nullopt;
}
bool TableCatalog::CopiesValues(ClassId kind) const {
  return ClassName(kind) == "QFONT" || ClassName(kind) == "QRECT";
}
bool TableCatalog::IsParent(ClassId kind) const {
  return ClassName(kind) == "QFORM" || ClassName(kind) == "QPANEL";
}
std::vector<std::string_view> TableCatalog::ClassNames() const {
  std::vector<std::string_view> names;
  for (std::size_t i = 1; i < rows_.size(); ++i) names.push_back(rows_[i].Name);
  return names;
}
std::vector<std::string_view> TableCatalog::MemberNames(ClassId kind) const {
  std::vector<std::string_view> names;
  for (const auto& [name, facts] : rows_[static_cast<std::size_t>(kind)].Members) {
    names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

const TableCatalog& Classes() {
  static const TableCatalog catalog;
  return catalog;
}

}  // namespace tarnwick::basic::test
