#include "persistence/old_project.h"

#include <algorithm>
#include <array>

#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kItemPrefix = "Item(";

/// What the head of a kind becomes in the present format.
struct HeadRule {
  std::string_view Kind;
  bool Numbered;
  bool ItemName;          ///< "Item(" precedes the name
  std::string_view Word;  ///< other kind word, "" to keep the old one
};

constexpr std::array<HeadRule, 7> kHeadRules{{
    {"form", false, false, ""},
    {"menuitem", false, true, ""},
    {"itemmenu", false, true, ""},
    {"image", true, false, "Image"},
    {"images", true, false, "Image"},
    {"filestream", false, false, ""},
    {"transparentframe", false, false, ""},
}};

constexpr HeadRule kPlainRule{"", true, false, ""};

const HeadRule& RuleOf(std::string_view kind) {
  const auto* const found =
      std::find_if(kHeadRules.begin(), kHeadRules.end(),
                   [&](const HeadRule& rule) { return EqualsFolded(rule.Kind, kind); });
  return found == kHeadRules.end() ? kPlainRule : *found;
}

/// The number at the end of a name, without leading zeros; "1" for none and for 0.
std::string_view NumberOf(std::string_view name) {
  const std::size_t last_other = name.find_last_not_of("0123456789");
  std::string_view digits = name.substr(last_other == std::string_view::npos ? 0 : last_other + 1);
  const std::size_t first = digits.find_first_not_of('0');
  return first == std::string_view::npos ? std::string_view("1") : digits.substr(first);
}

void AppendConverted(std::string& out, std::string_view line) {
  const std::size_t kind_open = line.find('[');
  const std::size_t kind_close = line.find(']');
  const std::size_t name_open = line.find('(');
  const std::size_t name_close = line.find(')');
  constexpr std::size_t kNone = std::string_view::npos;
  const bool whole = kind_open != kNone && kind_close != kNone && kind_open < kind_close &&
                     name_open != kNone && name_close != kNone && name_open < name_close;
  if (!whole || line.starts_with("[DeclarePbl]")) {
    out += line;
    return;
  }
  const HeadRule& rule = RuleOf(line.substr(kind_open + 1, kind_close - kind_open - 1));
  std::string_view name = line.substr(name_open + 1, name_close - name_open - 1);
  if (rule.ItemName && name.starts_with(kItemPrefix)) name.remove_prefix(kItemPrefix.size());
  if (rule.Word.empty()) {
    out += line.substr(0, kind_close + 1);
  } else {
    out.append(line.substr(0, kind_open + 1)).append(rule.Word).append("]");
  }
  if (rule.Numbered) out.append("(").append(NumberOf(name)).append(")");
  out.append(" {").append(name).append("} ").append(line.substr(name_close + 1));
}

}  // namespace

std::string ConvertOldText(std::string_view old_text) {
  std::string out;
  out.reserve(old_text.size() + old_text.size() / 8);
  for (const std::string_view line : Split(old_text, kLineEnd)) {
    AppendConverted(out, line);
    out += kLineEnd;
  }
  return out;
}

}  // namespace tarnwick
