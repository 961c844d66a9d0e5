// Colours the code of the two code windows.
#pragma once

#include <QString>
#include <string>
#include <unordered_set>
#include <vector>

#include <Qsci/qscilexercustom.h>

#include "language/token.h"
#include "qt/kit/theme.h"
#include "text/code_page.h"

namespace tarnwick {

/// The language definition "Tarnwick": keywords of the support file in any letters, operators,
/// brackets, texts in quotes and comments from the apostrophe to the end of the line.
class CodeLexer final : public QsciLexerCustom {
  Q_OBJECT

 public:
  enum Style { Plain, Keyword, Operator, Scope, Text, Comment, Number };
  static constexpr int kStyles = 7;

  CodeLexer(const std::vector<std::string>& keywords, Theme theme, QObject* parent);

  /// The font of all styles; operators are bold in it.
  void SetFont(const QFont& font);
  void SetTheme(Theme theme);

  [[nodiscard]] const char* language() const override { return "Tarnwick"; }
  [[nodiscard]] QString description(int style) const override;
  void styleText(int start, int end) override;

 private:
  [[nodiscard]] Style StyleOf(const language::Token& token, std::string_view line) const;
  void StyleLine(int line, std::string_view text);

  std::unordered_set<std::string, FoldedHash, FoldedEqual> keywords_;
  /// What each line hands on to the next one; lines behind the last one styled are not there.
  std::vector<language::LineState> states_;
  std::vector<language::Token> tokens_;
};

}  // namespace tarnwick
