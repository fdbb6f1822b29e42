#include "qt/Text.h"

#include <gtest/gtest.h>

#include <string>

namespace mavCycEd::test {
namespace {

using namespace std::string_literals;

TEST(Text, EveryCharacterComesBackFromAWidgetsText) {
  for (const std::string& text :
       {""s, "\uFEFF"s, "\uFEFFfirst"s, "\uFEFF\uFEFFtwice"s, "in\uFEFFside"s, "\0"s, "a\0b"s, "\uFFFE"s, "\uFFFF"s,
        "\uFDD0\uFDD1\uFDEF"s, "\U0001FFFE\U0010FFFF"s, "\u2028\u2029\u0085"s, "\uFFFC\uFFFD"s, "\r\n\r\t\v\f"s,
        "\u00A0\u00AD\u200B\u200E\u202E\u2066"s, "\u0001\u001F\u007F\u0080"s, "e\u0301 \uD7FF\uE000 \U00010000"s}) {
    EXPECT_EQ(qt::fromQt(qt::toQt(text)), text);
    EXPECT_EQ(qt::fromQt(qt::toQt("x" + text + "x")), "x" + text + "x");
  }
}

TEST(Text, EveryCharacterIsItsOwnInAWidget) {
  EXPECT_EQ(qt::toQt("\uFEFF\u00E4").size(), 2);
  EXPECT_EQ(qt::toQt("\uFEFF\u00E4"), QStringLiteral("\uFEFF\u00E4"));
  EXPECT_EQ(qt::toQtLine("\uFEFFx").size(), 2);
}

TEST(Text, BytesThatAreNoCharacterAreReplaced) {
  EXPECT_EQ(qt::toQt("a\xFFz"), QStringLiteral("a\uFFFDz"));
  EXPECT_EQ(qt::toQt("\xED\xA0\x80").count(QChar(0xFFFD)), qt::toQt("\xED\xA0\x80").size()) << "half a surrogate pair";
  EXPECT_EQ(qt::toQt("\xEF\xBB").count(QChar(0xFFFD)), qt::toQt("\xEF\xBB").size()) << "a part of U+FEFF";
}

}  // namespace
}  // namespace mavCycEd::test
