#include "persistence/support_tables.h"

#include <cstdint>
#include <optional>
#include <utility>

#include "text/strings.h"

namespace tarnwick {

namespace {

// The marks of the support files; they share their bytes with the separators of stored text.
constexpr char kValueStart = kStoredComma;
constexpr char kValueEnd = kMenuNested;
constexpr char kNameEnd = kStoredListComma;
constexpr char kHelpComma = kPopUpEntry;
constexpr char kHelpLine = kStoredLineBreak;

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

/// Adds a complete entry under its lower-case name; an entry without name or value is no entry.
void AddEntry(KeyedTexts& table, const Entry& entry, bool is_help) {
  if (!entry.Name || entry.Name->empty() || !entry.Value) return;
  table.Add(Lower(*entry.Name), is_help ? HelpText(*entry.Value) : std::string{*entry.Value});
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

void FillPanelLists(SupportTables& tables, std::string_view text) {
  TakeValue(text);
  tables.ListFunc1 = ListOfPieces(TakeValue(text), "*", true);
  tables.ListFunc0 = ListOfPieces(TakeValue(text), "*", true);
}

}  // namespace

bool KeyedTexts::Add(std::string_view key, std::string value) {
  const auto [place, added] = texts_.try_emplace(std::string{key});
  if (added) place->second = std::move(value);
  return added;
}

const std::string* KeyedTexts::Find(std::string_view key) const noexcept {
  const auto found = texts_.find(key);
  return found == texts_.end() ? nullptr : &found->second;
}

void AddMemberFile(SupportTables& tables, std::string_view text) {
  enum class Section : std::uint8_t { Members, Help, Events };
  Section section = Section::Members;
  const std::vector<std::string_view> lines = Split(text, kLineEnd);
  tables.ListaObjetos = ListOfPieces(lines.front(), "/", false);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::string_view line = lines[i];
    if (Contains(line, kHelpSection)) {
      section = Section::Help;
    } else if (Contains(line, kEventSection)) {
      section = Section::Events;
    } else if (section == Section::Members) {
      AddEntry(tables.MemberLists, EntryOf(line, '[', ']'), false);
    } else {
      const bool is_help = section == Section::Help;
      AddEntry(is_help ? tables.MemberHelp : tables.EventLists, EntryOf(line, '{', kNameEnd),
               is_help);
    }
  }
}

void AddFunctionFile(SupportTables& tables, std::string_view text) {
  FillPanelLists(tables, text);
  const std::vector<std::string_view> lines = Split(text, kLineEnd);
  // The first two lines are the lists of the panel and hold no functions.
  for (std::size_t i = 2; i < lines.size(); ++i) {
    if (lines[i].empty()) continue;
    // A line without a name still takes a row: rows and descriptions count together.
    const Entry entry = EntryOf(lines[i], '[', ']');
    tables.ListColFunc.emplace_back(entry.Name.value_or(std::string_view{}));
    tables.FunctionDescriptions.push_back(HelpText(entry.Value.value_or(std::string_view{})));
  }
}

void AddKeywordFile(SupportTables& tables, std::string_view text) {
  if (text.ends_with(kLineEnd)) text.remove_suffix(kLineEnd.size());
  const std::size_t last = text.rfind(kLineEnd);
  if (last != std::string_view::npos) text.remove_prefix(last + kLineEnd.size());
  tables.Keywords.clear();
  if (text.empty()) return;
  tables.Keywords = ReplaceAll(text, "/", "\n") + "\n\n";
}

void AddKindFile(SupportTables& tables, std::string_view text) {
  const std::string closed = std::string{text}.append(kLineEnd);
  for (const std::string_view line : Split(closed, kLineEnd)) {
    tables.KindLines.emplace_back(line);
    const Entry entry = EntryOf(line, '[', ']');
    if (!entry.Name || entry.Name->empty() || !entry.Value) continue;
    tables.ObjectHelp.Add(Upper(*entry.Name), std::string{*entry.Value});
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
