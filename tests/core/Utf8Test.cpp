#include "text/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace mavCycEd::text {
namespace {

/// Byte sequences that only look like UTF-8.
constexpr std::string_view notUtf8[] = {
    "\x80",              // a continuation byte alone
    "\xBF",              //
    "\xC3",              // cut short
    "\xE2\x82",          //
    "\xF0\x9F\xA7",      //
    "\xC0\x80",          // longer than needed: U+0000
    "\xC1\xBF",          // U+007F
    "\xE0\x80\x80",      // U+0000
    "\xE0\x9F\xBF",      // U+07FF
    "\xF0\x8F\xBF\xBF",  // U+FFFF
    "\xED\xA0\x80",      // surrogates
    "\xED\xBF\xBF",      //
    "\xF4\x90\x80\x80",  // beyond U+10FFFF
    "\xF5\x80\x80\x80",  //
    "\xF8\x88\x80\x80",  // no first byte at all
    "\xFE",
    "\xFF",       //
    "\xC3(",      // no continuation byte behind
    "\xE2\x82(",  //
};

TEST(Utf8, ACharacterHasOneToFourBytes) {
  EXPECT_EQ(firstCharacterSize("abc"), 1U);
  EXPECT_EQ(firstCharacterSize("µl"), 2U);
  EXPECT_EQ(firstCharacterSize("€5"), 3U);
  EXPECT_EQ(firstCharacterSize("\xF0\x9F\xA7\xAAx"), 4U);
  EXPECT_EQ(firstCharacterSize(""), 0U);
}

TEST(Utf8, TheFirstCharacterIsACodePoint) {
  EXPECT_EQ(firstCharacter("abc"), U'a');
  EXPECT_EQ(firstCharacter("µl"), U'\u00B5');
  EXPECT_EQ(firstCharacter("€5"), U'\u20AC');
  EXPECT_EQ(firstCharacter("\xF0\x9F\xA7\xAAx"), U'\U0001F9EA');
  EXPECT_EQ(firstCharacter(std::string_view("\0x", 2)), U'\0');
  EXPECT_EQ(firstCharacter(""), U'\0');
}

TEST(Utf8, TheEdgesOfEveryLengthAreCharacters) {
  for (const std::string_view edge : {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                                      "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(isUtf8(edge));
    EXPECT_EQ(firstCharacterSize(edge), edge.size());
    EXPECT_EQ(characterCount(edge), 1U);
  }
}

TEST(Utf8, AByteThatIsNoUtf8CountsAsOneCharacter) {
  for (const std::string_view bytes : notUtf8) {
    EXPECT_EQ(firstCharacterSize(bytes), 1U);
    EXPECT_EQ(firstCharacter(bytes), U'\uFFFD');
    EXPECT_EQ(characterCount(bytes), bytes.size());
  }
}

TEST(Utf8, BytesThatAreNoUtf8AreToldFromUtf8) {
  EXPECT_TRUE(isUtf8(""));
  EXPECT_TRUE(isUtf8("Größe in µl, °C, € und \xF0\x9F\xA7\xAA"));
  for (const std::string_view bytes : notUtf8) {
    EXPECT_FALSE(isUtf8(bytes));
    EXPECT_FALSE(isUtf8("a" + std::string(bytes)));
    EXPECT_FALSE(isUtf8(std::string(bytes) + "a"));
  }
}

TEST(Utf8, CharactersAreCountedNotBytes) {
  EXPECT_EQ(characterCount(""), 0U);
  EXPECT_EQ(characterCount("Größe"), 5U);
  EXPECT_EQ(characterCount("a\xCC\x88"), 2U) << "a combining mark is a character of its own";
  EXPECT_EQ(characterCount("\xFF"
                           "a\xC3"),
            3U);
}

TEST(Utf8, ATextIsLongerThanItsNumberOfCharactersOnlyWithOneMore) {
  EXPECT_FALSE(hasMoreCharactersThan("", 0));
  EXPECT_TRUE(hasMoreCharactersThan("µ", 0));
  EXPECT_FALSE(hasMoreCharactersThan("µµµ", 3));
  EXPECT_TRUE(hasMoreCharactersThan("µµµµ", 3));
  EXPECT_FALSE(hasMoreCharactersThan("abc", 4));
}

TEST(Utf8, CuttingTheLastCharacterLeavesWholeCharacters) {
  EXPECT_EQ(withoutLastCharacter("ab"), "a");
  EXPECT_EQ(withoutLastCharacter("aµ"), "a");
  EXPECT_EQ(withoutLastCharacter("µ€"), "µ");
  EXPECT_EQ(withoutLastCharacter("a\xF0\x9F\xA7\xAA"), "a");
  EXPECT_EQ(withoutLastCharacter("a"), "");
  EXPECT_EQ(withoutLastCharacter(""), "");
}

TEST(Utf8, CuttingTheLastByteThatIsNoUtf8LeavesTheOthers) {
  EXPECT_EQ(withoutLastCharacter("a\xFF"), "a");
  EXPECT_EQ(withoutLastCharacter("a\xE2\x82"), "a\xE2");
  EXPECT_EQ(withoutLastCharacter("ä\xA4"), "ä");
  EXPECT_EQ(withoutLastCharacter("\x80\x80"), "\x80");
  EXPECT_EQ(withoutLastCharacter("a\xED\xA0\x80"), "a\xED\xA0");
  EXPECT_EQ(withoutLastCharacter("\x80\x80\x80\x80\x80"), "\x80\x80\x80\x80");
}

TEST(Utf8, AppendedCodePointsMakeUtf8) {
  std::string text = "x";
  for (const char32_t character : U"aµ€\U0001F9EA") {
    if (character != 0) append(text, character);
  }
  EXPECT_EQ(text, "xaµ€\xF0\x9F\xA7\xAA");
}

}  // namespace
}  // namespace mavCycEd::text
