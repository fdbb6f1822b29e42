#include "text/CaseFold.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

namespace mavCycEd::text {
namespace {

struct Pair {
  char32_t a;
  char32_t b;
};

void expectSameLetter(std::initializer_list<Pair> pairs) {
  for (const Pair& pair : pairs) {
    EXPECT_EQ(foldCase(pair.a), foldCase(pair.b))
        << std::hex << static_cast<unsigned>(pair.a) << ' ' << static_cast<unsigned>(pair.b);
  }
}

void expectDifferent(std::initializer_list<Pair> pairs) {
  for (const Pair& pair : pairs) {
    EXPECT_NE(foldCase(pair.a), foldCase(pair.b))
        << std::hex << static_cast<unsigned>(pair.a) << ' ' << static_cast<unsigned>(pair.b);
  }
}

TEST(CaseFold, LatinLettersOfBothCasesAreTheSame) {
  for (char32_t letter = U'A'; letter <= U'Z'; ++letter) EXPECT_EQ(foldCase(letter), foldCase(letter + 32));
  expectSameLetter({{U'Ä', U'ä'},
                    {U'Ö', U'ö'},
                    {U'Ü', U'ü'},
                    {U'À', U'à'},
                    {U'Þ', U'þ'},
                    {U'Ç', U'ç'},
                    {U'Ÿ', U'ÿ'},
                    {U'Ł', U'ł'},
                    {U'Ő', U'ő'},
                    {U'Ž', U'ž'},
                    {U'Œ', U'œ'},
                    {U'Ș', U'ș'},
                    {U'Ế', U'ế'},
                    {U'\u1E9E', U'ß'},
                    {U'\u0189', U'\u0256'},
                    {U'\u2C6F', U'\u0250'}});
}

TEST(CaseFold, LettersWithThreeFormsAreTheSame) {
  expectSameLetter({{U'\u01C4', U'\u01C6'},
                    {U'\u01C5', U'\u01C6'},
                    {U'\u017F', U's'},
                    {U'\u212A', U'k'},
                    {U'\u212B', U'å'},
                    {U'\u1E9B', U'\u1E61'}});
}

TEST(CaseFold, GreekLettersOfBothCasesAreTheSame) {
  expectSameLetter({{U'Α', U'α'},
                    {U'Ω', U'ω'},
                    {U'Σ', U'σ'},
                    {U'Σ', U'ς'},
                    {U'Ά', U'ά'},
                    {U'Ώ', U'ώ'},
                    {U'\u03D0', U'β'},
                    {U'\u03D1', U'Θ'},
                    {U'\u03F5', U'Ε'},
                    {U'\u2126', U'ω'},
                    {U'\u1F08', U'\u1F00'},
                    {U'\u1F88', U'\u1F80'},
                    {U'\u1FBE', U'ι'}});
}

TEST(CaseFold, TheMicroSignIsTheLetterMu) { expectSameLetter({{U'\u00B5', U'\u03BC'}, {U'\u00B5', U'\u039C'}}); }

TEST(CaseFold, CyrillicLettersOfBothCasesAreTheSame) {
  for (char32_t letter = U'А'; letter <= U'Я'; ++letter) EXPECT_EQ(foldCase(letter), foldCase(letter + 32));
  expectSameLetter({{U'Ё', U'ё'},
                    {U'Ђ', U'ђ'},
                    {U'Џ', U'џ'},
                    {U'Ґ', U'ґ'},
                    {U'Ѣ', U'ѣ'},
                    {U'\u04C0', U'\u04CF'},
                    {U'\u04C1', U'\u04C2'},
                    {U'\u0500', U'\u0501'}});
}

TEST(CaseFold, LettersOfOldScriptsOfBothCasesAreTheSame) {
  expectSameLetter({{U'\uA722', U'\uA723'},
                    {U'\uA7A0', U'\uA7A1'},
                    {U'\uA78D', U'\u0265'},
                    {U'\uA640', U'\uA641'},
                    {U'\uA698', U'\uA699'},
                    {U'\u1C80', U'в'}});
}

TEST(CaseFold, DifferentLettersStayDifferent) {
  expectDifferent({{U'a', U'b'},
                   {U'a', U'ä'},
                   {U'ß', U's'},
                   {U'i', U'\u0131'},
                   {U'i', U'\u0130'},
                   {U'a', U'а'},
                   {U'o', U'ο'},
                   {U'Ā', U'Ă'}});
}

TEST(CaseFold, SignsThatLieLikeLettersAreNoLetters) {
  expectDifferent({{U'×', U'÷'}, {U'@', U'`'}, {U'[', U'{'}, {U'\\', U'|'}, {U']', U'}'}, {U'_', U'\x7F'}});
  for (const char32_t sign : U"0159 _-.,;!#?°€×÷ªº") EXPECT_EQ(foldCase(sign), sign);
}

TEST(CaseFold, FoldingTwiceIsFoldingOnce) {
  for (char32_t character = 0; character <= 0xFFFF; ++character) {
    ASSERT_EQ(foldCase(foldCase(character)), foldCase(character)) << std::hex << static_cast<unsigned>(character);
  }
}

TEST(CaseFold, TextsAreComparedWithoutRegardToCase) {
  EXPECT_TRUE(equalsIgnoringCase("", ""));
  EXPECT_TRUE(equalsIgnoringCase("Tray", "TRAY"));
  EXPECT_TRUE(equalsIgnoringCase("größe", "GRÖ\u1E9EE"));
  EXPECT_TRUE(equalsIgnoringCase("Лоток", "ЛОТОК"));
  EXPECT_TRUE(equalsIgnoringCase("ΔΊΣΚΟΣ", "δίσκος"));
  EXPECT_TRUE(equalsIgnoringCase("10 \u00B5l", "10 \u03BCL"));
  EXPECT_TRUE(equalsIgnoringCase("\u212A", "k")) << "the forms may differ in their number of bytes";
}

TEST(CaseFold, TextsThatDifferInMoreThanCaseAreDifferent) {
  EXPECT_FALSE(equalsIgnoringCase("Tray", "Tray "));
  EXPECT_FALSE(equalsIgnoringCase("Tray", "Tra"));
  EXPECT_FALSE(equalsIgnoringCase("größe", "GRÖSSE"));
  EXPECT_FALSE(equalsIgnoringCase("", "a"));
}

TEST(CaseFold, BytesThatAreNoUtf8StayAsTheyAre) {
  EXPECT_EQ(foldCase("A\xFF\xC3"), "a\xFF\xC3");
  EXPECT_TRUE(equalsIgnoringCase("A\xFF", "a\xFF"));
  EXPECT_FALSE(equalsIgnoringCase("\xFF", "\xFE"));
  EXPECT_FALSE(equalsIgnoringCase("\xFF", "\xEF\xBF\xBD"));
}

TEST(CaseFold, AFoldedTextKeepsEverythingThatIsNoLetter) { EXPECT_EQ(foldCase("SYR_01; ÄÖÜ µ"), "syr_01; äöü \u03BC"); }

}  // namespace
}  // namespace mavCycEd::text
