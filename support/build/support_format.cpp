#include "build/support_format.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::support {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 11> kMarks{{
    {"text", ""},
    {"bool", "\x97"},
    {"picture", "\x98"},
    {"icon", "\x99"},
    {"font", "\x9A"},
    {"colour", "\x9B"},
    {"folder", "\x9D"},
    {"list", "\x9E"},
    {"items", "\x9F"},
    {"file", "\xA1"},
    {"html", "\xA2"},
}};

/// "[name]" or "{name" with its end mark, then the value between its marks, and the line end.
void AddListLine(std::string& out, std::string_view name, std::string_view value) {
  out.append("[").append(name).append("]");
  out += kValueStart;
  out.append(value);
  out += kValueEnd;
  out.append(kLineEnd);
}

void AddBraceLine(std::string& out, std::string_view name, std::string_view value) {
  out.append("{").append(name);
  out += kNameEnd;
  out.append("}");
  out += kValueStart;
  out.append(value);
  out += kValueEnd;
  out.append(kLineEnd);
}

void AddRow(std::string& rows, std::string_view row, bool first) {
  if (!first) rows += kRowBreak;
  rows.append(row);
}

/// Refuses a second use of a name that the loading program would pass over.
class Once {
 public:
  void Take(std::string_view name, const Place& where, Faults& faults) {
    if (!seen_.insert(Lower(name)).second) {
      faults.Add(where, Quoted(name) + " stands twice");
    }
  }

 private:
  std::set<std::string> seen_;
};

void AddMemberLists(std::string& out, const SupportSources& sources, Faults& faults) {
  std::string types;
  Once types_once;
  for (const Word& type : sources.Types) {
    types_once.Take(type.Text, type.Where, faults);
    AddRow(types, EncodeName(type.Text, "", type.Where, faults), types.empty());
  }
  AddListLine(out, "as", types);

  std::map<std::string, std::string, std::less<>> rows;
  std::map<std::string, Once, std::less<>> once;
  for (const MemberEntry& member : sources.Members) {
    std::string& list = rows[member.Kind];
    once[member.Kind].Take(member.Name, member.Where, faults);
    AddRow(list, EncodeName(member.Name, "{}", member.Where, faults), list.empty());
  }
  Once keys;
  keys.Take("as", {}, faults);
  for (const KindEntry& kind : sources.Kinds) {
    if (rows[kind.Name].empty()) faults.Add(kind.Where, kind.Name + " has no members");
    for (const std::string& key : kind.Keys) {
      keys.Take(key, kind.Where, faults);
      AddListLine(out, Lower(EncodeName(key, "[]", kind.Where, faults)), rows[kind.Name]);
    }
  }
}

void AddHelp(std::string& out, const SupportSources& sources, Faults& faults) {
  for (const KindEntry& kind : sources.Kinds) {
    AddBraceLine(out, Lower(kind.Name) + "%", EncodeHelp(HelpOf(kind), kind.Where, faults));
  }
  std::map<std::string, std::vector<const MemberEntry*>> by_key;
  for (const MemberEntry& member : sources.Members) {
    by_key[HelpKeyOf(sources, member.Kind, member.Name)].push_back(&member);
  }
  for (const auto& [key, members] : by_key) {
    AddBraceLine(out, key, EncodeHelp(HelpOf(members), members.front()->Where, faults));
  }
}

void AddEventLists(std::string& out, const SupportSources& sources, Faults& faults) {
  for (const KindEntry& kind : sources.Kinds) {
    if (!kind.Events) continue;
    std::string rows;
    for (const std::string& event : *kind.Events) {
      AddRow(rows, EncodeName(event, "", kind.Where, faults), rows.empty());
    }
    for (const std::string& key : kind.Keys) AddBraceLine(out, Lower(key), rows);
  }
}

}  // namespace

std::string EncodeName(std::string_view name, std::string_view forbidden, const Place& where,
                       Faults& faults) {
  const auto breaks = [&](char c) {
    return c < ' ' || c > '~' || c == ',' || c == '"' || forbidden.find(c) != std::string::npos;
  };
  if (name.empty() || name.front() == ' ' || name.back() == ' ' ||
      std::any_of(name.begin(), name.end(), breaks)) {
    faults.Add(where, Quoted(name) + " cannot be a name in the support files");
  }
  return std::string(name);
}

std::string EncodeLine(std::string_view line, const Place& where, Faults& faults) {
  std::string bytes = Utf8ToCodePage(line);
  // A character that the page lacks comes back as a question mark, not as itself.
  if (CodePageToUtf8(bytes) != line) faults.Add(where, "a character is not in Windows-1252");
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool control = byte < 0x20 || byte == 0x7F || byte == 0x81 || byte == 0x90;
    const bool mark = byte == 0x8B || byte == 0x8C || byte == 0x8D || byte == 0x8E ||
                      byte == 0x8F || byte == 0x95 || byte == 0x9D;
    if (control || mark) {
      faults.Add(where, control ? "a control character stands in the text"
                                : "a mark of the support files stands in the text");
      break;
    }
  }
  if (bytes.find(kHelpSection) != std::string::npos ||
      bytes.find(kEventSection) != std::string::npos) {
    faults.Add(where, "the text holds a word that opens a section");
  }
  return bytes;
}

std::string EncodeHelp(const HelpLines& lines, const Place& where, Faults& faults) {
  std::string help;
  for (std::size_t n = 0; n < lines.size(); ++n) {
    if (n > 0) help += kRowBreak;
    help.append(EncodeLine(lines[n], where, faults));
  }
  std::replace(help.begin(), help.end(), ',', kHelpComma);
  return help;
}

std::optional<std::string_view> MarkByte(std::string_view mark) noexcept {
  for (const auto& [word, byte] : kMarks) {
    if (word == mark) return byte;
  }
  return std::nullopt;
}

std::string ObjectsFile(const SupportSources& sources, Faults& faults) {
  std::string out;
  Once once;
  for (const KindEntry& kind : sources.Kinds) {
    once.Take(kind.Name, kind.Where, faults);
    if (!out.empty()) out += '/';
    out.append(EncodeName(kind.Name, "/{}", kind.Where, faults));
  }
  out.append(kLineEnd);
  AddMemberLists(out, sources, faults);
  out.append(kHelpSection).append(kLineEnd);
  AddHelp(out, sources, faults);
  out.append(kEventSection).append(kLineEnd);
  AddEventLists(out, sources, faults);
  return out;
}

std::string FunctionsFile(const SupportSources& sources, Faults& faults) {
  std::vector<const FunctionEntry*> sorted;
  for (const FunctionEntry& function : sources.Functions) sorted.push_back(&function);
  std::sort(sorted.begin(), sorted.end(), [](const FunctionEntry* a, const FunctionEntry* b) {
    return std::pair(!a->Main, Lower(a->Name)) < std::pair(!b->Main, Lower(b->Name));
  });
  Once once;
  std::string main_names;
  std::string more_names;
  std::string lines;
  for (const FunctionEntry* function : sorted) {
    once.Take(function->Name, function->Where, faults);
    const std::string name = EncodeName(function->Name, "[]*", function->Where, faults);
    std::string& names = function->Main ? main_names : more_names;
    if (!names.empty()) names += '*';
    names.append(name);
    AddListLine(lines, name, EncodeHelp(HelpOf(*function), function->Where, faults));
  }
  std::string out = "Functions,";
  out.append(main_names).append(kLineEnd).append(more_names).append(kLineEnd).append(lines);
  return out;
}

std::string KeywordsFile(const SupportSources& sources, Faults& faults) {
  std::string out;
  Once once;
  for (const Word& keyword : sources.Keywords) {
    once.Take(keyword.Text, keyword.Where, faults);
    if (!out.empty()) out += '/';
    out.append(EncodeName(keyword.Text, "/ ", keyword.Where, faults));
  }
  out.append(kLineEnd);
  return out;
}

std::string GridFile(const SupportSources& sources, Faults& faults) {
  std::vector<std::pair<std::string, std::string>> kinds;
  Once once;
  for (const GridRow& row : sources.Rows) {
    const std::string kind = EncodeName(row.Kind, "[]", row.Where, faults);
    if (kinds.empty() || kinds.back().first != kind) {
      once.Take(kind, row.Where, faults);
      kinds.emplace_back(kind, "");
    }
    std::string text = EncodeName(row.Name, "", row.Where, faults);
    const std::optional<std::string_view> mark = MarkByte(row.Mark);
    if (!mark) faults.Add(row.Where, Quoted(row.Mark) + " is no mark");
    if (row.Mark != "list" && !row.Values.empty()) {
      faults.Add(row.Where, "only a list has values");
    }
    text.append(mark.value_or(""));
    for (std::size_t n = 0; n < row.Values.size(); ++n) {
      if (n > 0) text += kGridValueBreak;
      text.append(EncodeName(row.Values[n], "", row.Where, faults));
    }
    AddRow(kinds.back().second, text, kinds.back().second.empty());
  }
  std::string out;
  for (const auto& [kind, rows] : kinds) AddListLine(out, kind, rows);
  return out;
}

std::string IncludeFile(std::string_view utf8, const std::string& file, Faults& faults) {
  std::string out;
  std::size_t from = 0;
  for (std::size_t number = 1; from < utf8.size(); ++number) {
    const std::size_t end = std::min(utf8.find('\n', from), utf8.size());
    out.append(EncodeLine(utf8.substr(from, end - from), {file, number}, faults));
    out.append(kLineEnd);
    from = end + 1;
  }
  return out;
}

}  // namespace tarnwick::support
