#include "kit/CaretPlace.h"

#include <gtest/gtest.h>

namespace mavCycEd::kit {
namespace {

TEST(CaretPlace, IsBehindWhatCame) {
  EXPECT_EQ(caretBehindChange("one three", "one two three"), 9U) << "the t may be either one";
  EXPECT_EQ(caretBehindChange("one", "one two"), 7U);
  EXPECT_EQ(caretBehindChange("two", "one two"), 4U);
  EXPECT_EQ(caretBehindChange("one two three", "one 2 three"), 5U);
}

TEST(CaretPlace, IsWhereSomethingWent) {
  EXPECT_EQ(caretBehindChange("one two three", "one three"), 5U);
  EXPECT_EQ(caretBehindChange("one two", "one"), 3U);
  EXPECT_EQ(caretBehindChange("one two", "two"), 0U);
  EXPECT_EQ(caretBehindChange("aaa", "aa"), 2U);
  EXPECT_EQ(caretBehindChange("one", ""), 0U);
}

TEST(CaretPlace, OfAnotherTextIsItsStart) {
  EXPECT_EQ(caretBehindChange("", "a new description"), 0U);
  EXPECT_EQ(caretBehindChange("abc", "xyz"), 0U);
}

TEST(CaretPlace, IsNotInsideOfACharacter) {
  // ä and ö begin with the same byte; é and ĩ end with it.
  EXPECT_EQ(caretBehindChange("x\u00E4", "x\u00F6"), 3U);
  EXPECT_EQ(caretBehindChange("\u00E9x", "\u0129x"), 2U);
  EXPECT_EQ(caretBehindChange("a\u00E9b", "a\u0129b"), 3U);
  EXPECT_EQ(caretBehindChange("\u00E4", "\u00F6"), 0U);
}

TEST(CaretPlace, IsNotInsideOfALineEnd) {
  EXPECT_EQ(caretBehindChange("a\r\nb", "a\r\n\r\nb"), 5U);
  EXPECT_EQ(caretBehindChange("a\r\n\r\nb", "a\r\nb"), 3U);
  EXPECT_EQ(caretBehindChange("a\rb", "a\r\nb"), 3U);
}

TEST(CaretPlace, StaysAtTheEndOfTheSameText) { EXPECT_EQ(caretBehindChange("same", "same"), 4U); }

}  // namespace
}  // namespace mavCycEd::kit
