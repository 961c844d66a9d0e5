// Colours and settings of the code windows' editing widget.
#include "qt/editor/code_lexer.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "qt/code_edit_window.h"
#include "qt/kit/theme.h"

namespace tarnwick {
namespace {

class CodeColours : public CodeEditWindow {
 protected:
  CodeColours() : CodeEditWindow({"PRINT", "If", "then"}) {}
  void Colour(std::string_view text) {
    code_->SetText(text);
    code_->SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
  }
  long StyleAt(std::size_t place) {
    return code_->SendScintilla(QsciScintilla::SCI_GETSTYLEAT, place);
  }
  [[nodiscard]] QColor ColorOf(int style) const { return code_->lexer()->color(style); }
};

/// A line and a letter for the style of each of its characters: "." plain, "k" keyword, "o"
/// operator, "s" scope keyword, "t" text, "c" comment, "n" number.
struct ColouredLine {
  const char* Name;
  std::string_view Line;
  std::string_view Styles;
};
constexpr ColouredLine kColouredLines[] = {
    {"AKeywordInAnyLetters", "print PRINT Print printer", "kkkkk.kkkkk.kkkkk........"},
    {"AKeywordThatTheFileSpellsInSmallLetters", "IF a THEN", "kk...kkkk"},
    {"AnApostropheStartsACommentAlsoInsideAWord", "ab'print", "..cccccc"},
    {"SlashAndAsteriskAreOperatorsAndNoComment", "/* a */", "oo...oo"},
    {"AllOperators", "a=b<c>d+e-f<=>g++--", ".o.o.o.o.o.ooo.oooo"},
    {"OtherSignsArePlain", "a,b;c:d&e.f", "..........."},
    {"BracketsAreScopeKeywords", "a(b)", ".s.s"},
    {"AnApostropheWithinATextIsText", "a(\"x'y\",12)", ".sttttt.nns"},
    {"AnOpenText", "a = \"open", "..o.ttttt"},
};

class ColouredLines : public CodeColours, public testing::WithParamInterface<ColouredLine> {};

TEST_P(ColouredLines, HaveTheStyles) {
  Colour(GetParam().Line);
  std::string styles;
  for (std::size_t i = 0; i < GetParam().Line.size(); ++i) styles += ".kostcn"[StyleAt(i) % 7];
  EXPECT_EQ(styles, GetParam().Styles);
}

INSTANTIATE_TEST_SUITE_P(Cases, ColouredLines, testing::ValuesIn(kColouredLines),
                         [](const auto& tested) { return std::string(tested.param.Name); });

TEST_F(CodeColours, AnOpenTextEndsWithItsLine) {
  Colour("a = \"open\r\nprint");
  EXPECT_EQ(StyleAt(11), CodeLexer::Keyword);
}

TEST_F(CodeColours, AnEditAboveColoursTheLinesBelow) {
  Colour("a\r\nprint");
  code_->SetSel({0, 0, 0, 0});
  code_->SetSelText("b\r\n");
  code_->SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
  EXPECT_EQ(StyleAt(6), CodeLexer::Keyword);
}

TEST_F(CodeColours, TheColoursAreThoseOfTheDefinition) {
  EXPECT_EQ(ColorOf(CodeLexer::Keyword), QColor(0, 0, 0xCA));
  EXPECT_EQ(ColorOf(CodeLexer::Operator), QColor(0, 0, 0xCA));
  EXPECT_EQ(ColorOf(CodeLexer::Scope), QColor(0, 0, 0xCA));
  EXPECT_TRUE(code_->lexer()->font(CodeLexer::Operator).bold());
  EXPECT_FALSE(code_->lexer()->font(CodeLexer::Keyword).bold());
  EXPECT_STREQ(code_->lexer()->language(), "Tarnwick");
  const long line_number = QsciScintilla::STYLE_LINENUMBER;
  const auto style = static_cast<unsigned long>(line_number);
  EXPECT_EQ(code_->SendScintilla(QsciScintilla::SCI_STYLEGETBACK, style), 0x999999);
  EXPECT_EQ(code_->SendScintilla(QsciScintilla::SCI_STYLEGETFORE, style), 0xDDDDDD);
  EXPECT_GT(code_->marginWidth(0), 0);
}

TEST_F(CodeColours, OnDarkPaperTheColoursStayReadable) {
  const QPalette before = code_->palette();
  code_->setPalette(PaletteOf(Theme::Dark));
  const QColor paper = code_->lexer()->paper(CodeLexer::Plain);
  EXPECT_LT(paper.lightness(), 60);
  for (int style = 0; style < CodeLexer::kStyles; ++style) {
    EXPECT_GT(ColorOf(style).lightness() - paper.lightness(), 90) << style;
  }
  EXPECT_EQ(ColorOf(CodeLexer::Keyword), ColorOf(CodeLexer::Operator));
  code_->setPalette(before);
  EXPECT_EQ(ColorOf(CodeLexer::Keyword), QColor(0, 0, 0xCA));
}

TEST_F(CodeColours, TheLineMarkFollowsTheEndOfTheSelection) {
  EXPECT_EQ(code_->SendScintilla(QsciScintilla::SCI_GETCARETLINEVISIBLE), 1);
  EXPECT_EQ(code_->SendScintilla(QsciScintilla::SCI_GETCARETLINEVISIBLEALWAYS), 1);
}

}  // namespace
}  // namespace tarnwick
