#include "catalogue/CatalogueText.h"

#include <gtest/gtest.h>

#include "rules/ObjectTests.h"

namespace mavCycEd {
namespace {

TEST(ObjectName, HasCapitalsAndUnderscoresOnly) {
  for (const char* name : {"SYRINGE", "FREE_TEXT", "AB", "A_", "__", "ZZ"}) EXPECT_TRUE(isObjectName(name)) << name;
}

TEST(ObjectName, HasNoDigitsSmallLettersBlanksOrUmlauts) {
  for (const char* text : {"FREE_TEXT2", "Tray", "TRAy", "FREE TEXT", "TRÖGE", "A-B", "A;B", "1", "1.5", "A,B", "TRAY ",
                           "@A", "A[", "A`"}) {
    EXPECT_FALSE(isObjectName(text)) << text;
  }
}

TEST(ObjectName, HasMoreThanOneCharacter) {
  EXPECT_FALSE(isObjectName(""));
  EXPECT_FALSE(isObjectName("X"));
  EXPECT_FALSE(isObjectName("_"));
  EXPECT_FALSE(isObjectName("Ä")) << "one character, though two bytes";
}

TEST(CatalogueEntry, LosesCommasAndThreeLetters) {
  EXPECT_EQ(cleanedEntry("a,b,"), "ab");
  EXPECT_EQ(cleanedEntry("\u00C2\u00B5l"), "µl");
  EXPECT_EQ(cleanedEntry("xÂyÃzÄ"), "xyz");
  EXPECT_EQ(cleanedEntry(",Â"), "");
  EXPECT_EQ(cleanedEntry(""), "");
}

TEST(CatalogueEntry, KeepsAllOtherCharacters) {
  for (const char* text : {"µl", "°C", "Größe", "âãäÁÅÇ", "a b;c.d!?#", "€\u2028"}) EXPECT_EQ(cleanedEntry(text), text);
}

TEST(PickerName, HasNoExclamationMarks) {
  EXPECT_EQ(pickerName("!MIX!"), "MIX");
  EXPECT_EQ(pickerName("A!B"), "AB");
  EXPECT_EQ(pickerName("MIX #?,"), "MIX #?,");
  EXPECT_EQ(pickerName("!"), "");
}

TEST(ItIsObject, IsTrueForCapitalsAndUnderscores) {
  EXPECT_TRUE(ItIsObject("SYRINGE"));
  EXPECT_TRUE(ItIsObject("AB"));
  EXPECT_TRUE(ItIsObject("_A"));
}

TEST(ItIsObject, IsFalseForOneCapitalSmallLettersAndDigits) {
  for (const char* text : {"", "A", "_", "A1", "1", "Tray", "FREE TEXT", "ÖL", "1;2"})
    EXPECT_FALSE(ItIsObject(text)) << text;
}

TEST(ItIsObject, LooksAtTheCleanedText) {
  EXPECT_TRUE(ItIsObject("A,B"));
  EXPECT_TRUE(ItIsObject("TRÄAY"));
  EXPECT_FALSE(ItIsObject("A,"));
  EXPECT_FALSE(ItIsObject(",Â"));
}

TEST(IsAnObject, IsTrueForACallOfACapitalName) {
  for (const char* text : {"WASH(3)", "WASH()", "WASH(", "SELECT_VALVE(a(b", "__(1)"}) {
    EXPECT_TRUE(IsAnObject(text)) << text;
  }
}

TEST(IsAnObject, IsFalseWithoutSuchANameBeforeTheParenthesis) {
  for (const char* text : {"", "WASH", "(1)", "A(1)", "Wash(1)", "WASH (1)", "WASH2(1)", "a(WASH(1)"}) {
    EXPECT_FALSE(IsAnObject(text)) << text;
  }
}

TEST(IsAnObject, LooksAtTheTextAsItIs) {
  EXPECT_FALSE(IsAnObject("WA,SH(1)"));
  EXPECT_FALSE(IsAnObject("WÄSH(1)"));
}

}  // namespace
}  // namespace mavCycEd
