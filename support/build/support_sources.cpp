#include "build/support_sources.h"

#include <map>
#include <utility>

#include "build/files.h"
#include "text/code_page.h"

namespace tarnwick::support {

namespace {

/// Reads the files of one folder and names them in faults as they are named below it.
class Loader {
 public:
  Loader(const std::string& folder, Faults& faults) : folder_(folder), faults_(faults) {}

  std::vector<TableRow> Table(const std::string& file, const std::vector<std::string>& columns) {
    return ParseTable(Text(file), file, columns, faults_);
  }
  std::vector<Block> Blocks(const std::string& file, const std::vector<std::string>& fields) {
    return ParseBlocks(Text(file), file, fields, faults_);
  }
  std::vector<Word> Words(const std::string& file) { return ParseWords(Text(file), file); }

  /// A field of a block; a missing one is a fault and reads as "".
  std::string Need(const Block& block, const std::string& field) {
    const auto found = block.Fields.find(field);
    if (found != block.Fields.end() && !found->second.empty()) return found->second;
    faults_.Add(block.Where, block.Name + " has no field " + Quoted(field));
    return {};
  }
  void NeedText(const Block& block) {
    if (block.Text.empty()) faults_.Add(block.Where, block.Name + " has no description");
    if (block.Example.empty()) faults_.Add(block.Where, block.Name + " has no example");
  }
  Faults& Found() { return faults_; }

 private:
  std::string Text(const std::string& file) {
    std::optional<std::string> text = ReadFile(folder_ + "/" + file);
    if (!text) {
      faults_.Add({file, 0}, "the file cannot be read");
      return {};
    }
    return *std::move(text);
  }

  const std::string& folder_;
  Faults& faults_;
};

std::vector<KindEntry> LoadKinds(Loader& loader) {
  std::vector<KindEntry> kinds;
  for (Block& block : loader.Blocks("objects/kinds.txt", {"keys", "class", "events"})) {
    loader.NeedText(block);
    KindEntry kind;
    kind.Name = block.Name;
    kind.Keys = WordsOf(loader.Need(block, "keys"));
    kind.Class = loader.Need(block, "class");
    const auto events = block.Fields.find("events");
    if (events != block.Fields.end()) kind.Events = WordsOf(events->second);
    kind.Text = std::move(block.Text);
    kind.Example = std::move(block.Example);
    kind.Where = block.Where;
    kinds.push_back(std::move(kind));
  }
  return kinds;
}

std::vector<MemberEntry> LoadMembers(Loader& loader, const std::vector<KindEntry>& kinds) {
  std::vector<MemberEntry> members;
  const std::vector<std::string> columns{"kind",    "member", "category",    "signature", "access",
                                         "default", "values", "description", "source"};
  for (TableRow& row : loader.Table("objects/members.tsv", columns)) {
    std::vector<std::string>& cells = row.Cells;
    bool known = false;
    for (const KindEntry& kind : kinds) known = known || kind.Name == cells[0];
    if (!known) loader.Found().Add(row.Where, "kinds.txt has no kind " + Quoted(cells[0]));
    if (cells[7].empty()) loader.Found().Add(row.Where, cells[1] + " has no description");
    if (cells[2] != "property" && cells[2] != "method" && cells[2] != "event") {
      loader.Found().Add(row.Where, "a member is a property, a method or an event");
    }
    members.push_back({std::move(cells[0]), std::move(cells[1]), std::move(cells[2]),
                       std::move(cells[3]), std::move(cells[4]), std::move(cells[5]),
                       std::move(cells[6]), std::move(cells[7]), std::move(row.Where)});
  }
  return members;
}

std::vector<FunctionEntry> LoadFunctions(Loader& loader) {
  std::map<std::string, bool> main_groups;
  for (const TableRow& row : loader.Table("functions/groups.tsv", {"group", "tab"})) {
    if (row.Cells[1] != "main" && row.Cells[1] != "more") {
      loader.Found().Add(row.Where, "the tab is \"main\" or \"more\"");
    }
    main_groups[row.Cells[0]] = row.Cells[1] == "main";
  }
  std::vector<FunctionEntry> functions;
  for (Block& block : loader.Blocks("functions/functions.txt", {"group", "syntax"})) {
    loader.NeedText(block);
    FunctionEntry function;
    function.Name = block.Name;
    function.Group = loader.Need(block, "group");
    const auto group = main_groups.find(function.Group);
    if (group == main_groups.end()) {
      loader.Found().Add(block.Where, "groups.tsv has no group " + Quoted(function.Group));
    } else {
      function.Main = group->second;
    }
    function.Syntax = loader.Need(block, "syntax");
    function.Text = std::move(block.Text);
    function.Example = std::move(block.Example);
    function.Where = block.Where;
    functions.push_back(std::move(function));
  }
  return functions;
}

std::vector<GridRow> LoadRows(Loader& loader) {
  std::map<std::string, std::string> lists;
  for (const TableRow& row : loader.Table("properties/value_lists.tsv", {"list", "values"})) {
    lists[row.Cells[0]] = row.Cells[1];
  }
  std::vector<GridRow> rows;
  for (TableRow& row : loader.Table("properties/rows.tsv", {"kind", "row", "mark", "values"})) {
    std::string values = row.Cells[3];
    if (values.starts_with('@')) {
      const auto list = lists.find(values.substr(1));
      if (list == lists.end()) {
        loader.Found().Add(row.Where, "value_lists.tsv has no list " + Quoted(values.substr(1)));
        values.clear();
      } else {
        values = list->second;
      }
    }
    rows.push_back({std::move(row.Cells[0]), std::move(row.Cells[1]), std::move(row.Cells[2]),
                    WordsOf(values), std::move(row.Where)});
  }
  return rows;
}

}  // namespace

SupportSources LoadSources(const std::string& folder, Faults& faults) {
  Loader loader(folder, faults);
  SupportSources sources;
  sources.Kinds = LoadKinds(loader);
  sources.Members = LoadMembers(loader, sources.Kinds);
  for (TableRow& row : loader.Table("objects/help_keys.tsv", {"kind", "member", "key"})) {
    sources.HelpKeys.push_back(
        {std::move(row.Cells[0]), std::move(row.Cells[1]), std::move(row.Cells[2])});
  }
  sources.Types = loader.Words("objects/types.txt");
  sources.Functions = LoadFunctions(loader);
  sources.Keywords = loader.Words("functions/keywords.txt");
  sources.Rows = LoadRows(loader);
  return sources;
}

std::string HelpKeyOf(const SupportSources& sources, std::string_view kind,
                      std::string_view member) {
  for (const HelpKeyRule& rule : sources.HelpKeys) {
    if (!EqualsFolded(rule.Kind, kind)) continue;
    if (rule.Member != "*" && !EqualsFolded(rule.Member, member)) continue;
    if (!rule.Key.starts_with('*')) return Lower(rule.Key);
    return Lower(member) + Lower(std::string_view(rule.Key).substr(1));
  }
  return Lower(member);
}

}  // namespace tarnwick::support
