// Rules that hold for every tree, checked with many random ones.
#include <rapidcheck.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "XmlDocumentContract.h"
#include "text/LineEnds.h"
#include "text/Utf8.h"

namespace mavCycEd::test {
namespace {

using platform::XmlDocument;
using platform::XmlNode;

rc::Gen<std::string> anyOf(std::vector<std::string> choices) { return rc::gen::elementOf(std::move(choices)); }

rc::Gen<std::string> joined(const rc::Gen<std::string>& piece) {
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(piece), [](const std::vector<std::string>& pieces) {
    std::string result;
    for (const std::string& part : pieces) result += part;
    return result;
  });
}

// One character that XML allows, from anywhere in Unicode.
rc::Gen<std::string> character() {
  const auto range = [](int from, int to) { return rc::gen::inRange(from, to + 1); };
  return rc::gen::map(rc::gen::oneOf(range(0x20, 0xD7FF), range(0xE000, 0xFFFD), range(0x10000, 0x10FFFF)),
                      [](int code) {
                        std::string result;
                        text::append(result, static_cast<char32_t>(code));
                        return result;
                      });
}

// Texts of allowed characters, rich in those that matter.
rc::Gen<std::string> cleanText() {
  return joined(rc::gen::oneOf(character(), anyOf({" ", "\t", "\r", "\n", "\r\n", "&", "<", ">", "\"", "'", "]]>",
                                                   "&lt;", "&#13;", "<!--", "x"})));
}

// Texts with whatever else may come from a text box or a file.
rc::Gen<std::string> anyText() {
  const std::string zero(1, '\0');
  return joined(rc::gen::oneOf(character(), cleanText(),
                               anyOf({zero, "\x01", "\x1F", "\x7F", "\xEF\xBF\xBE", "\xEF\xBF\xBF", "\xED\xA0\x80",
                                      "\xED\xB0\x80", "\x80", "\xC3", "\xE2\x82", "\xF0\x9F", "\xC0\x80", "\xFF"})));
}

// The content of an element, the shorter the deeper it lies.
rc::Gen<std::string> markup(int depth) {
  const auto leaf = anyOf({"x", " ", "  ", "\n", "\r\n", " y ", "&#13;", "&#10;", "&#32;", "&amp;", "<!-- c -->",
                           "<?p q?>", "<![CDATA[ ]]>", "<![CDATA[<]]>", "<![CDATA[]]>", "<b/>", "<b> </b>", "ä"});
  if (depth == 0) return joined(leaf);
  const auto element = rc::gen::map(
      rc::gen::pair(anyOf({"a", "b a='&#13;'", "c b=' x'", "p:d p:a='&lt;'", "e xmlns:p='v&#13;&lt;&amp;' xmlns='w'"}),
                    rc::gen::scale(0.3, markup(depth - 1))),
      [](const std::pair<std::string, std::string>& parts) {
        const std::string name = parts.first.substr(0, parts.first.find(' '));
        return "<" + parts.first + ">" + parts.second + "</" + name + ">";
      });
  return joined(rc::gen::oneOf(leaf, element));
}

rc::Gen<std::string> documentText() {
  return rc::gen::map(rc::gen::scale(0.5, markup(3)),
                      [](const std::string& content) { return "<r xmlns:p='u'>" + content + "</r>"; });
}

bool isWhiteSpace(const std::string& text) { return text.find_first_not_of(" \t\n") == std::string::npos; }

// Loads what a document writes and compares.
void requireWritesWhatItHolds(XmlDocument& document, XmlDocument& other) {
  const std::string written = document.xml();
  RC_ASSERT(other.loadXML(written));
  RC_ASSERT(outline(other.documentNode()) == outline(document.documentNode()));
  RC_ASSERT(other.xml() == written);
}

TEST_P(XmlDocumentContract, AnyAllowedTextIsKept) {
  EXPECT_TRUE(rc::check([this] {
    const std::string text = *cleanText();
    const std::string expected = text::toLf(text);
    XmlNode root = load("<a/>");
    root.setText(text);
    setAttribute(document(), root, "a", text);
    RC_ASSERT(attribute(root, "a") == expected);
    const bool layout = isWhiteSpace(expected) && expected.find('\n') != std::string::npos;
    RC_ASSERT(root.text() == (layout ? "" : expected));
  }));
}

TEST_P(XmlDocumentContract, AnyTextIsWrittenAndReadAgain) {
  const auto other = otherDocument();
  EXPECT_TRUE(rc::check([this, &other] {
    XmlNode root = load("<r><b/></r>");
    XmlNode child = document().createNode("a");
    child.setText(*anyText());
    setAttribute(document(), child, "a", *anyText());
    root.insertBefore(child, root.firstChild());
    setAttribute(document(), root, "b", *anyText());
    requireWritesWhatItHolds(document(), *other);
  }));
}

TEST_P(XmlDocumentContract, AnyDocumentIsWrittenAndReadAgain) {
  const auto other = otherDocument();
  EXPECT_TRUE(rc::check([this, &other] {
    RC_ASSERT(document().loadXML(*documentText()));
    requireWritesWhatItHolds(document(), *other);
    RC_ASSERT(document().xml().find('\r') == std::string::npos);
  }));
}

TEST_P(XmlDocumentContract, AnyChangedDocumentIsWrittenAndReadAgain) {
  const auto other = otherDocument();
  EXPECT_TRUE(rc::check([this, &other] {
    RC_ASSERT(document().loadXML(*documentText()));
    std::vector<XmlNode> elements = {document().selectSingleNode("r")};
    std::vector<XmlNode> parentless;
    for (std::size_t i = 0; i < elements.size() && i < 100; ++i) {
      for (const XmlNode& child : elements[i].childNodes()) elements.push_back(child);
    }
    const int steps = *rc::gen::inRange(1, 20);
    for (int step = 0; step < steps; ++step) {
      XmlNode element = *rc::gen::elementOf(elements);
      const int choice = *rc::gen::inRange(0, 4);
      if (choice == 0) {
        for (const XmlNode& child : element.childNodes()) parentless.push_back(child);
        element.setText(*anyText());
      } else if (choice == 1) {
        setAttribute(document(), element, *anyOf({"a", "b"}), *anyText());
      } else if (choice == 2) {
        const XmlNode created = document().createNode("n");
        element.insertBefore(created, *rc::gen::arbitrary<bool>() ? element.firstChild() : XmlNode());
        elements.push_back(created);
      } else if (!parentless.empty()) {
        const XmlNode again = parentless.back();
        parentless.pop_back();
        XmlNode root = document().selectSingleNode("r");
        root.insertBefore(again, root.firstChild());
      }
    }
    requireWritesWhatItHolds(document(), *other);
  }));
}

/// Puts together an outline of what is heard: names, attributes, texts.
class HeardOutline : public platform::XmlContent {
 public:
  void startElement(std::string_view name, const std::vector<platform::XmlAttribute>& attributes) override {
    Element element{std::string(name), {}, {}};
    for (const char* wanted : {"a", "b", "p:a"}) {
      for (const auto& attribute : attributes) {
        if (attribute.name == wanted) element.start += std::string(" ") + wanted + "=[" + attribute.value + "]";
      }
    }
    open_.push_back(std::move(element));
  }
  void text(std::string_view piece) override {
    for (Element& element : open_) element.text += piece;
  }
  void endElement() override {
    const Element ended = std::move(open_.back());
    open_.pop_back();
    const std::string whole = ended.start + "[" + ended.text + "]" + ended.children;
    (open_.empty() ? outline : open_.back().children) += "(" + whole + ")";
  }

  std::string outline;

 private:
  struct Element {
    std::string start, text, children;
  };
  std::vector<Element> open_;
};

std::string loadedOutline(const XmlNode& node) {
  std::string result(node.nodeName());
  for (const char* name : {"a", "b", "p:a"}) {
    if (const auto found = node.getAttributeNode(name)) result += std::string(" ") + name + "=[" + found->value + "]";
  }
  result += "[" + node.text() + "]";
  for (const XmlNode& child : node.childNodes()) result += "(" + loadedOutline(child) + ")";
  return result;
}

TEST_P(XmlDocumentContract, AnyDocumentIsHeardAsItIsLoaded) {
  EXPECT_TRUE(rc::check([this] {
    const std::string text = *documentText();
    RC_ASSERT(document().loadXML(text));
    HeardOutline heard;
    RC_ASSERT(factory().readDocument(text, heard));
    RC_ASSERT(heard.outline == "(" + loadedOutline(document().selectSingleNode("r")) + ")");
  }));
}

TEST_P(XmlDocumentContract, ALineEndInTwoPiecesIsHeardAsOne) {
  for (const char* text : {"<r>1&#13;&#10;2&#13;<!-- c -->&#10;3</r>", "<r>1&#13;\r\n2</r>",
                           "<r a='&amp;&#38;lt;&#13;&#10;'/>", "<r>&#13;&#10;</r>", "<r> <![CDATA[\n]]> x</r>"}) {
    load(text);
    HeardOutline heard;
    EXPECT_TRUE(factory().readDocument(text, heard));
    EXPECT_EQ(heard.outline, "(" + loadedOutline(document().selectSingleNode("r")) + ")") << text;
  }
}

/// Notes the text that is heard while no element is open.
class TextOutside : public platform::XmlContent {
 public:
  void startElement(std::string_view, const std::vector<platform::XmlAttribute>&) override { ++depth_; }
  void text(std::string_view piece) override {
    if (depth_ == 0) outside += piece;
  }
  void endElement() override { --depth_; }

  std::string outside;

 private:
  int depth_ = 0;
};

TEST_P(XmlDocumentContract, NoTextIsHeardOutsideOfElements) {
  for (const char* text : {"<?xml version=x?><a>text</a>", "<?xml?><a><b/>text", "<a/>text", "text<a/>"}) {
    TextOutside heard;
    EXPECT_FALSE(factory().readDocument(text, heard)) << text;
    EXPECT_EQ(heard.outside, "") << text;
  }
}

// A document with a scrap put in somewhere, or with a piece cut out of it.
std::string spoiled(std::string text, const std::string& scrap) {
  const auto position = [&text] { return *rc::gen::inRange<std::size_t>(0, text.size() + 1); };
  if (*rc::gen::arbitrary<bool>()) {
    text.erase(position(), *rc::gen::inRange<std::size_t>(0, 8));
  } else {
    text.insert(position(), scrap);
  }
  return text;
}

TEST_P(XmlDocumentContract, AnySpoiledDocumentIsLoadedOrRefused) {
  const auto other = otherDocument();
  EXPECT_TRUE(rc::check([this, &other] {
    const auto scrap = rc::gen::oneOf(character(), anyOf({"<",
                                                          ">",
                                                          "</",
                                                          "/>",
                                                          "<a",
                                                          "<a>",
                                                          "</a>",
                                                          "=",
                                                          "'",
                                                          "\"",
                                                          " b=",
                                                          " b='1'",
                                                          "<?",
                                                          "?>",
                                                          "<!--",
                                                          "-->",
                                                          "<![CDATA[",
                                                          "]]>",
                                                          "&",
                                                          ";",
                                                          "&x;",
                                                          "&#0;",
                                                          "&#13;",
                                                          "<!DOCTYPE a>",
                                                          "<?xml version='1.0'?>",
                                                          " xmlns:p='u'",
                                                          "p:",
                                                          "\r",
                                                          "\xFF",
                                                          "\xC3",
                                                          "\x01",
                                                          "\xEF\xBB\xBF"}));
    const std::string text = spoiled(*documentText(), *scrap);
    const bool loaded = document().loadXML(text);
    RC_CLASSIFY(loaded);
    HeardOutline heard;
    RC_ASSERT(factory().readDocument(text, heard) == loaded);
    if (loaded) {
      requireWritesWhatItHolds(document(), *other);
    } else {
      RC_ASSERT(document().xml().empty());
      RC_ASSERT(document().childNodes().length() == 0);
    }
  }));
}

}  // namespace
}  // namespace mavCycEd::test
