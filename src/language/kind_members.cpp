#include "language/kind_members.h"

#include <array>
#include <cstddef>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::language {

namespace {

constexpr std::string_view kPassageEnd = "\r\n\r\n";
constexpr std::string_view kSortEnd = " of ";

/// Members whose help has a key of its own. An empty member stands for any; the key is the member
/// followed by `Suffix`, or `Key` as a whole.
struct KeyRule {
  std::string_view Kind;
  std::string_view Member;
  std::string_view Suffix;
  std::string_view Key;
};

constexpr std::array kKeyRules{
    KeyRule{"winsock", "", "winsock", ""},         KeyRule{"popupmenu", "alignment", "pop", ""},
    KeyRule{"clipboard", "close", "clip", ""},     KeyRule{"filestream", "close", "file", ""},
    KeyRule{"clipboard", "clear", "clip", ""},     KeyRule{"clipboard", "open", "clip", ""},
    KeyRule{"filestream", "open", "", "openfile"}, KeyRule{"filestream", "size", "", "sizefile"},
    KeyRule{"font", "color", "", "colorfont"},     KeyRule{"richtextbox", "line", "", "linerich"},
    KeyRule{"clipboard", "text", "", "textclip"},
};

struct SortWord {
  std::string_view Word;
  MemberSort Sort;
};

constexpr std::array kSortWords{SortWord{"property", MemberSort::Property},
                                SortWord{"method", MemberSort::Method},
                                SortWord{"event", MemberSort::Event}};

/// The sort in a head such as "Caption, property of Form".
std::optional<MemberSort> SortInHead(std::string_view head) {
  const std::size_t comma = head.find(", ");
  if (comma == std::string_view::npos) return std::nullopt;
  const std::string_view rest = head.substr(comma + 2);
  for (const SortWord& word : kSortWords) {
    if (rest.starts_with(word.Word) && rest.substr(word.Word.size()).starts_with(kSortEnd)) {
      return word.Sort;
    }
  }
  return std::nullopt;
}

}  // namespace

std::string MemberHelpKey(std::string_view kind, std::string_view member) {
  std::string key = Lower(member);
  for (const KeyRule& rule : kKeyRules) {
    if (!EqualsFolded(rule.Kind, kind)) continue;
    if (!rule.Member.empty() && rule.Member != key) continue;
    return rule.Key.empty() ? key.append(rule.Suffix) : std::string{rule.Key};
  }
  return key;
}

std::vector<HelpPassage> PassagesOf(std::string_view help) {
  std::vector<HelpPassage> passages;
  for (const std::string_view passage : Split(help, kPassageEnd)) {
    const std::size_t end = passage.find(kLineEnd);
    passages.push_back({passage.substr(0, end), end == std::string_view::npos
                                                    ? passage
                                                    : passage.substr(end + kLineEnd.size())});
  }
  return passages;
}

bool NamesKind(const HelpPassage& passage, std::string_view kind) noexcept {
  if (kind.empty()) return false;
  const std::string_view line = passage.Head;
  const auto goes_on = [line](std::size_t at) {
    const char c = at < line.size() ? line[at] : ' ';
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '(';
  };
  for (std::size_t at = FindFolded(line, kind); at != std::string_view::npos;
       at = FindFolded(line, kind, at + 1)) {
    if ((at == 0 || !goes_on(at - 1)) && !goes_on(at + kind.size())) return true;
  }
  return false;
}

std::optional<MemberSort> SortInHelp(std::string_view help, std::string_view kind) {
  std::optional<MemberSort> first;
  for (const HelpPassage& passage : PassagesOf(help)) {
    const std::optional<MemberSort> sort = SortInHead(passage.Head);
    if (!sort) continue;
    if (NamesKind(passage, kind)) return sort;
    if (!first) first = sort;
  }
  return first;
}

}  // namespace tarnwick::language
