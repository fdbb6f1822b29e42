#include "text/LineEnds.h"

#include <gtest/gtest.h>

namespace mavCycEd::text {
namespace {

TEST(LineEnds, EveryLineEndBecomesCarriageReturnAndLineFeed) {
  EXPECT_EQ(toCrLf("a\nb"), "a\r\nb");
  EXPECT_EQ(toCrLf("a\rb"), "a\r\nb");
  EXPECT_EQ(toCrLf("a\r\nb"), "a\r\nb");
  EXPECT_EQ(toCrLf("\n"), "\r\n");
}

TEST(LineEnds, TypedOnesAreMore) {
  EXPECT_EQ(typedToCrLf("a\nb\rc\r\nd"), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(typedToCrLf("a\u2028b\u2029c"), "a\r\nb\r\nc");
  EXPECT_EQ(typedToCrLf("a\uFDD0b\uFDD1c"), "a\r\nb\r\nc");
  EXPECT_EQ(toCrLf("a\u2028b\u2029c\uFDD0d\uFDD1"), "a\u2028b\u2029c\uFDD0d\uFDD1");
}

TEST(LineEnds, TwoLineEndsStayTwo) {
  EXPECT_EQ(toCrLf("\n\r"), "\r\n\r\n");
  EXPECT_EQ(toCrLf("\r\r\n"), "\r\n\r\n");
  EXPECT_EQ(toCrLf("\r\n\n"), "\r\n\r\n");
  EXPECT_EQ(toCrLf("\r\n\r\n"), "\r\n\r\n");
}

TEST(LineEnds, OtherCharactersAreNoLineEnds) {
  for (const char* text : {"", "Größe µl", "\u2027\u202A", "\uFDD2\uFDCF", "\v\f", "\u0085", "\xE2\x80", "\xEF\xB7"}) {
    EXPECT_EQ(toCrLf(text), text);
    EXPECT_EQ(typedToCrLf(text), text);
  }
}

TEST(LineEnds, OneLineHasBlanksInTheirPlace) {
  EXPECT_EQ(onOneLine("a\r\nb\nc\rd"), "a b c d");
  EXPECT_EQ(onOneLine("\r\r\n\n"), "   ");
  EXPECT_EQ(onOneLine("a\u2028b\u2029c\uFDD0d\uFDD1e"), "a b c d e");
  EXPECT_EQ(onOneLine("\t\v\x1F\x7F\u0080\u009F"), "      ");
  EXPECT_EQ(onOneLine(std::string_view("\0", 1)), " ");
  for (const char* text : {"", " Größe µl ", "\u00A0\u2027\u202A", "\uFDD2\uFDCF", "~", "\xE2\x80", "\xFF"}) {
    EXPECT_EQ(onOneLine(text), text);
  }
}

TEST(LineEnds, CarriageReturnsBecomeLineFeeds) {
  EXPECT_EQ(toLf("a\r\nb\rc\nd"), "a\nb\nc\nd");
  EXPECT_EQ(toLf("\r\r\n"), "\n\n");
  EXPECT_EQ(toLf("\n\r"), "\n\n");
  EXPECT_EQ(toLf("a\u2028\u2029\uFDD0\u0085"), "a\u2028\u2029\uFDD0\u0085");
  EXPECT_EQ(toLf(""), "");
}

}  // namespace
}  // namespace mavCycEd::text
