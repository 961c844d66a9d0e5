#include "basic/source/macro_table.h"

#include <algorithm>
#include <utility>

#include "language/lexer.h"

namespace tarnwick::basic {
namespace {

bool IsSign(const SourceToken& token, std::string_view sign) {
  return token.Kind == SourceTokenKind::Sign && token.Text == sign;
}

/// The arguments in the brackets that open at `open`; `end` becomes the index behind the closing
/// one. False when no bracket closes them.
bool ArgumentsAt(const std::vector<SourceToken>& line, std::size_t open,
                 std::vector<std::vector<SourceToken>>& arguments, std::size_t& end) {
  int depth = 0;
  arguments.assign(1, {});
  for (std::size_t i = open; i < line.size(); ++i) {
    const SourceToken& token = line[i];
    if (IsSign(token, ")") && --depth == 0) {
      if (arguments.size() == 1 && arguments[0].empty()) arguments.clear();
      end = i + 1;
      return true;
    }
    if (depth == 1 && IsSign(token, ",")) {
      arguments.emplace_back();
      continue;
    }
    if (depth > 0) arguments.back().push_back(token);
    if (IsSign(token, "(")) ++depth;
  }
  return false;
}

}  // namespace

MacroTable::MacroTable(Arena& memory, Messages& messages) : memory_(memory), messages_(messages) {}

void MacroTable::Define(std::string_view name, Tokens text) {
  Macro macro;
  macro.Text = std::move(text);
  std::vector<Macro>& meanings = macros_[std::string(name)];
  meanings.clear();
  meanings.push_back(std::move(macro));
}

void MacroTable::AddMacro(std::string_view name, Macro macro) {
  std::vector<Macro>& meanings = macros_[std::string(name)];
  std::erase_if(meanings, [&macro](const Macro& old) {
    return old.HasParameters == macro.HasParameters &&
           old.Parameters.size() == macro.Parameters.size() && old.OnlyInFile == macro.OnlyInFile;
  });
  meanings.push_back(std::move(macro));
}

void MacroTable::Undefine(std::string_view name) {
  const auto found = macros_.find(name);
  if (found != macros_.end()) {
    macros_.erase(found);
  } else {
    undefined_.emplace(name);
  }
}

bool MacroTable::IsKnown(std::string_view name) const {
  return macros_.find(name) != macros_.end();
}

bool MacroTable::IsDefined(std::string_view name) const {
  // The language has these two by itself.
  const bool own = EqualsFolded(name, "TRUE") || EqualsFolded(name, "FALSE");
  return IsKnown(name) || (own && undefined_.find(name) == undefined_.end());
}

const Macro* MacroTable::Find(std::string_view name, std::uint16_t file, bool brackets,
                              std::size_t arguments) const {
  const auto found = macros_.find(name);
  if (found == macros_.end()) return nullptr;
  for (auto macro = found->second.rbegin(); macro != found->second.rend(); ++macro) {
    if (macro->OnlyInFile >= 0 && macro->OnlyInFile != file) continue;
    if (macro->HasParameters != brackets) continue;
    if (!brackets || macro->Parameters.size() == arguments) return &*macro;
  }
  return nullptr;
}

void MacroTable::Expand(Tokens& line, std::uint16_t file) {
  if (!undefined_.empty()) {
    for (SourceToken& token : line) {
      token.Plain =
          token.Kind == SourceTokenKind::Name && undefined_.find(token.Text) != undefined_.end();
    }
  }
  if (macros_.empty()) return;
  const bool any = std::any_of(line.begin(), line.end(), [this](const SourceToken& token) {
    return token.Kind == SourceTokenKind::Name && IsKnown(token.Text);
  });
  if (!any) return;
  failed_ = false;
  in_use_.clear();
  Tokens expanded;
  ExpandInto(line, file, 0, expanded);
  line = std::move(expanded);
}

void MacroTable::ExpandInto(const Tokens& line, std::uint16_t file, int depth, Tokens& out) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const SourceToken& token = line[i];
    const bool name = token.Kind == SourceTokenKind::Name && !failed_ && IsKnown(token.Text) &&
                      std::none_of(in_use_.begin(), in_use_.end(), [&token](std::string_view used) {
                        return EqualsFolded(used, token.Text);
                      });
    if (!name) {
      out.push_back(token);
      continue;
    }
    std::vector<Tokens> arguments;
    std::size_t end = i + 1;
    const bool brackets =
        end < line.size() && IsSign(line[end], "(") && ArgumentsAt(line, end, arguments, end);
    const Macro* macro = brackets ? Find(token.Text, file, true, arguments.size()) : nullptr;
    if (macro == nullptr) {
      macro = Find(token.Text, file, false, 0);
      end = i + 1;
      arguments.clear();
    }
    if (macro == nullptr) {
      out.push_back(token);
      continue;
    }
    for (Tokens& argument : arguments) {
      Tokens value;
      if (depth < kMaxExpansionDepth) ExpandInto(argument, file, depth + 1, value);
      argument = std::move(value);
    }
    Tokens text;
    Insert(*macro, arguments, token, text);
    if (depth >= kMaxExpansionDepth || out.size() + text.size() > kMaxExpandedTokens)
      failed_ = true;
    if (failed_) {
      messages_.Error(token.At, "The text of this macro is too long or too deep");
      return;
    }
    in_use_.push_back(token.Text);
    ExpandInto(text, file, depth + 1, out);
    in_use_.pop_back();
    if (out.size() > kMaxExpandedTokens) failed_ = true;
    i = end - 1;
  }
}

void MacroTable::Insert(const Macro& macro, const std::vector<Tokens>& arguments,
                        const SourceToken& use, Tokens& out) {
  bool paste = false;
  const auto add = [&](SourceToken token) {
    token.At = use.At;
    if (paste && !out.empty()) {
      Paste(out, token);
    } else {
      out.push_back(token);
    }
    paste = false;
  };
  for (const SourceToken& token : macro.Text) {
    if (out.size() > kMaxExpandedTokens) return;
    if (IsSign(token, "##")) {
      paste = true;
      continue;
    }
    const auto parameter = token.Kind != SourceTokenKind::Name
                               ? macro.Parameters.end()
                               : std::find_if(macro.Parameters.begin(), macro.Parameters.end(),
                                              [&token](const std::string& name) {
                                                return EqualsFolded(name, token.Text);
                                              });
    if (parameter == macro.Parameters.end()) {
      add(token);
      continue;
    }
    const auto index = static_cast<std::size_t>(parameter - macro.Parameters.begin());
    for (const SourceToken& part : arguments[index]) add(part);
  }
}

/// Makes one token of the last one and `right`.
void MacroTable::Paste(Tokens& out, const SourceToken& right) {
  SourceToken& left = out.back();
  const std::string_view text = memory_.Text(std::string(left.Text).append(right.Text));
  std::vector<language::Token> tokens;
  language::LexLine(text, {}, tokens);
  left.Text = text;
  if (left.Kind == SourceTokenKind::Text || right.Kind == SourceTokenKind::Text) {
    left.Kind = SourceTokenKind::Text;
  } else if (tokens.size() == 1 && tokens[0].Kind == language::TokenKind::Number) {
    left.Kind = SourceTokenKind::Number;
  } else {
    left.Kind = SourceTokenKind::Name;
  }
}

}  // namespace tarnwick::basic
