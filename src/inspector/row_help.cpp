#include "inspector/row_help.h"

#include <optional>

#include "inspector/row_help_texts.h"
#include "model/kinds.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

constexpr std::string_view kPassageEnd = "\r\n\r\n";

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
  if (const std::optional<Kind> known = KindOfTag(Lower(kind))) {
    const std::string_view text = RowHelpText(row, *known);
    if (!text.empty()) return std::string{text};
  }
  const std::string_view shown = ShownName(kind);
  const std::string* help = support.HelpOfMember(shown, row);
  if (help == nullptr) help = support.MemberHelp.Find(row);
  return help != nullptr ? PassagesFor(*help, shown) : std::string{};
}

}  // namespace tarnwick
