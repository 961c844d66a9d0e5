#include "basic/syntax/name_table.h"

#include <gtest/gtest.h>

namespace tarnwick::basic {
namespace {

TEST(NameTable, ANameHasOneNumberHoweverItIsWritten) {
  NameTable names;
  const NameId first = names.Of("Label1");
  EXPECT_EQ(names.Of("LABEL1"), first);
  EXPECT_NE(names.Of("Label2"), first);
  EXPECT_NE(names.Of("Label1$"), first);
}
TEST(NameTable, TheEmptyNameIsNone) {
  NameTable names;
  EXPECT_EQ(names.Of(""), NameId::None);
  EXPECT_EQ(WordOf(NameId::None), Word::None);
}
TEST(NameTable, TheWordsOfTheLanguageHaveTheFirstNumbers) {
  NameTable names;
  EXPECT_EQ(WordOf(names.Of("alias")), Word::Alias);
  EXPECT_EQ(WordOf(names.Of("Xor")), Word::Xor);
  EXPECT_EQ(WordOf(names.Of("DIM")), Word::Dim);
  EXPECT_EQ(WordOf(names.Of("Dimension")), Word::None);
}

}  // namespace
}  // namespace tarnwick::basic
