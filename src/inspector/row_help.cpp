#include "inspector/row_help.h"

#include <array>
#include <optional>

#include "model/kinds.h"
#include "text/code_page.h"

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

/// The passages that speak of the kind, or all when none does. The line that names the kinds goes:
/// the reader has the kind before him.
std::string PassagesFor(std::string_view help, std::string_view kind) {
  std::string chosen;
  std::string all;
  const auto append = [](std::string& text, std::string_view body) {
    if (!text.empty()) text.append(kPassageEnd);
    text.append(body);
  };
  for (const language::HelpPassage& passage : language::PassagesOf(help)) {
    append(all, passage.Body);
    if (NamesKind(passage, kind)) append(chosen, passage.Body);
  }
  return chosen.empty() ? all : chosen;
}

}  // namespace

std::string RowHelp(const language::SupportTables& support, std::string_view kind,
                    std::string_view row) {
  const std::string name = Lower(row);
  for (const RowText& text : kRowTexts) {
    if (text.Row == name) return std::string{text.Text};
  }
  const std::string_view shown = ShownName(kind);
  const std::string* help = support.HelpOfMember(shown, name);
  if (help == nullptr) help = support.MemberHelp.Find(name);
  for (const RowMember& member : kRowMembers) {
    if (help == nullptr && member.Row == name) help = support.MemberHelp.Find(member.Key);
  }
  return help != nullptr ? PassagesFor(*help, shown) : std::string{};
}

}  // namespace tarnwick
