#include "libxml2/DocumentReader.h"

#include <libxml/SAX2.h>

#include <cstddef>
#include <cstring>
#include <utility>

#include "libxml2/Parsing.h"
#include "libxml2/Tree.h"
#include "text/XmlText.h"

namespace mavCycEd::libxml2 {
namespace {

/// Builds the tree, with libxml2's own functions.
class TreeEvents : public ParserEvents {
 public:
  /// Whether there are line ends or namespaces that the tree must not hold as they came.
  bool needsNormalising() const { return needsNormalising_; }

  void start(xmlParserCtxt& parser, const ElementStart& element) override {
    for (int i = 0; i < element.namespaceCount; ++i) {
      if (needsEscape(element.namespaces[2 * i + 1])) needsNormalising_ = true;
    }
    for (int i = 0; i < element.attributeCount; ++i) {
      const xmlChar* const* const attribute = element.attributes + 5 * static_cast<std::ptrdiff_t>(i);
      note({fromXml(attribute[3]), fromXml(attribute[4])});
    }
    xmlSAX2StartElementNs(&parser, element.name, element.prefix, element.uri, element.namespaceCount,
                          element.namespaces, element.attributeCount, element.defaultedCount, element.attributes);
  }
  void end(xmlParserCtxt& parser, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) override {
    xmlSAX2EndElementNs(&parser, name, prefix, uri);
  }
  void text(xmlParserCtxt& parser, const xmlChar* text, int size) override {
    note({fromXml(text), static_cast<std::size_t>(size)});
    xmlSAX2Characters(&parser, text, size);
  }
  void comment(xmlParserCtxt& parser, const xmlChar* text) override { xmlSAX2Comment(&parser, text); }
  void instruction(xmlParserCtxt& parser, const xmlChar* target, const xmlChar* data) override {
    xmlSAX2ProcessingInstruction(&parser, target, data);
  }

 private:
  void note(std::string_view text) { needsNormalising_ = needsNormalising_ || libxml2::holdsCarriageReturn(text); }

  bool needsNormalising_ = false;
};

bool holdsCarriageReturn(const xmlNode& text) { return std::strchr(fromXml(text.content), '\r') != nullptr; }

void normaliseStart(const xmlNode& element) {
  for (xmlNs* declaration = element.nsDef; declaration != nullptr; declaration = declaration->next) {
    if (needsEscape(declaration->href)) escapeName(*declaration);
  }
  for (xmlAttr* attribute = element.properties; attribute != nullptr; attribute = attribute->next) {
    const xmlNode* const value = attribute->children;
    if (value != nullptr && holdsCarriageReturn(*value)) setValue(*attribute, text::toXmlText(fromXml(value->content)));
  }
}

// Makes line feeds of the carriage returns that were written as character references, and readies namespaces.
void normalise(xmlDoc& document) {
  xmlNode* const root = xmlDocGetRootElement(&document);
  for (xmlNode* node = root; node != nullptr; node = nextInTree(node, root)) {
    if (node->type == XML_ELEMENT_NODE) {
      normaliseStart(*node);
    } else if (node->type == XML_TEXT_NODE && holdsCarriageReturn(*node)) {
      Owner<xmlNode> normalised = makeText(document, text::toXmlText(fromXml(node->content)));
      const Owner<xmlNode> old(xmlReplaceNode(node, normalised.get()));
      node = normalised.release();
    }
  }
}

}  // namespace

Owner<xmlDoc> readDocument(std::string_view text) {
  TreeEvents events;
  const Owner<xmlParserCtxt> parser = parse(text, events);
  if (parser == nullptr) return nullptr;
  Owner<xmlDoc> document(std::exchange(parser->myDoc, nullptr));
  if (document != nullptr && events.needsNormalising()) normalise(*document);
  return document;
}

}  // namespace mavCycEd::libxml2
