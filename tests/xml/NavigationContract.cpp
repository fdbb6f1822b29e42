// Walking through a tree and reading it.
#include "XmlDocumentContract.h"
#include "platform/RunTimeError.h"

namespace mavCycEd::test {
namespace {

using platform::XmlNode;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_P(XmlDocumentContract, DocumentNodeHoldsTheRoot) {
  const XmlNode root = load("<a>x<b>y</b></a>");
  XmlNode node = document().documentNode();
  EXPECT_TRUE(node);
  EXPECT_EQ(node.nodeName(), "");
  EXPECT_EQ(node.text(), "xy");
  EXPECT_TRUE(node.firstChild() == root);
  EXPECT_FALSE(node.nextSibling());
  EXPECT_FALSE(root.nextSibling());
  EXPECT_FALSE(node.getAttributeNode("b").has_value());
}

TEST_P(XmlDocumentContract, DocumentNodeOfAnEmptyDocumentHoldsNothing) {
  EXPECT_TRUE(document().documentNode());
  EXPECT_EQ(document().documentNode().text(), "");
  EXPECT_FALSE(document().documentNode().firstChild());
  EXPECT_FALSE(document().selectSingleNode("a"));
}

TEST_P(XmlDocumentContract, ChildNodesAreTheElementsInOrder) {
  const XmlNode root = load("<a>text<b/><!--c--><d/>text<?e?><b/></a>");
  EXPECT_THAT(names(root.childNodes()), ElementsAre("b", "d", "b"));
  EXPECT_THAT(names(load("<a>text<!--c--></a>").childNodes()), IsEmpty());
}

TEST_P(XmlDocumentContract, FirstChildAndNextSiblingAreElements) {
  const XmlNode first = load("<a><!--c-->text<b/>text<!--d--><?e?><f/>text</a>").firstChild();
  EXPECT_EQ(first.nodeName(), "b");
  EXPECT_EQ(first.nextSibling().nodeName(), "f");
  EXPECT_FALSE(first.nextSibling().nextSibling());
  EXPECT_FALSE(first.firstChild());
}

TEST_P(XmlDocumentContract, SameNodeGivesEqualHandles) {
  load("<a><b/><b/></a>");
  const auto both = document().selectNodes("a/b");
  EXPECT_TRUE(document().selectSingleNode("a/b") == both.item(0));
  EXPECT_FALSE(both.item(0) == both.item(1));
  EXPECT_FALSE(both.item(2));
}

TEST_P(XmlDocumentContract, NodeNameIsTheQualifiedName) {
  const XmlNode root = load("<p:a xmlns:p='u' xmlns='v'><p:b/><c/><p:b/></p:a>");
  EXPECT_EQ(root.nodeName(), "p:a");
  EXPECT_THAT(names(root.childNodes()), ElementsAre("p:b", "c", "p:b"));
  EXPECT_EQ(document().selectNodes("p:a/p:b").length(), 2);
  EXPECT_FALSE(document().selectSingleNode("a"));
}

TEST_P(XmlDocumentContract, NodeNameStaysWhereItIs) {
  const XmlNode root = load("<p:a xmlns:p='u'><b/></p:a>");
  const std::string_view before = root.nodeName();
  for (const char* name : {"c", "d", "e"}) document().createNode(name);
  EXPECT_EQ(before, "p:a");
  EXPECT_EQ(root.nodeName().data(), before.data());
}

TEST_P(XmlDocumentContract, NamesOutsideAsciiAreNames) {
  const XmlNode root = load("<Größe Maß='µ'><長さ/></Größe>");
  EXPECT_EQ(root.nodeName(), "Größe");
  EXPECT_EQ(attribute(root, "Maß"), "µ");
  EXPECT_EQ(root.firstChild().nodeName(), "長さ");
}

TEST_P(XmlDocumentContract, PathsAreComparedExactly) {
  load("<a><B>1</B><b>2</b><b>3<c>4</c></b></a>");
  EXPECT_THAT(texts(document().selectNodes("a/b")), ElementsAre("2", "34"));
  EXPECT_EQ(document().selectSingleNode("/a/b/c").text(), "4");
  EXPECT_FALSE(document().selectSingleNode("a/c"));
}

TEST_P(XmlDocumentContract, TextIsThatOfTheNodeAndOfEverythingInIt) {
  EXPECT_EQ(load("<a>1<b>2<c>3</c></b>4<d/>5</a>").text(), "12345");
  EXPECT_EQ(load("<a><b>1</b> <b>2</b></a>").text(), "12");
  EXPECT_EQ(load("<a><b>1</b><c>2</c></a>").firstChild().text(), "1");
  EXPECT_EQ(load("<a/>").text(), "");
}

TEST_P(XmlDocumentContract, TextLeavesOutCommentsAndInstructions) {
  EXPECT_EQ(load("<a>1<!--no-->2<?p no?>3<b><!--no-->4</b></a>").text(), "1234");
}

TEST_P(XmlDocumentContract, TypedValueIsTheText) { EXPECT_EQ(load("<a> 1,5 </a>").nodeTypedValue(), " 1,5 "); }

TEST_P(XmlDocumentContract, AttributesAreFoundByName) {
  const XmlNode root = load("<a b='1' B='2' c=\"it's &quot;&lt;&amp;\" d=''/>");
  EXPECT_EQ(attribute(root, "b"), "1");
  EXPECT_EQ(attribute(root, "B"), "2");
  EXPECT_EQ(attribute(root, "c"), "it's \"<&");
  EXPECT_EQ(attribute(root, "d"), "");
  EXPECT_EQ(attribute(root, "e"), "(none)");
  EXPECT_EQ(attribute(root, ""), "(none)");
  EXPECT_EQ(root.getAttributeNode("b")->name, "b");
}

TEST_P(XmlDocumentContract, AttributesAreFoundByQualifiedName) {
  const XmlNode root = load("<a xmlns='d' xmlns:p='u' p:b='1' b='2' xml:lang='de'/>");
  EXPECT_EQ(attribute(root, "p:b"), "1");
  EXPECT_EQ(attribute(root, "b"), "2");
  EXPECT_EQ(attribute(root, "q:b"), "(none)");
  EXPECT_EQ(attribute(root, "xml:lang"), "de");
  EXPECT_EQ(attribute(root, "lang"), "(none)");
}

TEST_P(XmlDocumentContract, NamespaceDeclarationsAreAttributes) {
  const XmlNode root = load("<a xmlns='d' xmlns:p='u'><b/></a>");
  EXPECT_EQ(attribute(root, "xmlns"), "d");
  EXPECT_EQ(attribute(root, "xmlns:p"), "u");
  EXPECT_EQ(attribute(root, "xmlns:q"), "(none)");
  EXPECT_EQ(attribute(root.firstChild(), "xmlns"), "(none)");
}

TEST_P(XmlDocumentContract, NothingIsNotUsable) {
  const XmlNode nothing = document().selectSingleNode("a");
  EXPECT_FALSE(nothing);
  try {
    nothing.text();
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(ErrorNumber::ObjectNotSet));
  }
}

}  // namespace
}  // namespace mavCycEd::test
