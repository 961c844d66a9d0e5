// Colours and settings of the code windows' editing widget.
#include "qt/editor/code_lexer.h"

#include <QTest>
#include <string>

#include <gtest/gtest.h>

#include "editor/editor_project.h"
#include "qt/editor/code_edit.h"
#include "qt/kit/theme.h"

namespace tarnwick {
namespace {

class CodeColours : public testing::Test {
 protected:
  CodeColours() {
    window_.resize(500, 300);
    code_ = new CodeEdit(QStringLiteral("Editor"), {"PRINT", "If", "then"}, lookup_, "Courier New",
                         &window_);
    code_->setGeometry(0, 0, 500, 280);
    window_.show();
  }
  /// A letter for the style of each character of the first line: "." plain, "k" keyword, "o"
  /// operator, "s" scope keyword, "t" text, "c" comment, "n" number.
  std::string StylesOf(std::string_view line) {
    code_->SetText(line);
    code_->SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
    std::string styles;
    for (std::size_t i = 0; i < line.size(); ++i) {
      styles += ".kostcn"[code_->SendScintilla(QsciScintilla::SCI_GETSTYLEAT, i) % 7];
    }
    return styles;
  }
  [[nodiscard]] QColor ColorOf(int style) const { return code_->lexer()->color(style); }

  test::EditorProject project_;
  editor::MemberLookup lookup_{project_.Tables, project_.Language, editor::kFixedWordsOfCode};
  QWidget window_;
  CodeEdit* code_ = nullptr;
};

TEST_F(CodeColours, AKeywordIsColouredInAnyLetters) {
  EXPECT_EQ(StylesOf("print PRINT Print printer"), "kkkkk.kkkkk.kkkkk........");
  EXPECT_EQ(StylesOf("IF a THEN"), "kk...kkkk");
}

TEST_F(CodeColours, AnApostropheStartsACommentAlsoInsideAWord) {
  EXPECT_EQ(StylesOf("ab'print"), "..cccccc");
}

TEST_F(CodeColours, SlashAndAsteriskAreOperatorsAndNoComment) {
  EXPECT_EQ(StylesOf("/* a */"), "oo...oo");
  EXPECT_EQ(StylesOf("a=b<c>d+e-f<=>g"), ".o.o.o.o.o.ooo.");
  EXPECT_EQ(StylesOf("a,b;c:d&e.f"), "...........");
}

TEST_F(CodeColours, BracketsAreScopeKeywordsAndTextsStandInQuotes) {
  EXPECT_EQ(StylesOf("a(\"x'y\",12)"), ".sttttt.nns");
}

TEST_F(CodeColours, AnOpenTextEndsWithItsLine) {
  EXPECT_EQ(StylesOf("a = \"open"), "..o.ttttt");
  code_->SetText("a = \"open\r\nprint");
  code_->SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
  EXPECT_EQ(code_->SendScintilla(QsciScintilla::SCI_GETSTYLEAT, 11UL), CodeLexer::Keyword);
}

TEST_F(CodeColours, AnEditAboveColoursTheLinesBelow) {
  code_->SetText("a\r\nprint");
  code_->SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
  code_->SetSel({0, 0, 0, 0});
  code_->SetSelText("b\r\n");
  code_->SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
  EXPECT_EQ(code_->SendScintilla(QsciScintilla::SCI_GETSTYLEAT, 6UL), CodeLexer::Keyword);
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
