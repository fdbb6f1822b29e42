#include "text/Strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace mavCycEd::text {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Strings, AnEmptyTextHasNoPieces) {
  EXPECT_THAT(split("", ';'), IsEmpty());
  EXPECT_THAT(split("", "\r\n"), IsEmpty());
}

TEST(Strings, PiecesStandBetweenSeparators) {
  EXPECT_THAT(split("a", ';'), ElementsAre("a"));
  EXPECT_THAT(split("a;b;c", ';'), ElementsAre("a", "b", "c"));
  EXPECT_THAT(split(";", ';'), ElementsAre("", ""));
  EXPECT_THAT(split("a;;b;", ';'), ElementsAre("a", "", "b", ""));
}

TEST(Strings, ASeparatorOfSeveralCharactersSeparatesAsAWhole) {
  EXPECT_THAT(split("a\r\nb\rc\nd", "\r\n"), ElementsAre("a", "b\rc\nd"));
  EXPECT_THAT(split("a\r\n", "\r\n"), ElementsAre("a", ""));
  EXPECT_THAT(split("\r", "\r\n"), ElementsAre("\r"));
  EXPECT_THAT(split("---", "--"), ElementsAre("", "-"));
}

TEST(Strings, PiecesPointIntoTheText) {
  const std::string text = "Größe;µl";
  const auto pieces = split(text, ';');
  ASSERT_EQ(pieces.size(), 2U);
  EXPECT_EQ(pieces[0].data(), text.data());
  EXPECT_EQ(pieces[1].data() + pieces[1].size(), text.data() + text.size());
}

TEST(Strings, JoinedTextsHaveTheSeparatorBetweenThemOnly) {
  EXPECT_EQ(join({}, ";"), "");
  EXPECT_EQ(join({"a"}, ";"), "a");
  EXPECT_EQ(join({"a", "", "b"}, "\r\n"), "a\r\n\r\nb");
  EXPECT_EQ(join({"", ""}, ";"), ";");
}

TEST(Strings, EveryOccurrenceIsReplacedFromTheFirstCharacterOn) {
  EXPECT_EQ(replaceAll("a.b.c", ".", ", "), "a, b, c");
  EXPECT_EQ(replaceAll("///", "//", ""), "/");
  EXPECT_EQ(replaceAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(replaceAll("abc", "x", "y"), "abc");
  EXPECT_EQ(replaceAll("", "x", "y"), "");
}

TEST(Strings, WhatAReplacementPutsInIsNotReplacedAgain) {
  EXPECT_EQ(replaceAll("aa", "a", "aa"), "aaaa");
  EXPECT_EQ(replaceAll("&&", "&", "&amp;"), "&amp;&amp;");
}

TEST(Strings, CharactersAreTakenOutAsCharactersNotAsBytes) {
  EXPECT_EQ(withoutCharacters("Â,ÃaÄ,b", U",\u00C2\u00C3\u00C4"), "ab");
  EXPECT_EQ(withoutCharacters("µl °C Größe §", U",\u00C2\u00C3\u00C4"), "µl °C Größe §");
  EXPECT_EQ(withoutCharacters("abc", U""), "abc");
  EXPECT_EQ(withoutCharacters("", U"a"), "");
}

TEST(Strings, BytesThatAreNoUtf8AreNotTakenOut) {
  EXPECT_EQ(withoutCharacters("a\xC2,\xC3", U",\u00C2\u00C3\u00C4"), "a\xC2\xC3");
}

TEST(Strings, OnlySpacesAreTrimmed) {
  EXPECT_EQ(trimSpaces("  a b  "), "a b");
  EXPECT_EQ(trimSpaces("\ta\r\n"), "\ta\r\n");
  EXPECT_EQ(trimSpaces("   "), "");
  EXPECT_EQ(trimSpaces(""), "");
}

}  // namespace
}  // namespace mavCycEd::text
