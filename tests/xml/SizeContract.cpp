// Large documents. Time and memory grow with the text and no faster; where they grew with its square, these tests would
// run for hours.
#include "XmlDocumentContract.h"

namespace mavCycEd::test {
namespace {

using platform::XmlNode;

TEST_P(XmlDocumentContract, LargeTextsAreLoaded) {
  constexpr std::size_t size = 100'000'000;
  const XmlNode root = load("<a>" + std::string(size, 'x') + "</a>");
  EXPECT_EQ(root.text().size(), size);
  EXPECT_EQ(document().xml().size(), size + 8);
}

TEST_P(XmlDocumentContract, LargeTextsAreSet) {
  constexpr std::size_t times = 5'000'000;
  XmlNode root = load("<a/>");
  root.setText(repeated("µ\r\n", times));
  EXPECT_EQ(root.text(), repeated("µ\n", times));
  root.setText("small");
  EXPECT_EQ(document().xml(), "<a>small</a>\n");
}

TEST_P(XmlDocumentContract, LargeAttributesAndCommentsAreLoaded) {
  constexpr std::size_t size = 20'000'000;
  const std::string large(size, 'x');
  const XmlNode root = load("<a b='" + large + "'><!--" + large + "--><c/></a>");
  EXPECT_EQ(attribute(root, "b").size(), size);
  EXPECT_GT(document().xml().size(), 2 * size);
}

TEST_P(XmlDocumentContract, ManyReferencesMakeOneText) {
  constexpr std::size_t times = 1'000'000;
  EXPECT_EQ(load("<a>" + repeated("&#13;&amp;<![CDATA[x]]>", times) + "</a>").text(), repeated("\n&x", times));
}

TEST_P(XmlDocumentContract, ManyChildrenAreLoadedAndWalked) {
  constexpr int count = 1'000'000;
  const XmlNode root = load("<a>" + repeated("\n  <b>x</b>", count) + "\n</a>");
  EXPECT_EQ(root.childNodes().length(), count);
  EXPECT_EQ(root.text().size(), std::size_t{count});
  EXPECT_EQ(document().selectNodes("a/b").length(), count);
  EXPECT_EQ(document().xml().size(), std::size_t{count} * 11 + 9);
}

TEST_P(XmlDocumentContract, ManyCommentsBetweenTextsAreLoaded) {
  constexpr int count = 300'000;
  EXPECT_EQ(load("<a>" + repeated(" <!--c--> <b/>x", count) + "</a>").childNodes().length(), count);
}

TEST_P(XmlDocumentContract, ManyChildrenArePutInAtTheEnd) {
  constexpr int count = 1'000'000;
  XmlNode root = load("<a/>");
  for (int i = 0; i < count; ++i) root.insertBefore(document().createNode("b"), XmlNode());
  EXPECT_EQ(root.childNodes().length(), count);
}

TEST_P(XmlDocumentContract, ManyChildrenArePutInAtTheFront) {
  constexpr int count = 1'000'000;
  XmlNode root = load("<a/>");
  XmlNode first;
  for (int i = 0; i < count; ++i) {
    const XmlNode created = document().createNode("b");
    root.insertBefore(created, first);
    first = created;
  }
  EXPECT_EQ(root.childNodes().length(), count);
  root.setText("");
  EXPECT_EQ(root.childNodes().length(), 0);
}

TEST_P(XmlDocumentContract, ManyCreatedElementsMayBeLeft) {
  for (int i = 0; i < 1'000'000; ++i) document().createNode("b");
  EXPECT_EQ(document().xml(), "");
}

// A document this deep may be refused, but it must not bring down the program.
TEST_P(XmlDocumentContract, DeepNestingIsLoadedOrRefused) {
  constexpr std::size_t depth = 100'000;
  const std::string text = repeated("<a>", depth) + "x" + repeated("</a>", depth);
  if (document().loadXML(text)) {
    EXPECT_EQ(document().documentNode().text(), "x");
    const std::string written = document().xml();
    ASSERT_TRUE(document().loadXML(written));
    EXPECT_EQ(document().xml(), written);
  } else {
    EXPECT_EQ(document().xml(), "");
  }
  EXPECT_FALSE(document().loadXML(repeated("<a>", depth)));
  EXPECT_EQ(document().xml(), "");
}

TEST_P(XmlDocumentContract, DeepNestingIsBuilt) {
  constexpr int depth = 100'000;
  XmlNode inner = load("<a/>");
  for (int i = 1; i < depth; ++i) {
    const XmlNode created = document().createNode("a");
    inner.insertBefore(created, XmlNode());
    inner = created;
  }
  inner.setText("x");
  EXPECT_EQ(document().documentNode().text(), "x");
  EXPECT_FALSE(document().xml().empty());
  document().selectSingleNode("a").setText("");
  EXPECT_EQ(inner.text(), "x");
}

TEST_P(XmlDocumentContract, NestingOfOrdinaryDepthIsLoaded) {
  constexpr std::size_t depth = 1'000;
  EXPECT_EQ(load(repeated("<a>", depth) + "x" + repeated("</a>", depth)).text(), "x");
}

}  // namespace
}  // namespace mavCycEd::test
