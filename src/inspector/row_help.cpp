#include "inspector/row_help.h"

#include <array>
#include <cstddef>
#include <optional>

#include "inspector/objects_examiner.h"
#include "model/vocabulary.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kPassageEnd = "\r\n\r\n";

/// Rows whose name is not that of the member behind them.
struct RowMember {
  std::string_view Row;
  std::string_view Key;
};

constexpr std::array kRowMembers{
    RowMember{"fontcolor", "colorfont"},
    RowMember{"transpcolor", "transparentcolor"},
};

/// Rows that no member of the language stands for.
struct RowText {
  std::string_view Row;
  std::string_view Text;
};

constexpr std::array kRowTexts{
    RowText{"name", "The name by which the program's code calls it."},
    RowText{"icon(app)", "The icon of the finished program's file."},
};

/// The kind as the descriptions call it.
std::string_view ShownName(std::string_view kind) {
  const std::optional<Kind> known = KindOfTag(Lower(kind));
  return known ? InfoOf(*known).Name : kind;
}

/// True when a word stands in a line as a whole.
bool NamesKind(std::string_view line, std::string_view kind) {
  const auto is_letter = [line](std::size_t at) {
    const char c = at < line.size() ? line[at] : ' ';
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '(';
  };
  std::size_t from = 0;
  while (true) {
    const std::size_t at = FindFolded(line.substr(from), kind);
    if (at == std::string_view::npos) return false;
    const std::size_t place = from + at;
    if ((place == 0 || !is_letter(place - 1)) && !is_letter(place + kind.size())) return true;
    from = place + 1;
  }
}

/// A description holds passages for groups of kinds, each under a line that names them. That line
/// goes: the reader has the kind before him.
std::string PassagesOf(std::string_view help, std::string_view kind) {
  std::string chosen;
  std::string all;
  for (const std::string_view passage : Split(help, kPassageEnd)) {
    const std::size_t end = passage.find(kLineEnd);
    const std::string_view head = passage.substr(0, end);
    const std::string_view body =
        end == std::string_view::npos ? passage : passage.substr(end + kLineEnd.size());
    const bool is_meant = NamesKind(head, kind);
    for (std::string* text : {&all, &chosen}) {
      if (text == &chosen && !is_meant) continue;
      if (!text->empty()) text->append(kPassageEnd);
      text->append(body);
    }
  }
  return chosen.empty() ? all : chosen;
}

}  // namespace

std::string RowHelp(const SupportTables& support, std::string_view kind, std::string_view row) {
  const std::string name = Lower(row);
  for (const RowText& text : kRowTexts) {
    if (text.Row == name) return std::string{text.Text};
  }
  const std::string_view shown = ShownName(kind);
  const std::string* help = support.MemberHelp.Find(MemberHelpKey(shown, name));
  if (help == nullptr) help = support.MemberHelp.Find(name);
  for (const RowMember& member : kRowMembers) {
    if (help == nullptr && member.Row == name) help = support.MemberHelp.Find(member.Key);
  }
  return help != nullptr ? PassagesOf(*help, shown) : std::string{};
}

}  // namespace tarnwick
