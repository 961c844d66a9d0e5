#include "qt/editor/code_lexer.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <Qsci/qsciscintilla.h>

#include "language/lexer.h"

namespace tarnwick {

namespace {

/// The signs that are operators, alone or together; all others are plain.
constexpr std::string_view kOperators = "=><+-/*";

using StyleColors = std::array<QColor, CodeLexer::kStyles>;

/// The colours of the definition, and readable ones of the same meaning on dark paper.
const StyleColors& ColorsOf(Theme theme) {
  static const StyleColors light{QColor(QRgb{0xFF000000}), QColor(QRgb{0xFF0000CA}),
                                 QColor(QRgb{0xFF0000CA}), QColor(QRgb{0xFF0000CA}),
                                 QColor(QRgb{0xFFA31515}), QColor(QRgb{0xFF2E7D32}),
                                 QColor(QRgb{0xFF7A3E9D})};
  static const StyleColors dark{QColor(QRgb{0xFFE4E9EB}), QColor(QRgb{0xFF82B1FF}),
                                QColor(QRgb{0xFF82B1FF}), QColor(QRgb{0xFF82B1FF}),
                                QColor(QRgb{0xFFF5A97F}), QColor(QRgb{0xFF8CC98F}),
                                QColor(QRgb{0xFFD0A8F0})};
  return theme == Theme::Dark ? dark : light;
}

}  // namespace

CodeLexer::CodeLexer(const std::vector<std::string>& keywords, Theme theme, QObject* parent)
    : QsciLexerCustom(parent), keywords_(keywords.begin(), keywords.end()) {
  SetTheme(theme);
}

void CodeLexer::SetTheme(Theme theme) {
  const QPalette palette = PaletteOf(theme);
  setDefaultPaper(palette.color(QPalette::Base));
  setDefaultColor(palette.color(QPalette::Text));
  for (int style = 0; style < kStyles; ++style) {
    setColor(ColorsOf(theme)[static_cast<std::size_t>(style)], style);
    setPaper(palette.color(QPalette::Base), style);
  }
}

void CodeLexer::SetFont(const QFont& font) {
  setDefaultFont(font);
  for (int style = 0; style < kStyles; ++style) {
    QFont of_style = font;
    of_style.setBold(style == Operator);
    setFont(of_style, style);
  }
}

QString CodeLexer::description(int style) const {
  static const std::array<const char*, kStyles> names{
      "Plain", "Keyword", "Operator", "Scope keyword", "Text", "Comment", "Number"};
  const bool known = style >= 0 && style < kStyles;
  return known ? QString::fromLatin1(names[static_cast<std::size_t>(style)]) : QString();
}

CodeLexer::Style CodeLexer::StyleOf(const language::Token& token, std::string_view line) const {
  using language::TokenKind;
  const std::string_view text = token.In(line);
  switch (token.Kind) {
    case TokenKind::Name:
    case TokenKind::Directive:
      return keywords_.contains(std::string(text)) ? Keyword : Plain;
    case TokenKind::Number:
      return Number;
    case TokenKind::Text:
      return Text;
    case TokenKind::Comment:
      return Comment;
    case TokenKind::Sign:
      if (text == "(" || text == ")") return Scope;
      return text.find_first_not_of(kOperators) == std::string_view::npos ? Operator : Plain;
    default:
      return Plain;
  }
}

void CodeLexer::StyleLine(int line, std::string_view text) {
  const auto number = static_cast<std::size_t>(line);
  states_.resize(number);
  const language::LineState before = number == 0 ? language::LineState{} : states_.back();
  states_.push_back(language::LexLine(text, before, tokens_));
  std::size_t done = 0;
  for (const language::Token& token : tokens_) {
    setStyling(static_cast<int>(token.Begin - done), Plain);
    setStyling(static_cast<int>(token.Length), StyleOf(token, text));
    done = token.Begin + token.Length;
  }
  setStyling(static_cast<int>(text.size() - done), Plain);
}

void CodeLexer::styleText(int start, int end) {
  const QsciScintilla* code = editor();
  if (code == nullptr) return;
  int line = static_cast<int>(code->SendScintilla(QsciScintilla::SCI_LINEFROMPOSITION, start));
  // A line is coloured by what the lines before it hand on.
  line = std::min(line, static_cast<int>(states_.size()));
  const int last = static_cast<int>(code->SendScintilla(QsciScintilla::SCI_LINEFROMPOSITION, end));
  startStyling(static_cast<int>(code->SendScintilla(QsciScintilla::SCI_POSITIONFROMLINE, line)));
  std::string bytes;
  for (; line <= last; ++line) {
    const long begin = code->SendScintilla(QsciScintilla::SCI_POSITIONFROMLINE, line);
    const long line_end = code->SendScintilla(QsciScintilla::SCI_GETLINEENDPOSITION, line);
    const long length = code->SendScintilla(QsciScintilla::SCI_LINELENGTH, line);
    bytes.resize(static_cast<std::size_t>(length) + 1);
    code->SendScintilla(QsciScintilla::SCI_GETLINE, static_cast<unsigned long>(line), bytes.data());
    StyleLine(line, std::string_view(bytes).substr(0, static_cast<std::size_t>(line_end - begin)));
    setStyling(static_cast<int>(length - (line_end - begin)), Plain);
  }
}

}  // namespace tarnwick
