#include "XmlDocumentContract.h"

namespace mavCycEd::test {

using platform::XmlDocument;
using platform::XmlNode;
using platform::XmlNodeList;

XmlDocumentContract::XmlDocumentContract()
    : factory_(GetParam().makeFactory()), document_(factory_->createDocument()) {}

XmlNode XmlDocumentContract::load(std::string_view text) {
  EXPECT_TRUE(document().loadXML(text)) << text.substr(0, 200);
  EXPECT_FALSE(factory().faultIn(text)) << text.substr(0, 200);
  return document().childNodes().item(0);
}

std::string XmlDocumentContract::rewritten(std::string_view text) {
  load(text);
  return document().xml();
}

void XmlDocumentContract::expectRefused(std::string_view text) {
  const testing::ScopedTrace trace(__FILE__, __LINE__, std::string(text.substr(0, 200)));
  ASSERT_TRUE(document().loadXML("<before>it</before>"));
  EXPECT_FALSE(document().loadXML(text));
  EXPECT_EQ(document().childNodes().length(), 0);
  EXPECT_EQ(document().xml(), "");
  const auto fault = factory().faultIn(text);
  ASSERT_TRUE(fault);
  EXPECT_GE(fault->line, 1U);
  EXPECT_GE(fault->column, 1U);
  EXPECT_TRUE(fault->message.ends_with('.') || fault->message.ends_with(')')) << fault->message;
}

void XmlDocumentContract::expectWritesWhatItHolds() {
  const std::string written = document().xml();
  const auto other = otherDocument();
  ASSERT_TRUE(other->loadXML(written)) << written;
  EXPECT_EQ(outline(other->documentNode()), outline(document().documentNode())) << written;
  EXPECT_EQ(other->xml(), written);
}

std::vector<std::string> names(const XmlNodeList& nodes) {
  std::vector<std::string> result;
  for (const XmlNode& node : nodes) result.emplace_back(node.nodeName());
  return result;
}

std::vector<std::string> texts(const XmlNodeList& nodes) {
  std::vector<std::string> result;
  for (const XmlNode& node : nodes) result.push_back(node.text());
  return result;
}

std::string attribute(const XmlNode& element, std::string_view name) {
  const auto found = element.getAttributeNode(name);
  return found ? found->value : "(none)";
}

void setAttribute(XmlDocument& document, const XmlNode& element, std::string_view name, std::string_view value) {
  platform::XmlAttribute added = document.createAttribute(name);
  added.value = value;
  element.attributes().setNamedItem(added);
}

std::string outline(const XmlNode& node) {
  std::string result(node.nodeName());
  for (const char* name : {"a", "b", "p:a", "xmlns", "xmlns:p"}) {
    if (const auto found = node.getAttributeNode(name)) {
      result.append(" ").append(name).append("=[").append(found->value).append("]");
    }
  }
  result.append("[").append(node.text()).append("]");
  for (const XmlNode& child : node.childNodes()) result.append("(").append(outline(child)).append(")");
  return result;
}

std::string repeated(std::string_view text, std::size_t times) {
  std::string result;
  result.reserve(text.size() * times);
  for (std::size_t i = 0; i < times; ++i) result += text;
  return result;
}

}  // namespace mavCycEd::test
