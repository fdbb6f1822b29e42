// Changing a tree.
#include "XmlDocumentContract.h"
#include "platform/RunTimeError.h"

namespace mavCycEd::test {
namespace {

using platform::XmlNode;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_P(XmlDocumentContract, SetTextReplacesTheContent) {
  XmlNode root = load("<a>old<b/><!--c--><?d?>text</a>");
  root.setText("new");
  EXPECT_EQ(root.text(), "new");
  EXPECT_THAT(names(root.childNodes()), IsEmpty());
  EXPECT_EQ(document().xml(), "<a>new</a>\n");
}

TEST_P(XmlDocumentContract, SetTextOfNothingEmptiesTheElement) {
  load("<a>old</a>").setText("");
  EXPECT_EQ(document().xml(), "<a/>\n");
}

TEST_P(XmlDocumentContract, SetTextTakesMarkupAsText) {
  XmlNode root = load("<a/>");
  root.setText("//1 < 2 && \"x\" ]]> <b/> &lt; &#65;");
  EXPECT_EQ(root.text(), "//1 < 2 && \"x\" ]]> <b/> &lt; &#65;");
  EXPECT_THAT(names(root.childNodes()), IsEmpty());
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, SetTextMakesLineEndsLineFeeds) {
  XmlNode root = load("<a/>");
  root.setText("1\r\n2\r3\n4\r\r\n5\n\r6");
  EXPECT_EQ(root.text(), "1\n2\n3\n4\n\n5\n\n6");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, SetTextLeavesOutForbiddenCharacters) {
  XmlNode root = load("<a/>");
  root.setText(std::string_view("1\0002\0013\0374\0335", 9));
  EXPECT_EQ(root.text(), "12345");
  root.setText("1\xEF\xBF\xBE\x32\xEF\xBF\xBF\x33\xED\xA0\xBD\xED\xB7\xAA\x34");
  EXPECT_EQ(root.text(), "1234");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, SetTextKeepsAllOtherCharacters) {
  const std::string allowed = "\t\n !\x7F\u0085\u00A0äµ\u2028\uFDD0\uFFFD🧪\U0010FFFF";
  XmlNode root = load("<a/>");
  root.setText(allowed);
  EXPECT_EQ(root.text(), allowed);
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, SetTextReplacesBytesThatAreNoUtf8) {
  XmlNode root = load("<a/>");
  root.setText("1\xFF\x32\xC3");
  EXPECT_EQ(root.text(), "1\uFFFD2\uFFFD");
  for (const char* bytes : {"\x80", "\xC0\x80", "\xE2\x82", "\xF0\x9F\xA7", "\xF4\x90\x80\x80", "\xE4\xF6\xFC"}) {
    root.setText(bytes);
    EXPECT_THAT(root.text(), testing::StartsWith("\uFFFD"));
    expectWritesWhatItHolds();
  }
}

TEST_P(XmlDocumentContract, SetTextKeepsBlanksButNoLayout) {
  XmlNode root = load("<a/>");
  root.setText("   ");
  EXPECT_EQ(root.text(), "   ");
  expectWritesWhatItHolds();
  for (const char* layout : {"\n", " \r\n ", "\t\r", "\x01\n"}) {
    root.setText(layout);
    EXPECT_EQ(root.text(), "");
    expectWritesWhatItHolds();
  }
}

TEST_P(XmlDocumentContract, SetTextOfItsOwnName) {
  XmlNode root = load("<a><b/></a>");
  root.setText(root.firstChild().nodeName());
  EXPECT_EQ(root.text(), "b");
}

TEST_P(XmlDocumentContract, HandlesOutliveTheReplacedContent) {
  XmlNode root = load("<a xmlns:p='u'><p:b p:a='1'>x<p:c/></p:b></a>");
  const XmlNode b = root.firstChild();
  root.setText("new");
  EXPECT_EQ(b.nodeName(), "p:b");
  EXPECT_EQ(attribute(b, "p:a"), "1");
  EXPECT_EQ(b.text(), "x");
  EXPECT_EQ(b.firstChild().nodeName(), "p:c");
  EXPECT_FALSE(b.nextSibling());

  EXPECT_TRUE(document().loadXML("<other/>"));
  EXPECT_THAT(names(document().childNodes()), ElementsAre("other"));
}

TEST_P(XmlDocumentContract, ReplacedElementsMayBePutInAgain) {
  XmlNode root = load("<a xmlns:p='u' xmlns='v'><b><p:c p:a='1'><d/></p:c></b><e/></a>");
  XmlNode b = root.firstChild();
  const XmlNode c = b.firstChild();
  b.setText("");
  root.insertBefore(c, b);
  EXPECT_THAT(names(root.childNodes()), ElementsAre("p:c", "b", "e"));
  EXPECT_EQ(attribute(c, "p:a"), "1");
  EXPECT_EQ(c.firstChild().nodeName(), "d");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, CreatedElementHasNoParent) {
  load("<a><b/></a>");
  const XmlNode created = document().createNode("c");
  const XmlNode further = document().createNode("d");
  EXPECT_EQ(created.nodeName(), "c");
  EXPECT_EQ(created.text(), "");
  EXPECT_FALSE(created.firstChild());
  EXPECT_FALSE(created.nextSibling());
  EXPECT_FALSE(created == further);
  EXPECT_EQ(document().xml(), "<a>\n  <b/>\n</a>\n");
}

TEST_P(XmlDocumentContract, CreatedElementIsFilledBeforeItIsPutIn) {
  XmlNode root = load("<a/>");
  XmlNode created = document().createNode("b");
  created.setText("1 < 2");
  setAttribute(document(), created, "a", "3");
  created.insertBefore(document().createNode("c"), XmlNode());
  EXPECT_EQ(outline(created), "b a=[3][1 < 2](c[])");
  root.insertBefore(created, XmlNode());
  EXPECT_EQ(outline(root), "a[1 < 2](b a=[3][1 < 2](c[]))");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, CreatedElementsNeedNotBePutIn) {
  document().createNode("a").setText("never seen");
  load("<a/>");
  XmlNode parent = document().createNode("b");
  parent.insertBefore(document().createNode("c"), XmlNode());
  EXPECT_EQ(document().xml(), "<a/>\n");
}

TEST_P(XmlDocumentContract, InsertBeforeAReference) {
  XmlNode cycle = load("<CYCLE><VARIABLES/><VERSION>03</VERSION></CYCLE>");
  const XmlNode description = document().createNode("DESCRIPTION");
  cycle.insertBefore(description, document().selectSingleNode("/CYCLE/VARIABLES"));
  EXPECT_THAT(names(cycle.childNodes()), ElementsAre("DESCRIPTION", "VARIABLES", "VERSION"));
  EXPECT_TRUE(cycle.firstChild() == description);
  EXPECT_EQ(description.nextSibling().nodeName(), "VARIABLES");
  cycle.insertBefore(document().createNode("NEXT"), document().selectSingleNode("/CYCLE/VERSION"));
  EXPECT_THAT(names(cycle.childNodes()), ElementsAre("DESCRIPTION", "VARIABLES", "NEXT", "VERSION"));
}

TEST_P(XmlDocumentContract, InsertBeforeNothingIsAtTheEnd) {
  XmlNode root = load("<a><b/><!--c--></a>");
  root.insertBefore(document().createNode("d"), XmlNode());
  EXPECT_THAT(names(root.childNodes()), ElementsAre("b", "d"));
  EXPECT_EQ(document().xml(), "<a>\n  <b/>\n  <!--c-->\n  <d/>\n</a>\n");
}

TEST_P(XmlDocumentContract, InsertedElementIsTheRootOfAnEmptyDocument) {
  document().documentNode().insertBefore(document().createNode("a"), XmlNode());
  EXPECT_EQ(document().xml(), "<a/>\n");
  document().selectSingleNode("a").setText("ä");
  setAttribute(document(), document().selectSingleNode("a"), "b", "µ");
  EXPECT_EQ(document().xml(), "<a b=\"µ\">ä</a>\n");
}

TEST_P(XmlDocumentContract, BlanksBesideAnInsertedElementAreLayout) {
  XmlNode root = load("<a>  </a>");
  root.insertBefore(document().createNode("b"), XmlNode());
  EXPECT_EQ(root.text(), "");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, TextBesideAnInsertedElementStays) {
  XmlNode root = load("<a>x<b/> y </a>");
  root.insertBefore(document().createNode("c"), root.firstChild());
  root.insertBefore(document().createNode("d"), XmlNode());
  EXPECT_EQ(document().xml(), "<a>x<c/><b/> y <d/></a>\n");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, SetNamedItemAddsAnAttribute) {
  const XmlNode root = load("<a b='1'/>");
  setAttribute(document(), root, "Created", "2024-03-09T14:05:00");
  EXPECT_EQ(attribute(root, "Created"), "2024-03-09T14:05:00");
  EXPECT_EQ(document().xml(), "<a b=\"1\" Created=\"2024-03-09T14:05:00\"/>\n");
}

TEST_P(XmlDocumentContract, SetNamedItemReplacesAnAttributeInItsPlace) {
  const XmlNode root = load("<a b='1' xml:id='x' c='2'/>");
  setAttribute(document(), root, "b", "3");
  setAttribute(document(), root, "xml:id", "y");
  setAttribute(document(), root, "b", "4");
  EXPECT_EQ(document().xml(), "<a b=\"4\" xml:id=\"y\" c=\"2\"/>\n");
  setAttribute(document(), root, "b", "");
  EXPECT_EQ(attribute(root, "b"), "");
}

TEST_P(XmlDocumentContract, SetNamedItemTakesAQualifiedName) {
  const XmlNode root = load("<a xmlns:p='u' b='1' p:b='2'/>");
  setAttribute(document(), root, "p:b", "3");
  setAttribute(document(), root, "p:a", "4");
  setAttribute(document(), root, "xml:lang", "de");
  EXPECT_EQ(attribute(root, "b"), "1");
  EXPECT_EQ(attribute(root, "p:b"), "3");
  EXPECT_EQ(attribute(root, "p:a"), "4");
  EXPECT_EQ(attribute(root, "xml:lang"), "de");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, AttributeValuesAreCleanedAsTextsAre) {
  const XmlNode root = load("<a/>");
  setAttribute(document(), root, "a", "1\r\n2\r3\t<&>\"'\x01\xFF\xEF\xBF\xBF ä");
  EXPECT_EQ(attribute(root, "a"), "1\n2\n3\t<&>\"'\uFFFD ä");
  setAttribute(document(), root, "b", " \n ");
  EXPECT_EQ(attribute(root, "b"), " \n ");
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, CreatedAttributeIsEmptyAndInNoElement) {
  const XmlNode root = load("<a/>");
  const platform::XmlAttribute created = document().createAttribute("b");
  EXPECT_EQ(created.name, "b");
  EXPECT_EQ(created.value, "");
  EXPECT_EQ(attribute(root, "b"), "(none)");
}

// What would leave a tree that cannot be written is an error, and the tree stays as it is.
class Refusal {
 public:
  template <typename Change>
  explicit Refusal(const Change& change) {
    try {
      change();
    } catch (const RunTimeError& error) {
      refused_ = error.number() == static_cast<std::int32_t>(ErrorNumber::InvalidProcedureCall);
    }
  }
  explicit operator bool() const { return refused_; }

 private:
  bool refused_ = false;
};

TEST_P(XmlDocumentContract, NamesThatXmlForbidsAreRefused) {
  using std::string_view_literals::operator""sv;
  const XmlNode root = load("<a xmlns:p='u'/>");
  for (const auto name : {""sv, " "sv, "1a"sv, "a b"sv, "<"sv, "a>"sv, ":a"sv, "a:"sv, "p:q:a"sv, "a\0b"sv, "a\xFF"sv,
                          "\xEF\xBF\xBE"sv, "q:a"sv, ":"sv}) {
    EXPECT_TRUE(Refusal([&] { document().createNode(name); })) << name;
    EXPECT_TRUE(Refusal([&] { setAttribute(document(), root, name, "x"); })) << name;
  }
  EXPECT_EQ(document().xml(), "<a xmlns:p=\"u\"/>\n");
}

TEST_P(XmlDocumentContract, NamespacesCannotBeChanged) {
  const XmlNode root = load("<a xmlns:p='u' xmlns:q='u' p:a='1'/>");
  EXPECT_TRUE(Refusal([&] { setAttribute(document(), root, "xmlns", "v"); }));
  EXPECT_TRUE(Refusal([&] { setAttribute(document(), root, "xmlns:r", "v"); }));
  EXPECT_TRUE(Refusal([&] { setAttribute(document(), root, "xmlns:p", "v"); }));
  EXPECT_TRUE(Refusal([&] { setAttribute(document(), root, "q:a", "2"); })) << "the attribute p:a by another name";
  EXPECT_TRUE(Refusal([&] { document().createNode("p:b"); }));
  expectWritesWhatItHolds();
}

TEST_P(XmlDocumentContract, SecondRootCannotBePutIn) {
  const XmlNode root = load("<a/>");
  const XmlNode second = document().createNode("b");
  EXPECT_TRUE(Refusal([&] { document().documentNode().insertBefore(second, XmlNode()); }));
  EXPECT_TRUE(Refusal([&] { document().documentNode().insertBefore(second, root); }));
  EXPECT_EQ(document().xml(), "<a/>\n");
}

TEST_P(XmlDocumentContract, DocumentNodeIsNoElement) {
  load("<a/>");
  EXPECT_TRUE(Refusal([&] { document().documentNode().setText("x"); }));
  EXPECT_TRUE(Refusal([&] { setAttribute(document(), document().documentNode(), "b", "x"); }));
  EXPECT_TRUE(Refusal([&] { load("<a/>").insertBefore(document().documentNode(), XmlNode()); }));
  EXPECT_EQ(document().xml(), "<a/>\n");
}

TEST_P(XmlDocumentContract, OnlyElementsWithoutParentCanBePutIn) {
  XmlNode root = load("<a><b/><c/></a>");
  XmlNode b = root.firstChild();
  EXPECT_TRUE(Refusal([&] { root.insertBefore(b, XmlNode()); }));
  EXPECT_TRUE(Refusal([&] { b.insertBefore(b.nextSibling(), XmlNode()); }));
  EXPECT_TRUE(Refusal([&] { b.insertBefore(root, XmlNode()); }));
  EXPECT_EQ(document().xml(), "<a>\n  <b/>\n  <c/>\n</a>\n");
}

TEST_P(XmlDocumentContract, ElementCannotBePutIntoItself) {
  load("<a/>");
  XmlNode outer = document().createNode("b");
  EXPECT_TRUE(Refusal([&] { outer.insertBefore(outer, XmlNode()); }));
  XmlNode inner = document().createNode("c");
  outer.insertBefore(inner, XmlNode());
  EXPECT_TRUE(Refusal([&] { inner.insertBefore(outer, XmlNode()); }));
  EXPECT_EQ(outline(outer), "b[](c[])");
}

TEST_P(XmlDocumentContract, ReferenceMustBeAChild) {
  XmlNode root = load("<a><b><c/></b></a>");
  const XmlNode created = document().createNode("d");
  EXPECT_TRUE(Refusal([&] { root.insertBefore(created, document().selectSingleNode("a/b/c")); }));
  EXPECT_TRUE(Refusal([&] { root.insertBefore(created, created); }));
  EXPECT_TRUE(Refusal([&] { root.insertBefore(created, root); }));
  EXPECT_FALSE(created.nextSibling());
}

TEST_P(XmlDocumentContract, ElementsOfOtherDocumentsAreRefused) {
  XmlNode root = load("<a/>");
  const auto other = otherDocument();
  EXPECT_TRUE(Refusal([&] { root.insertBefore(other->createNode("b"), XmlNode()); }));
  EXPECT_EQ(document().xml(), "<a/>\n");
}

TEST_P(XmlDocumentContract, NothingCannotBePutIn) {
  XmlNode root = load("<a/>");
  try {
    root.insertBefore(XmlNode(), XmlNode());
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(ErrorNumber::ObjectNotSet));
  }
}

}  // namespace
}  // namespace mavCycEd::test
