// A tree as text.
#include "XmlDocumentContract.h"

namespace mavCycEd::test {
namespace {

TEST_P(XmlDocumentContract, OneElementStandsOnEachLine) {
  EXPECT_EQ(rewritten("<a><b><c>x</c><d/></b><b></b></a>"),
            "<a>\n"
            "  <b>\n"
            "    <c>x</c>\n"
            "    <d/>\n"
            "  </b>\n"
            "  <b/>\n"
            "</a>\n");
}

TEST_P(XmlDocumentContract, EachLevelIsIndentedByTwoBlanks) {
  std::string text = "x";
  std::string expected = std::string(40, ' ') + "<a>x</a>\n";
  for (int level = 20; level >= 0; --level) {
    text = "<a>" + text + "</a>";
    if (level == 20) continue;
    const std::string indent(static_cast<std::size_t>(level) * 2, ' ');
    expected = indent + "<a>\n" + expected + indent + "</a>\n";
  }
  EXPECT_EQ(rewritten(text), expected);
}

TEST_P(XmlDocumentContract, NoDeclarationIsWritten) {
  EXPECT_EQ(rewritten("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<a/>"), "<a/>\n");
  EXPECT_EQ(rewritten("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-16\"?><a/>"), "<a/>\n");
}

TEST_P(XmlDocumentContract, LinesEndWithLineFeeds) {
  EXPECT_EQ(rewritten("<a>\r\n<b>1\r\n2</b>\r\n</a>\r\n"), "<a>\n  <b>1\n2</b>\n</a>\n");
}

TEST_P(XmlDocumentContract, EmptyDocumentGivesAnEmptyText) {
  load("<a/>");
  EXPECT_FALSE(document().loadXML("no document"));
  EXPECT_EQ(document().xml(), "");
}

TEST_P(XmlDocumentContract, CharactersOutsideAsciiAreWrittenAsThemselves) {
  EXPECT_EQ(rewritten("<Größe b=\"5 &#xB5;l – 液体 🧪\">5 &#xB5;l – 液体 🧪\u0085\u2028</Größe>"),
            "<Größe b=\"5 µl – 液体 🧪\">5 µl – 液体 🧪\u0085\u2028</Größe>\n");
}

TEST_P(XmlDocumentContract, MarkupInTextAndAttributesIsEscaped) {
  EXPECT_EQ(rewritten("<a b='&lt;&amp;&gt;&quot;\"'>&lt;&amp;&gt;\"'</a>"),
            "<a b=\"&lt;&amp;&gt;&quot;&quot;\">&lt;&amp;&gt;\"'</a>\n");
}

TEST_P(XmlDocumentContract, WhiteSpaceOfAttributesIsEscaped) {
  EXPECT_EQ(rewritten("<a b=' &#9;&#10;&#13; '/>"), "<a b=\" &#9;&#10;&#10; \"/>\n");
}

TEST_P(XmlDocumentContract, CommentsAndInstructionsInTheRootAreWritten) {
  EXPECT_EQ(rewritten("<a><!-- c --><b/><?p q?></a>"),
            "<a>\n"
            "  <!-- c -->\n"
            "  <b/>\n"
            "  <?p q?>\n"
            "</a>\n");
}

TEST_P(XmlDocumentContract, CommentsAndInstructionsOutsideTheRootAreNotKept) {
  EXPECT_EQ(rewritten("<!--1--><?p?>\n<a/>\n<!--2--><?p?>"), "<a/>\n");
}

TEST_P(XmlDocumentContract, MixedContentIsNotIndented) {
  EXPECT_EQ(rewritten("<r><a>x<b><c/><d>y</d></b><!--e-->z</a><f/></r>"),
            "<r>\n"
            "  <a>x<b><c/><d>y</d></b><!--e-->z</a>\n"
            "  <f/>\n"
            "</r>\n");
}

TEST_P(XmlDocumentContract, NamespacesAreWrittenWhereTheyWereDeclared) {
  const char* text = "<p:a xmlns:p=\"u\" xmlns=\"v\" p:b=\"1\">\n  <c xmlns=\"\"/>\n  <p:d/>\n</p:a>\n";
  EXPECT_EQ(rewritten(text), text);
}

TEST_P(XmlDocumentContract, NamesOfNamespacesAreEscaped) {
  const platform::XmlNode root =
      load("<a xmlns='u&amp;#38;&lt;&gt;&quot;&#9;&#13;&#10;&#13;' xmlns:p='u?v=1&amp;amp;w'/>");
  EXPECT_EQ(attribute(root, "xmlns"), "u&#38;<>\"\t\n\n");
  EXPECT_EQ(attribute(root, "xmlns:p"), "u?v=1&amp;w");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, WrittenTextLoadsIntoTheSameTree) {
  for (const char* text : {
           "<a/>",
           "<a>  </a>",
           "<a>\n <b>  </b> <b>\n</b> x </a>",
           "<a><b/> <!-- c --> <b/>text <?p  two  blanks ?> </a>",
           "<a b=' 1 ' a='&#10;'><![CDATA[ ]] > &amp; ]]></a>",
           "<a>&#13;&#10;<b a='&#13;'>&#13;x</b></a>",
           "<p:a xmlns:p='u' p:a='1'><p:b xmlns:p='v' p:a='2'/></p:a>",
           "<a><!--\n two\r\n lines --></a>",
           "<a>]]&gt;</a>",
       }) {
    SCOPED_TRACE(text);
    load(text);
    expectWritesWhatItHolds();
  }
}

TEST_P(XmlDocumentContract, WritingChangesNothing) {
  load("<a>x<b/> y</a>");
  const std::string before = outline(document().documentNode());
  const std::string first = document().xml();
  EXPECT_EQ(document().xml(), first);
  EXPECT_EQ(outline(document().documentNode()), before);
}

}  // namespace
}  // namespace mavCycEd::test
