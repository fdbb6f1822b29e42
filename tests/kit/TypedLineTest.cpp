#include "kit/TypedLine.h"

#include <gtest/gtest.h>

namespace mavCycEd::kit {
namespace {

// The cursor as "|" in the text.
TypedLine at(std::string text) {
  const std::size_t cursor = text.find('|');
  return {text.erase(cursor, 1), cursor};
}
std::string shown(TypedLine line) { return line.text.insert(line.cursor, "|"); }

TEST(TypedLine, WhatAPasteBringsAlongIsPutOnOneLine) {
  EXPECT_EQ(shown(onOneLine(at("1\r\n2\t3|4"))), "1 2 3|4");
  EXPECT_EQ(shown(onOneLine(at("|\r\n"))), "| ");
  EXPECT_EQ(shown(onOneLine(at("µ\u2028µ|"))), "µ µ|");
  EXPECT_EQ(shown(onOneLine(at("plain| text"))), "plain| text");
}

TEST(TypedLine, TypingGoesOnWhereACharacterHadToGo) {
  EXPECT_EQ(shown(rewritten(at("12;|34"), "1234")), "12|34");
  EXPECT_EQ(shown(rewritten(at("12a;b;|34"), "12ab34")), "12ab|34");
  EXPECT_EQ(shown(rewritten(at(";|"), "")), "|");
  EXPECT_EQ(shown(rewritten(at("µ;|µ"), "µµ")), "µ|µ");
  EXPECT_EQ(shown(rewritten(at("1|2"), "12")), "1|2") << "nothing had to go";
  EXPECT_EQ(shown(rewritten(at("|;1"), "1")), "|1");
}

TEST(TypedLine, TypingGoesOnBehindAnyOtherText) {
  EXPECT_EQ(shown(rewritten(at("1|2"), "345")), "345|");
  EXPECT_EQ(shown(rewritten(at("1|2"), "1x2")), "1x2|");
  EXPECT_EQ(shown(rewritten(at("12|"), "2")), "2|");
  EXPECT_EQ(shown(rewritten(at("|"), "new")), "new|");
}

TEST(TypedLine, ACursorNeverStandsInsideACharacter) {
  // "ä" and "å" begin with the same byte.
  EXPECT_EQ(shown(rewritten(at("ä|å"), "å")), "|å");
}

}  // namespace
}  // namespace mavCycEd::kit
