// White space, line ends and sections: which characters of a text are content.
#include "XmlDocumentContract.h"

namespace mavCycEd::test {
namespace {

TEST_P(XmlDocumentContract, WhiteSpaceBetweenElementsIsDropped) {
  EXPECT_EQ(load("<a> <b/>\t<b/>\r\n  <b/>\n</a>").text(), "");
  EXPECT_EQ(rewritten("<a> <b/>\t<b/> </a>"), rewritten("<a><b/><b/></a>"));
}

TEST_P(XmlDocumentContract, WhiteSpaceBesideCommentsIsDropped) {
  EXPECT_EQ(load("<a> <!--c--> </a>").text(), "");
  EXPECT_EQ(load("<a>x<!--c--> </a>").text(), "x");
  EXPECT_EQ(load("<a> <!--c-->x</a>").text(), "x");
}

TEST_P(XmlDocumentContract, WhiteSpaceBesideProcessingInstructionsIsDropped) {
  EXPECT_EQ(load("<a> <?p?> </a>").text(), "");
  EXPECT_EQ(load("<a>x<?p?> </a>").text(), "x");
}

TEST_P(XmlDocumentContract, WhiteSpaceWithALineEndIsDropped) {
  for (const char* text : {"<a>\n</a>", "<a>  \n  </a>", "<a>\r\n</a>", "<a>\r</a>", "<a>\t\n</a>"}) {
    EXPECT_EQ(load(text).text(), "") << text;
    EXPECT_EQ(document().xml(), "<a/>\n");
  }
}

TEST_P(XmlDocumentContract, WhiteSpaceIsDroppedHoweverItIsWritten) {
  for (const char* text : {"<a>&#10;</a>", "<a> &#13; </a>", "<a><![CDATA[\n]]></a>", "<a> <![CDATA[ ]]>&#xA;</a>",
                           "<a>&#32;<b/></a>", "<a><b/><![CDATA[ ]]></a>"}) {
    EXPECT_EQ(load(text).text(), "") << text;
  }
}

TEST_P(XmlDocumentContract, BlanksAloneAreTheTextOfAnElement) {
  EXPECT_EQ(load("<a>  </a>").text(), "  ");
  EXPECT_EQ(load("<a>\t</a>").text(), "\t");
  EXPECT_EQ(load("<a>&#32;<![CDATA[ ]]> </a>").text(), "   ");
  EXPECT_EQ(load("<a>\n  <b>  </b>\n</a>").selectSingleNode("b").text(), "  ");
}

TEST_P(XmlDocumentContract, WhiteSpaceAroundWordsIsContent) {
  EXPECT_EQ(load("<a>  x\n y  </a>").text(), "  x\n y  ");
  EXPECT_EQ(load("<a>\nx\n</a>").text(), "\nx\n");
  EXPECT_EQ(load("<a> x <b/> y </a>").text(), " x  y ");
  EXPECT_EQ(load("<a>  &amp;</a>").text(), "  &");
  EXPECT_EQ(load("<a>\n<![CDATA[x]]>\n</a>").text(), "\nx\n");
}

TEST_P(XmlDocumentContract, OnlyBlankTabAndLineEndsAreWhiteSpace) {
  for (const char* text : {"\u00A0", "\u0085", "\u2028", "\u3000", "\u200B"}) {
    EXPECT_EQ(load("<a>" + std::string(text) + "<b/></a>").text(), text);
  }
}

TEST_P(XmlDocumentContract, LongRunsOfLayoutAreDropped) {
  const std::string run = "\n" + std::string(10'000, ' ');
  EXPECT_EQ(load("<a>" + run + "<b>" + run + "</b>" + run + "</a>").text(), "");
}

TEST_P(XmlDocumentContract, DeclaredSpaceIsLayoutAllTheSame) {
  EXPECT_EQ(load("<a xml:space='preserve'> <b/> </a>").text(), "");
}

TEST_P(XmlDocumentContract, SectionsAreOrdinaryText) {
  EXPECT_EQ(load("<a>1<![CDATA[<b>&amp;</b>]]>2</a>").text(), "1<b>&amp;</b>2");
  EXPECT_EQ(document().xml(), "<a>1&lt;b&gt;&amp;amp;&lt;/b&gt;2</a>\n");
  EXPECT_EQ(rewritten("<a><![CDATA[]]></a>"), "<a/>\n");
  EXPECT_EQ(rewritten("<a> <![CDATA[]]><b/></a>"), "<a>\n  <b/>\n</a>\n");
  EXPECT_EQ(load("<a><![CDATA[]]]]><![CDATA[>]]></a>").text(), "]]>");
}

TEST_P(XmlDocumentContract, LineEndsOfATextAreLineFeeds) {
  EXPECT_EQ(load("<a>1\r\n2\r3\n4\r\r\n5\n\r6</a>").text(), "1\n2\n3\n4\n\n5\n\n6");
  EXPECT_EQ(load("<a><![CDATA[1\r\n2\r3]]></a>").text(), "1\n2\n3");
}

TEST_P(XmlDocumentContract, LineEndsWrittenAsReferencesAreLineFeeds) {
  EXPECT_EQ(load("<a>1&#13;2&#13;&#10;3&#10;4&#xD;&#xA;5</a>").text(), "1\n2\n3\n4\n5");
  EXPECT_EQ(load("<a>1&#13;<b>2&#13;</b>&#10;3</a>").text(), "1\n2\n\n3");
}

TEST_P(XmlDocumentContract, LineEndsOfAnAttributeAreLineFeeds) {
  const auto root = load("<a b='1&#13;2&#13;&#10;3&#10;4' c='&#13;'><d b='&#13;&#10;x'/></a>");
  EXPECT_EQ(attribute(root, "b"), "1\n2\n3\n4");
  EXPECT_EQ(attribute(root, "c"), "\n");
  EXPECT_EQ(attribute(root.firstChild(), "b"), "\nx");
}

TEST_P(XmlDocumentContract, LineEndsTypedIntoAnAttributeAreBlanks) {
  EXPECT_EQ(attribute(load("<a b='1\r\n2\n3\r4\t5'/>"), "b"), "1 2 3 4 5");
}

}  // namespace
}  // namespace mavCycEd::test
