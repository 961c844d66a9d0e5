#include "language/reserved_words.h"

#include <gtest/gtest.h>

namespace tarnwick::language {
namespace {

TEST(ReservedWords, StatementsTypesFunctionsAndObjectsAreReservedInAnyCase) {
  for (const char* word :
       {"PRINT", "print", "End", "Abs", "XOR", "QForm", "Clipboard", "Integer"}) {
    EXPECT_TRUE(IsReservedWord(word)) << word;
  }
}

TEST(ReservedWords, OtherNamesAreFree) {
  for (const char* word : {"", "Left", "Form", "Font", "Printe", "Prints", "A", "Zzz",
                           "\xDC"
                           "ber"}) {
    EXPECT_FALSE(IsReservedWord(word)) << word;
  }
}

TEST(ReservedWords, AnIdentifierBeginsWithALetterOrALine) {
  for (const char* name : {"a", "_", "A1_b",
                           "Stra\xDF"
                           "e"})
    EXPECT_TRUE(IsIdentifier(name)) << name;
  for (const char* name : {"", "1a", "a b", "a$", "a.b", "a(1)", "\xA0x", "a\"b"}) {
    EXPECT_FALSE(IsIdentifier(name)) << name;
  }
}

}  // namespace
}  // namespace tarnwick::language
