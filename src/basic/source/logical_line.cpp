#include "basic/source/logical_line.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>

#include "language/characters.h"
#include "text/strings.h"

namespace tarnwick::basic {
namespace {

using language::TokenKind;

/// What tokens of a line become, in the order of their kinds. End: nothing.
constexpr SourceTokenKind kKinds[] = {
    SourceTokenKind::Name, SourceTokenKind::Number,    SourceTokenKind::Text,
    SourceTokenKind::Sign, SourceTokenKind::Directive, SourceTokenKind::End,
    SourceTokenKind::End,  SourceTokenKind::End,
};
static_assert(std::size(kKinds) == static_cast<std::size_t>(TokenKind::Unknown) + 1);

/// The byte of up to `most` digits from `at` on, which moves behind them.
char CodeAt(std::string_view text, std::size_t& at, int base, int most) {
  int code = 0;
  for (int i = 0; i < most && at < text.size() && language::DigitValue(text[at]) < base; ++i) {
    code = code * base + language::DigitValue(text[at++]);
  }
  return static_cast<char>(static_cast<unsigned char>(code & 0xFF));
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  std::size_t at = 0;
  while (at < text.size()) {
    const char c = text[at++];
    if (c != '\\' || at == text.size()) {
      plain += c;
      continue;
    }
    const char escape = text[at];
    if (language::IsDigit(escape)) {
      plain += CodeAt(text, at, 10, 3);
      continue;
    }
    ++at;
    switch (escape) {
      case 'n':
        plain += '\n';
        break;
      case 'r':
        plain += '\r';
        break;
      case 't':
        plain += '\t';
        break;
      case '"':
      case '\\':
        plain += escape;
        break;
      case 'x':
      case 'X':
        if (at < text.size() && language::DigitValue(text[at]) < 16) {
          plain += CodeAt(text, at, 16, 2);
          break;
        }
        [[fallthrough]];
      default:
        plain += c;
        plain += escape;
    }
  }
  return plain;
}

std::uint16_t Narrow(std::size_t value) {
  return static_cast<std::uint16_t>(
      std::min<std::size_t>(value, std::numeric_limits<std::uint16_t>::max()));
}

}  // namespace

SourcePlace PlaceIn(std::uint16_t file, std::size_t line_number, std::size_t begin,
                    std::size_t length) noexcept {
  return {static_cast<std::uint32_t>(line_number), file, Narrow(begin + 1), Narrow(length)};
}

void LineReader::Next(bool escapes, bool counts, std::vector<SourceToken>& tokens) {
  tokens.clear();
  counts_ = counts;
  rest_ = {};
  language::LineState state;
  state.EscapeChars = escapes;
  int lines = 0;
  do {
    const std::string_view line = walk_.Next();
    state = language::LexLine(line, state, lexed_);
    std::size_t end = 0;
    for (const language::Token& token : lexed_) {
      if (token.Kind == TokenKind::Comment || token.Kind == TokenKind::Continuation) continue;
      const bool touches = token.Begin == end && end > 0 && !tokens.empty();
      end = token.Begin + token.Length;
      const std::string_view text(line.data() + token.Begin, token.Length);
      const SourcePlace at = PlaceIn(index_, walk_.Count(), token.Begin, token.Length);
      const SourceTokenKind kind = kKinds[static_cast<std::size_t>(token.Kind)];
      if (kind == SourceTokenKind::Text) {
        TakeText(text, token, {kind, touches, token.Unclosed, {}, at}, escapes, tokens);
      } else if (kind != SourceTokenKind::End) {
        tokens.push_back({kind, touches, false, text, at});
      } else if (counts_) {
        messages_.Error(at, "This character has no meaning here");
      }
    }
    const bool open = !lexed_.empty() && lexed_.back().Unclosed;
    if (open && counts_) {
      messages_.Note(tokens.back().At, "The closing quote is missing: the text ends with the line",
                     "Write the quote");
    }
    if (lines == 0 && !lexed_.empty()) rest_ = line.substr(lexed_[0].Begin + lexed_[0].Length);
    if (++lines == kMaxContinuedLines && state.Continued) {
      messages_.Error(PlaceIn(index_, walk_.Count(), 0, line.size()),
                      "The statement takes too many lines", "Split it into several statements");
      return;
    }
  } while (state.Continued && HasNext());
}

std::string_view LineReader::RestOfDirective() const {
  return Trim(rest_);
}

/// Adds a text with its value: without its quotes, with its escapes resolved. One that goes on from
/// the line above is joined to the part there.
void LineReader::TakeText(std::string_view text, const language::Token& token, SourceToken made,
                          bool escapes, std::vector<SourceToken>& tokens) {
  if (!token.FromAbove) text.remove_prefix(1);
  if (!token.Unclosed) text.remove_suffix(1);
  if (escapes && text.find('\\') != std::string_view::npos) text = memory_.Text(Unescaped(text));
  if (token.FromAbove && !tokens.empty() && tokens.back().Kind == SourceTokenKind::Text) {
    SourceToken& open = tokens.back();
    open.Text = memory_.Text(std::string(open.Text).append(text));
    open.Unclosed = token.Unclosed;
    return;
  }
  made.Text = text;
  tokens.push_back(made);
}

}  // namespace tarnwick::basic
