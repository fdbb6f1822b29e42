// Any text for the XML service. Behind a line "%%%%" stands a text that is put into the document.
#include <string>
#include <vector>

#include "FuzzEditor.h"
#include "Require.h"
#include "platform/XmlContent.h"
#include "text/LineEnds.h"
#include "text/XmlText.h"

namespace mavCycEd::fuzz {
namespace {

using platform::XmlAttribute;
using platform::XmlDocument;
using platform::XmlNode;

constexpr std::string_view separator = "\n%%%%\n";

struct Element {
  std::string name;
  std::string text;  // of everything in it
  std::vector<XmlAttribute> attributes;
  int depth = 0;
};

/// Notes what is heard: the elements in document order.
class Heard : public platform::XmlContent {
 public:
  void startElement(std::string_view name, const std::vector<XmlAttribute>& attributes) override {
    open_.push_back(elements.size());
    elements.push_back({std::string(name), {}, attributes, static_cast<int>(open_.size())});
  }
  void text(std::string_view piece) override {
    require(!open_.empty(), "text is heard inside of an element");
    require(!piece.empty() && piece.find('\r') == std::string_view::npos, "line ends are heard as line feeds");
    for (const std::size_t element : open_) elements[element].text.append(piece);
  }
  void endElement() override {
    require(!open_.empty(), "an element ends that was open");
    open_.pop_back();
  }
  bool isComplete() const { return open_.empty() && !elements.empty(); }

  std::vector<Element> elements;

 private:
  std::vector<std::size_t> open_;
};

void requireSameElement(const XmlNode& node, const Element& heard) {
  requireSame(node.nodeName(), heard.name, "elements are heard in the order of the document");
  requireSame(heard.text, node.text(), "the text is heard that the document holds");
  for (const XmlAttribute& attribute : heard.attributes) {
    const auto loaded = node.getAttributeNode(attribute.name);
    require(loaded.has_value(), "an attribute is heard that the document has");
    requireSame(attribute.value, loaded->value, "the value is heard that the document holds");
  }
}

// The elements of the document, in document order, are those that were heard.
void requireHeardAsLoaded(XmlDocument& document, const std::vector<Element>& heard) {
  std::vector<XmlNode> open{document.documentNode().firstChild()};
  std::size_t next = 0;
  while (!open.empty()) {
    const XmlNode node = open.back();
    require(next < heard.size() && heard[next].depth == static_cast<int>(open.size()), "every element is heard");
    requireSameElement(node, heard[next++]);
    if (const XmlNode child = node.firstChild()) {
      open.push_back(child);
      continue;
    }
    while (!open.empty()) {
      const XmlNode sibling = open.back().nextSibling();
      open.pop_back();
      if (!sibling) continue;
      open.push_back(sibling);
      break;
    }
  }
  require(next == heard.size(), "nothing is heard that the document does not hold");
}

void requireWritesWhatItHolds(XmlDocument& document, platform::XmlDocumentFactory& factory) {
  const std::string written = document.xml();
  require(written.find('\r') == std::string::npos, "line ends are written as line feeds");
  const auto other = factory.createDocument();
  require(other->loadXML(written), "what is written loads again");
  requireSame(other->xml(), written, "and is written again as it was");
  Heard heard;
  require(factory.readDocument(written, heard), "what is written is read again");
  requireHeardAsLoaded(document, heard.elements);
}

void requireKeepsText(XmlDocument& document, platform::XmlDocumentFactory& factory, std::string_view text) {
  const XmlNode root = document.documentNode().firstChild();
  root.attributes().setNamedItem({"added", std::string(text)});
  requireSame(root.getAttributeNode("added")->value, text::toXmlText(text), "an attribute holds its value");
  requireWritesWhatItHolds(document, factory);
  XmlNode added = document.createNode("added");
  added.setText(text);
  XmlNode parent = root;
  parent.insertBefore(added, root.firstChild());
  requireWritesWhatItHolds(document, factory);
  parent.setText(text);
  require(!parent.firstChild(), "a text replaces what was there");
  requireWritesWhatItHolds(document, factory);
}

void run(std::string_view input) {
  const std::size_t end = input.find(separator);
  const std::string_view text = input.substr(0, end);
  libxml2::Libxml2DocumentFactory factory;
  const auto document = factory.createDocument();
  const bool accepted = document->loadXML(text);
  Heard heard;
  require(factory.readDocument(text, heard) == accepted, "a text is read where it is loaded");
  require((document->childNodes().length() == 1) == accepted, "a text that is loaded leaves a root");
  require(document->xml().empty() == !accepted, "an empty document gives an empty text");
  if (!accepted) return;
  require(heard.isComplete(), "every element that starts ends");
  requireHeardAsLoaded(*document, heard.elements);
  requireWritesWhatItHolds(*document, factory);
  if (end != std::string_view::npos) requireKeepsText(*document, factory, input.substr(end + separator.size()));
}

}  // namespace
}  // namespace mavCycEd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mavCycEd::fuzz::run(mavCycEd::fuzz::asText(data, size));
  return 0;
}
