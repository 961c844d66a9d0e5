#include "language/lexer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "language/characters.h"
#include "text/code_page.h"

namespace tarnwick::language {
namespace {

/// Signs of more than one character, longest first.
constexpr std::array<std::string_view, 12> kLongSigns = {"...", "<=", ">=", "<>", "=<", "=>",
                                                         "><",  "++", "--", "+=", "-=", "##"};

/// Words that may touch the number in front of them. Any other name that begins with digits is one
/// word, since a SUB may be called "3DView".
constexpr std::array<std::string_view, 14> kWordsBehindNumbers = {
    "TO",  "THEN", "STEP", "AND", "OR",   "XOR",  "MOD",
    "INV", "SHL",  "SHR",  "DO",  "ELSE", "GOTO", "UNTIL"};

/// Words behind which a statement begins.
bool StartsStatement(std::string_view word) {
  if (word.size() != 4) return false;  // as nearly all
  return EqualsFolded(word, "THEN") || EqualsFolded(word, "ELSE");
}

class LineLexer {
 public:
  LineLexer(std::string_view line, LineState state, std::vector<Token>& tokens)
      : line_(line), state_(state), tokens_(tokens) {}

  LineState Run() {
    begins_statement_ = !state_.Continued && !state_.OpenText;
    const bool from_above = state_.OpenText;
    state_.OpenText = false;
    state_.Continued = false;
    if (from_above) LexText(true);
    while (at_ < line_.size()) {
      const char c = line_[at_];
      if (IsBlankByte(c)) {
        ++at_;
        continue;
      }
      const std::size_t begin = at_;
      const bool continued = c == '_' && EndsLine(at_ + 1);
      if (IsNameStart(c) && !continued) {
        LexName();
      } else if (continued) {
        ++at_;
        Add(TokenKind::Continuation, begin);
        state_.Continued = true;
      } else if (c == '\'') {
        at_ = line_.size();
        Add(TokenKind::Comment, begin);
      } else if (c == '"') {
        LexText(false);
      } else if (c == '$' && begins_statement_ && tokens_.empty() && StartsName(at_ + 1)) {
        ++at_;
        SkipName();
        Add(TokenKind::Directive, begin);
      } else if (StartsNumber()) {
        LexNumber();
      } else {
        LexSign();
      }
    }
    TakeEscapeChars();
    return state_;
  }

 private:
  void Add(TokenKind kind, std::size_t begin) {
    tokens_.push_back({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(at_ - begin),
                       kind, false, false});
  }
  [[nodiscard]] char Peek(std::size_t ahead) const {
    return at_ + ahead < line_.size() ? line_[at_ + ahead] : '\0';
  }
  [[nodiscard]] bool StartsName(std::size_t at) const {
    return at < line_.size() && IsNameStart(line_[at]);
  }
  void SkipName() {
    std::size_t at = at_;
    while (at < line_.size() && IsNameByte(line_[at])) ++at;
    at_ = at;
  }
  /// True when only blanks or a comment stand from `at` on.
  [[nodiscard]] bool EndsLine(std::size_t at) const {
    while (at < line_.size() && IsBlankByte(line_[at])) ++at;
    return at == line_.size() || line_[at] == '\'';
  }
  /// True when a statement may begin behind the last token.
  [[nodiscard]] bool StatementMayBegin() const {
    if (tokens_.empty()) return begins_statement_;
    const Token& last = tokens_.back();
    if (last.Kind == TokenKind::Sign) return line_[last.Begin] == ':';
    if (last.Kind == TokenKind::Name) return StartsStatement(last.In(line_));
    // A line number.
    return last.Kind == TokenKind::Number && begins_statement_ && tokens_.size() == 1;
  }

  void LexText(bool from_above) {
    const std::size_t begin = at_;
    if (!from_above) ++at_;
    bool closed = false;
    while (at_ < line_.size() && !closed) {
      if (line_[at_] == '\\' && state_.EscapeChars && at_ + 1 < line_.size()) {
        at_ += 2;
        continue;
      }
      closed = line_[at_] == '"';
      ++at_;
    }
    Add(TokenKind::Text, begin);
    Token& text = tokens_.back();
    text.FromAbove = from_above;
    text.Unclosed = !closed;
    if (closed) return;
    const std::size_t last = line_.find_last_not_of(" \t");
    const bool goes_on = last != std::string_view::npos && line_[last] == '_' &&
                         (last > begin || (from_above && last == begin));
    if (!goes_on) return;
    text.Length = static_cast<std::uint32_t>(last - begin);
    at_ = last + 1;
    Add(TokenKind::Continuation, last);
    at_ = line_.size();
    state_.OpenText = true;
    state_.Continued = true;
  }

  void LexName() {
    const std::size_t begin = at_;
    SkipName();
    const std::string_view word = line_.substr(begin, at_ - begin);
    if (word.size() == 3 && EqualsFolded(word, "REM") && StatementMayBegin()) {
      at_ = line_.size();
      Add(TokenKind::Comment, begin);
      return;
    }
    if (word.size() == 5 && EqualsFolded(word, "PRINT") && StatementMayBegin()) {
      Add(TokenKind::Name, begin);  // PRINT#1 and PRINT"a"
      return;
    }
    TakeSuffix();
    Add(TokenKind::Name, begin);
  }

  void TakeSuffix() {
    switch (Peek(0)) {
      case '$':
      case '%':
      case '!':
        ++at_;
        break;
      case '#':
        if (Peek(1) != '#') ++at_;  // "##" pastes in a macro
        break;
      case '&':
        // Joins, when an operand follows without a blank.
        if (!IsNameByte(Peek(1)) && Peek(1) != '"') ++at_;
        break;
      case '?':
        for (int i = 0; i < 3 && Peek(0) == '?'; ++i) ++at_;
        break;
      default:
        break;
    }
  }

  [[nodiscard]] bool StartsNumber() const {
    const char c = Peek(0);
    if (IsDigit(c)) return true;
    if (c == '.') return IsDigit(Peek(1)) && !BehindOperand();
    if (c != '&') return false;
    const char radix = LowerByte(Peek(1));
    if (radix == 'h') return DigitValue(Peek(2)) < 16 || Peek(2) == '&';
    if (radix == 'b') return DigitValue(Peek(2)) < 2;
    if (radix == 'o') return DigitValue(Peek(2)) < 8;
    return false;
  }
  /// True when the token in front touches this place and is an operand, as in `a(1).5`.
  [[nodiscard]] bool BehindOperand() const {
    if (tokens_.empty()) return false;
    const Token& last = tokens_.back();
    if (last.Begin + last.Length != at_) return false;
    const std::string_view text = last.In(line_);
    return last.Kind == TokenKind::Name || text == ")" || text == "]";
  }

  void LexNumber() {
    const std::size_t begin = at_;
    if (Peek(0) == '&') {
      LexRadixNumber();
    } else {
      while (IsDigit(Peek(0))) ++at_;
      if (Peek(0) == '.' && !StartsName(at_ + 1)) {
        ++at_;
        while (IsDigit(Peek(0))) ++at_;
      }
      const char exponent = LowerByte(Peek(0));
      const std::size_t sign = Peek(1) == '+' || Peek(1) == '-' ? 2 : 1;
      if ((exponent == 'e' || exponent == 'd') && IsDigit(Peek(sign))) {
        at_ += sign;
        while (IsDigit(Peek(0))) ++at_;
      }
      if (IsNameStart(Peek(0)) && TakeDigitName(begin)) return;
    }
    if (Peek(0) == '&' ? !IsNameByte(Peek(1)) && Peek(1) != '"'
                       : Peek(0) == '%' || Peek(0) == '!' || (Peek(0) == '#' && Peek(1) != '#')) {
      ++at_;
    }
    Add(TokenKind::Number, begin);
  }
  void LexRadixNumber() {
    // "&H&H12" is written for "&H12" now and then.
    while (Peek(0) == '&' && LowerByte(Peek(1)) == 'h' && Peek(2) == '&') at_ += 2;
    const char radix = LowerByte(Peek(1));
    const int base = radix == 'h' ? 16 : radix == 'b' ? 2 : 8;
    at_ = std::min(at_ + 2, line_.size());
    while (DigitValue(Peek(0)) < base) ++at_;
  }
  /// Takes the word behind a number as one name with it, unless it is a word of its own.
  bool TakeDigitName(std::size_t begin) {
    const std::size_t digits_end = at_;
    SkipName();
    const std::string_view word = line_.substr(digits_end, at_ - digits_end);
    const std::string_view number = line_.substr(begin, digits_end - begin);
    const bool apart =
        number.find('.') != std::string_view::npos || word == "_" ||
        std::any_of(kWordsBehindNumbers.begin(), kWordsBehindNumbers.end(),
                    [word](std::string_view known) { return EqualsFolded(word, known); });
    if (apart) {
      at_ = digits_end;
      return false;
    }
    TakeSuffix();
    Add(TokenKind::Name, begin);
    return true;
  }

  void LexSign() {
    const std::size_t begin = at_;
    const std::string_view rest = line_.substr(at_);
    const bool longer = IsSignByte(Peek(0)) && IsSignByte(Peek(1));
    for (const std::string_view sign : kLongSigns) {
      if (!longer) break;
      if (rest.substr(0, sign.size()) == sign) {
        at_ += sign.size();
        Add(TokenKind::Sign, begin);
        return;
      }
    }
    ++at_;
    Add(IsSignByte(line_[begin]) ? TokenKind::Sign : TokenKind::Unknown, begin);
  }

  void TakeEscapeChars() {
    if (tokens_.size() < 2 || tokens_[0].Kind != TokenKind::Directive) return;
    if (!EqualsFolded(tokens_[0].In(line_), "$ESCAPECHARS")) return;
    const std::string_view word = tokens_[1].In(line_);
    if (EqualsFolded(word, "ON")) state_.EscapeChars = true;
    if (EqualsFolded(word, "OFF")) state_.EscapeChars = false;
  }

  std::string_view line_;
  LineState state_;
  std::vector<Token>& tokens_;
  std::size_t at_ = 0;
  bool begins_statement_ = false;  ///< the line does
};

}  // namespace

LineState LexLine(std::string_view line, LineState state, std::vector<Token>& tokens) {
  tokens.clear();
  return LineLexer(line, state, tokens).Run();
}

}  // namespace tarnwick::language
