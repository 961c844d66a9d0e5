#include "qt/kit/text_bridge.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(TextBridge, EveryByteComesBack) {
  std::string all;
  for (int i = 1; i < 256; ++i) all.push_back(static_cast<char>(i));
  EXPECT_EQ(FromQString(ToQString(all)), all);
}

TEST(TextBridge, TheCodePagesOwnLettersAreNotThoseOfLatin1) {
  EXPECT_EQ(ToQString("\x80\x95\x8D"), QStringLiteral("\u20AC\u2022\u008D"));
}

TEST(TextBridge, WhatThePageLacksIsAQuestionMarkOnceForEachCharacter) {
  EXPECT_EQ(FromQString(QStringLiteral("a\u0416b")), "a?b");
  EXPECT_EQ(FromQString(QString::fromUcs4(U"x\U0001F600y")), "x?y");
}

TEST(TextBridge, AFieldShowsTheQuestionMarkWhereItIsPasted) {
  QLineEdit field;
  KeepInCodePage(field);
  field.insert(QStringLiteral("caf\u00E9 \u4E2D"));
  EXPECT_EQ(field.text(), QStringLiteral("caf\u00E9 ?"));
  field.setCursorPosition(0);
  field.insert(QString::fromUcs4(U"\U0001F600"));
  EXPECT_EQ(field.text(), QStringLiteral("?caf\u00E9 ?"));
  EXPECT_EQ(field.cursorPosition(), 1);
}

}  // namespace
}  // namespace tarnwick
