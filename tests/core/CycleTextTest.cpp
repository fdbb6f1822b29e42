#include "cycle/CycleText.h"

#include <gtest/gtest.h>

namespace mavCycEd {
namespace {

TEST(ConvertDescription, EscapesEveryOccurrenceOnce) {
  EXPECT_EQ(ConvertDescription("a<b>c&d\"e'f"), "a&lt;b&gt;c&amp;d&quot;e&apos;f");
  EXPECT_EQ(ConvertDescription("<<&&"), "&lt;&lt;&amp;&amp;");
  EXPECT_EQ(ConvertDescription("&lt;"), "&amp;lt;") << "the ampersand first";
  EXPECT_EQ(ConvertDescription(""), "");
}

TEST(ConvertDescription, LeavesEverythingElse) {
  EXPECT_EQ(ConvertDescription("//Größe\r\n10 µl; (x)"), "//Größe\r\n10 µl; (x)");
}

TEST(ReverseDescription, TurnsEntitiesIntoCharacters) {
  EXPECT_EQ(ReverseDescription("a&lt;b&gt;c&amp;d&quot;e&apos;f"), "a<b>c&d\"e'f");
  EXPECT_EQ(ReverseDescription("&lt;&lt;"), "<<");
  EXPECT_EQ(ReverseDescription(""), "");
}

TEST(ReverseDescription, TurnsAmpersandsLast) {
  EXPECT_EQ(ReverseDescription("&amp;lt;"), "&lt;");
  EXPECT_EQ(ReverseDescription("&amp;amp;"), "&amp;");
  EXPECT_EQ(ReverseDescription("&amp;quot;&amp;apos;&amp;gt;"), "&quot;&apos;&gt;");
}

TEST(ReverseDescription, LeavesWhatIsNoEntityOfItsOwn) {
  for (const char* text : {"&LT;", "&lt", "& lt;", "&#60;", "&nbsp;", "&", "a;b"})
    EXPECT_EQ(ReverseDescription(text), text);
}

TEST(StripParamName, RemovesCommasAndThreeLetters) {
  EXPECT_EQ(StripParamName("A,B"), "AB");
  EXPECT_EQ(StripParamName("ÂVolume(\u00C2µl),ÃÄ"), "Volume(µl)");
  EXPECT_EQ(StripParamName("Größe #1!?"), "Größe #1!?");
  EXPECT_EQ(StripParamName(","), "");
}

}  // namespace
}  // namespace mavCycEd
