#include "build/class_rows.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

#include "build/files.h"
#include "build/source_reader.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::support {
namespace {

/// The type a word of a signature names; nothing when it is the name of a class or unknown.
std::optional<CellType> TypeNamed(std::string_view word) {
  static const std::map<std::string_view, CellType> kTypes = {
      {"INTEGER", CellType::Whole}, {"LONG", CellType::Whole},  {"RESOURCE", CellType::Whole},
      {"BYTE", CellType::Byte},     {"WORD", CellType::Word},   {"STRING", CellType::Text},
      {"DOUBLE", CellType::Real},   {"SINGLE", CellType::Real}, {"VARIANT", CellType::Variant}};
  const auto found = kTypes.find(word);
  if (found == kTypes.end()) return std::nullopt;
  return found->second;
}

class Loader {
 public:
  Loader(const std::string& folder, Faults& faults)
      : folder_(folder + "/objects/"), faults_(faults) {}

  std::vector<RunClass> Load() {
    ReadClasses();
    ReadKinds();
    for (const TableRow& row :
         Rows("members.tsv", {"kind", "member", "category", "signature", "access", "default",
                              "values", "description", "source"})) {
      const auto kind = kinds_.find(row.Cells[0]);
      if (kind == kinds_.end()) {
        faults_.Add(row.Where, Quoted(row.Cells[0]) + " is no kind");
      } else {
        AddMember(kind->second, row);
      }
    }
    for (const TableRow& row : Rows("run_members.tsv", {"class", "member", "category", "signature",
                                                        "access", "default", "values"})) {
      AddRow(row);
    }
    for (const TableRow& row :
         Rows("run_support.tsv", {"class", "member", "level", "default", "note"})) {
      Settle(row);
    }
    return std::move(classes_);
  }

 private:
  std::string Text(const std::string& file) {
    std::optional<std::string> text = ReadFile(folder_ + file);
    if (!text) faults_.Add({file, 0}, "the file cannot be read");
    return text.value_or(std::string());
  }
  std::vector<TableRow> Rows(const std::string& file, const std::vector<std::string>& columns) {
    return ParseTable(Text(file), file, columns, faults_);
  }

  void ReadClasses() {
    for (const TableRow& row : Rows("run_classes.tsv", {"class", "flags", "note"})) {
      RunClass& made = classes_.emplace_back();
      made.Label = row.Cells[0];
      made.Name = Upper(row.Cells[0]);
      made.Flags = WordsOf(row.Cells[1]);
      made.Note = row.Cells[2];
      made.Where = row.Where;
    }
  }
  void ReadKinds() {
    for (const Block& block :
         ParseBlocks(Text("kinds.txt"), "kinds.txt", {"keys", "class", "events"}, faults_)) {
      const auto name = block.Fields.find("class");
      if (name == block.Fields.end()) continue;
      if (ClassNamed(name->second) == nullptr) {
        faults_.Add(block.Where, Quoted(name->second) + " has no row in run_classes.tsv");
      }
      kinds_[block.Name] = name->second;
    }
  }

  RunClass* ClassNamed(std::string_view name) {
    for (RunClass& one : classes_) {
      if (EqualsFolded(one.Name, name)) return &one;
    }
    return nullptr;
  }
  static RunMember* MemberNamed(RunClass& owner, std::string_view name) {
    for (RunMember& member : owner.Members) {
      if (EqualsFolded(member.Name, name)) return &member;
    }
    return nullptr;
  }

  /// Sets type and class from a word such as "INTEGER", "QFONT" or "QFORM/QPANEL".
  void TakeType(std::string_view word, const Place& where, CellType& type, std::string& owner) {
    if (const auto named = TypeNamed(word)) {
      type = *named;
      return;
    }
    type = CellType::Object;
    if (word == "QOBJECT" || Contains(word, "/")) return;
    if (ClassNamed(word) == nullptr) {
      faults_.Add(where, Quoted(word) + " is no type");
      return;
    }
    // Where a form stands, a panel may stand as well.
    if (word != "QFORM") owner = word;
  }

  void TakeParameters(std::string_view inside, RunMember& member) {
    bool optional = false;
    const std::string plain = ReplaceAll(inside, "[", ",[");
    for (std::string_view text : Split(plain, ",")) {
      text = Trim(text);
      if (!text.empty() && text.front() == '[') optional = true;
      while (!text.empty() && (text.front() == '[' || text.front() == ' ')) text.remove_prefix(1);
      while (!text.empty() && text.back() == ']') text.remove_suffix(1);
      text = Trim(text);
      if (text.empty()) continue;
      if (text == "...") {
        member.Repeats = true;
        continue;
      }
      ParameterRow& parameter = member.Parameters.emplace_back();
      if (!optional) member.Required = member.Parameters.size();
      const std::size_t as = text.find(" AS ");
      if (as != std::string_view::npos) {
        TakeType(text.substr(as + 4), member.Where, parameter.Type, parameter.Class);
      } else if (text.back() == '$') {
        parameter.Type = CellType::Text;
      } else if (text == "Sender" || text == "Stream" || text == "menuItem") {
        parameter.Type = CellType::Object;
      } else if (text.back() != '%') {
        parameter.Type = CellType::Variant;
        parameter.Reference = text == "variable" || text == "record" || text == "array";
      }
    }
  }

  void TakeSignature(std::string_view signature, RunMember& member) {
    const std::size_t open = signature.find('(');
    const std::size_t close = signature.rfind(')');
    const bool routine =
        StartsWithFolded(signature, "SUB") || StartsWithFolded(signature, "FUNCTION");
    if (routine) {
      if (open != std::string_view::npos && close != std::string_view::npos) {
        TakeParameters(signature.substr(open + 1, close - open - 1), member);
      }
      const std::size_t result = signature.rfind(" AS ");
      if (!StartsWithFolded(signature, "FUNCTION")) return;
      member.Type = CellType::Variant;
      if (result != std::string_view::npos && (close == std::string_view::npos || result > close)) {
        TakeType(signature.substr(result + 4), member.Where, member.Type, member.Class);
      }
      return;
    }
    constexpr std::string_view kArray = "ARRAY OF ";
    const std::size_t array = signature.find(kArray);
    if (array != std::string_view::npos) {
      member.Parameters.resize(array == 0 ? 1 : 2);
      member.Required = member.Parameters.size();
      signature.remove_prefix(array + kArray.size());
    }
    TakeType(signature, member.Where, member.Type, member.Class);
  }

  void TakeDefault(std::string_view text, std::string_view values, RunMember& member) {
    if (text.empty()) return;
    if (member.Type == CellType::Text) {
      member.DefaultText = text;
      return;
    }
    const std::string list(values);
    for (const std::string_view pair : Split(list, ";")) {
      const std::size_t equal = pair.find('=');
      if (equal != std::string_view::npos && pair.substr(equal + 1) == text) {
        text = pair.substr(0, equal);
        break;
      }
    }
    const auto read = std::from_chars(text.data(), text.data() + text.size(), member.DefaultNumber);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) {
      faults_.Add(member.Where, "the default " + Quoted(text) + " is no number");
    }
  }

  void AddMember(std::string_view class_name, const TableRow& row) {
    RunClass* const owner = ClassNamed(class_name);
    if (owner == nullptr) return;
    RunMember member;
    member.Name = row.Cells[1];
    member.Category = row.Cells[2];
    member.Where = row.Where;
    const std::string& signature = row.Cells[3];
    if (member.Category == "property" && StartsWithFolded(signature, "SUB")) {
      member.Category = "event";  // a routine that the program hands over
    }
    TakeSignature(signature, member);
    const std::string& access = row.Cells[4];
    // A font is reached through its owner, whatever the row says of reading it as a whole.
    member.Readable = access != "W" || member.Class == "QFONT";
    member.Writable = access != "R";
    const std::string& values = row.Cells[6];
    if (member.Type == CellType::Whole && values == "0=False;1=True") member.Type = CellType::Truth;
    TakeDefault(row.Cells[5], values, member);
    if (RunMember* const known = MemberNamed(*owner, member.Name)) {
      if (known->Category != member.Category) {
        faults_.Add(row.Where, member.Name + " has another category than before");
      }
      member.Name = known->Name;
      *known = std::move(member);
      return;
    }
    owner->Members.push_back(std::move(member));
  }

  /// A row of run_members.tsv; "like" takes the members named over from another class.
  void AddRow(const TableRow& row) {
    const bool all = row.Cells[0] == "*";
    if (!all && ClassNamed(row.Cells[0]) == nullptr) {
      faults_.Add(row.Where, Quoted(row.Cells[0]) + " is no class");
      return;
    }
    for (RunClass& owner : classes_) {
      if (!all && !EqualsFolded(owner.Name, row.Cells[0])) continue;
      if (row.Cells[2] != "like") {
        AddMember(owner.Name, row);
        continue;
      }
      RunClass* const from = ClassNamed(row.Cells[3]);
      if (from == nullptr) {
        faults_.Add(row.Where, Quoted(row.Cells[3]) + " is no class");
        continue;
      }
      for (const std::string& name : WordsOf(row.Cells[1])) {
        const RunMember* const member = MemberNamed(*from, name);
        if (member == nullptr || MemberNamed(owner, name) != nullptr) {
          faults_.Add(row.Where, Quoted(name) + " cannot be taken over");
        } else {
          owner.Members.push_back(RunMember(*member));
        }
      }
    }
  }

  /// A row of run_support.tsv.
  void Settle(const TableRow& row) {
    bool found = false;
    for (RunClass& owner : classes_) {
      if (row.Cells[0] != "*" && !EqualsFolded(owner.Name, row.Cells[0])) continue;
      for (const std::string& name : WordsOf(row.Cells[1])) {
        RunMember* const member = MemberNamed(owner, name);
        if (member == nullptr) continue;
        found = true;
        if (!row.Cells[2].empty()) member->Level = row.Cells[2];
        if (!row.Cells[4].empty()) member->Note = row.Cells[4];
        member->Where = row.Where;
        TakeDefault(row.Cells[3], {}, *member);
        const std::string& level = member->Level;
        if (level != "full" && level != "stored" && level != "none") {
          faults_.Add(row.Where, Quoted(level) + " is no level");
        }
      }
    }
    if (!found) faults_.Add(row.Where, "no class has such a member");
  }

  std::string folder_;
  Faults& faults_;
  std::vector<RunClass> classes_;
  std::map<std::string, std::string> kinds_;
};

}  // namespace

std::vector<RunClass> LoadClasses(const std::string& folder, Faults& faults) {
  return Loader(folder, faults).Load();
}

}  // namespace tarnwick::support
