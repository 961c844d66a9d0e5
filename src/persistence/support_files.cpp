#include "persistence/support_files.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>

#include "text/strings.h"

namespace tarnwick {

namespace {

using language::KindMember;
using language::MemberSort;
using language::SupportTables;

// The marks of the support files; they share their bytes with the separators of stored text.
constexpr char kValueStart = kStoredComma;
constexpr char kValueEnd = kMenuNested;
constexpr char kNameEnd = kStoredListComma;
constexpr char kHelpComma = kPopUpEntry;
constexpr char kHelpLine = kStoredLineBreak;

constexpr std::string_view kRowSeparator{&kHelpLine, 1};

constexpr std::string_view kHelpSection = "**tn**";
constexpr std::string_view kEventSection = "**etn**";

/// A line's name and value; either is missing when one of its two marks is.
struct Entry {
  std::optional<std::string_view> Name;
  std::optional<std::string_view> Value;
};

/// The text between two marks from `from` on; `from` moves behind the closing one.
std::optional<std::string_view> Between(std::string_view line, char open, char close,
                                        std::size_t& from) {
  const std::size_t start = line.find(open, from);
  if (start == std::string_view::npos) return std::nullopt;
  const std::size_t end = line.find(close, start + 1);
  if (end == std::string_view::npos) return std::nullopt;
  from = end + 1;
  return line.substr(start + 1, end - start - 1);
}

Entry EntryOf(std::string_view line, char name_open, char name_close) {
  std::size_t from = 0;
  Entry entry;
  entry.Name = Between(line, name_open, name_close, from);
  entry.Value = Between(line, kValueStart, kValueEnd, from);
  return entry;
}

/// Help as the user reads it: lines and commas are stored as marks, since both end a value.
std::string HelpText(std::string_view stored) {
  std::string text = ReplaceAll(stored, std::string_view{&kHelpLine, 1}, kLineEnd);
  ReplaceByte(text, kHelpComma, ',');
  return text;
}

/// An entry without name or value is no entry.
bool IsComplete(const Entry& entry) {
  return entry.Name && !entry.Name->empty() && entry.Value;
}

/// The pieces of a list in one value; an empty text has none.
std::vector<std::string> ListOfPieces(std::string_view text, std::string_view separator,
                                      bool skip_empty) {
  std::vector<std::string> rows;
  if (text.empty()) return rows;
  for (const std::string_view piece : Split(text, separator)) {
    if (!skip_empty || !piece.empty()) rows.emplace_back(piece);
  }
  return rows;
}

/// Takes the next value off a text that is read in sequence: it ends at a comma or a line end.
std::string_view TakeValue(std::string_view& text) {
  const std::size_t end = text.find_first_of(",\r\n");
  const std::string_view value = text.substr(0, end);
  if (end == std::string_view::npos) {
    text = {};
    return value;
  }
  const bool is_pair = text.substr(end, kLineEnd.size()) == kLineEnd;
  text.remove_prefix(end + (is_pair ? kLineEnd.size() : 1));
  return value;
}

/// The members of a list. Those that the kind's event list has, or whose help says so, are events;
/// for the rest the help decides, and a member without any is a property.
std::vector<KindMember> MembersOf(const SupportTables& tables, std::string_view kind,
                                  std::string_view list) {
  std::vector<KindMember> members;
  const std::vector<std::string>* events = tables.EventLists.Find(kind);
  for (std::string& name : ListOfPieces(list, kRowSeparator, false)) {
    KindMember member{std::move(name), MemberSort::Property};
    if (EqualsFolded(kind, language::kTypeWord)) {
      member.Sort = MemberSort::TypeName;
    } else if (events != nullptr &&
               std::any_of(events->begin(), events->end(), [&](const std::string& event) {
                 return EqualsFolded(event, member.Name);
               })) {
      member.Sort = MemberSort::Event;
    } else if (const std::string* help = tables.HelpOfMember(kind, member.Name)) {
      member.Sort = language::SortInHelp(*help, kind).value_or(MemberSort::Property);
    }
    members.push_back(std::move(member));
  }
  return members;
}

void FillPanelLists(SupportTables& tables, std::string_view text) {
  TakeValue(text);
  tables.ListFunc1 = ListOfPieces(TakeValue(text), "*", true);
  tables.ListFunc0 = ListOfPieces(TakeValue(text), "*", true);
}

}  // namespace

void AddMemberFile(SupportTables& tables, std::string_view text) {
  enum class Section : std::uint8_t { Members, Help, Events };
  Section section = Section::Members;
  const std::vector<std::string_view> lines = Split(text, kLineEnd);
  tables.ListaObjetos = ListOfPieces(lines.front(), "/", false);
  std::vector<Entry> member_lists;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::string_view line = lines[i];
    if (Contains(line, kHelpSection)) {
      section = Section::Help;
    } else if (Contains(line, kEventSection)) {
      section = Section::Events;
    } else if (section == Section::Members) {
      const Entry entry = EntryOf(line, '[', ']');
      if (IsComplete(entry)) member_lists.push_back(entry);
    } else if (const Entry entry = EntryOf(line, '{', kNameEnd); !IsComplete(entry)) {
      continue;
    } else if (section == Section::Help) {
      tables.MemberHelp.Add(Lower(*entry.Name), HelpText(*entry.Value));
    } else {
      tables.EventLists.Add(Lower(*entry.Name), ListOfPieces(*entry.Value, kRowSeparator, false));
    }
  }
  // What a member is stands in help and events, further down in the file. They know a kind by the
  // first of its words: the same list again is the same kind under its array's name.
  std::unordered_map<std::string_view, std::string> first_words;
  for (const Entry& entry : member_lists) {
    const std::string word = Lower(*entry.Name);
    const std::string& kind = first_words.try_emplace(*entry.Value, word).first->second;
    tables.MemberLists.Add(word, MembersOf(tables, kind, *entry.Value));
  }
}

void AddFunctionFile(SupportTables& tables, std::string_view text) {
  FillPanelLists(tables, text);
  const std::vector<std::string_view> lines = Split(text, kLineEnd);
  // The first two lines are the lists of the panel and hold no functions.
  for (std::size_t i = 2; i < lines.size(); ++i) {
    if (lines[i].empty()) continue;
    const Entry entry = EntryOf(lines[i], '[', ']');
    tables.Functions.Add(std::string{entry.Name.value_or(std::string_view{})},
                         HelpText(entry.Value.value_or(std::string_view{})));
  }
}

void AddKeywordFile(SupportTables& tables, std::string_view text) {
  if (text.ends_with(kLineEnd)) text.remove_suffix(kLineEnd.size());
  const std::size_t last = text.rfind(kLineEnd);
  if (last != std::string_view::npos) text.remove_prefix(last + kLineEnd.size());
  tables.Keywords = ListOfPieces(text, "/", true);
}

void AddKindFile(SupportTables& tables, std::string_view text) {
  for (const std::string_view line : Split(text, kLineEnd)) {
    const Entry entry = EntryOf(line, '[', ']');
    if (!IsComplete(entry)) continue;
    std::vector<language::PropertyRow> rows;
    for (const std::string& row : ListOfPieces(*entry.Value, kRowSeparator, false)) {
      rows.push_back(language::ParsePropertyRow(row));
    }
    tables.ObjectHelp.Add(Upper(*entry.Name), std::move(rows));
  }
}

SupportTables ReadSupportTables(FilePort& files, const std::string& program_folder) {
  SupportTables tables;
  const auto add = [&](std::string_view name, void (*fill)(SupportTables&, std::string_view)) {
    if (const auto text = files.Read(program_folder + std::string{name})) fill(tables, *text);
  };
  add("\\Add001.tn", AddMemberFile);
  add("\\Add002.tn", AddFunctionFile);
  add("\\Add003.tn", AddKeywordFile);
  add("\\Add004.tn", AddKindFile);
  return tables;
}

}  // namespace tarnwick
