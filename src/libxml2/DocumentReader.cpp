#include "libxml2/DocumentReader.h"

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include <climits>
#include <cstddef>
#include <cstring>
#include <new>
#include <utility>

#include "libxml2/CharacterRules.h"
#include "libxml2/Tree.h"

namespace mavCycEd::libxml2 {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view whiteSpace = " \t\r\n";

// What the parser's calls note down about a text.
struct Findings {
  bool namespaceError = false;
  bool needsNormalising = false;
};

xmlParserCtxt& parserOf(void* context) { return *static_cast<xmlParserCtxt*>(context); }

Findings& findingsOf(void* context) { return *static_cast<Findings*>(parserOf(context)._private); }

bool holdsCarriageReturn(const xmlChar* text, std::ptrdiff_t size) {
  return size > 0 && std::memchr(text, '\r', static_cast<std::size_t>(size)) != nullptr;
}

// Drops the text that was read last in the open element when it is only layout.
void dropLayout(const xmlParserCtxt& parser, bool elementEnds) {
  if (parser.node == nullptr) return;
  xmlNode* const text = parser.node->last;
  if (text == nullptr || text->type != XML_TEXT_NODE) return;
  const bool onlyContent = elementEnds && parser.node->children == text;
  if (!isLayout(fromXml(text->content), !onlyContent)) return;
  xmlUnlinkNode(text);
  xmlFreeNode(text);
}

// The calls that the parser makes while it reads. libxml2's own ones build the tree. None of these may throw: the
// parser cannot be left by an exception.

void refuseDocumentType(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
  xmlStopParser(&parserOf(context));
}

void takeStart(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
               const xmlChar** namespaces, int attributeCount, int defaultedCount, const xmlChar** attributes) {
  // Two pointers make up a declaration: prefix and name of a namespace.
  for (const xmlChar** declaration = namespaces; declaration != namespaces + 2 * namespaceCount; declaration += 2) {
    if (needsEscape(declaration[1])) findingsOf(context).needsNormalising = true;
  }
  // Five pointers make up an attribute: name, prefix, URI, start and end of its value.
  for (const xmlChar** attribute = attributes; attribute != attributes + 5 * attributeCount; attribute += 5) {
    if (holdsCarriageReturn(attribute[3], attribute[4] - attribute[3])) findingsOf(context).needsNormalising = true;
  }
  dropLayout(parserOf(context), false);
  xmlSAX2StartElementNs(context, name, prefix, uri, namespaceCount, namespaces, attributeCount, defaultedCount,
                        attributes);
}

void takeEnd(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) {
  dropLayout(parserOf(context), true);
  xmlSAX2EndElementNs(context, name, prefix, uri);
}

void takeText(void* context, const xmlChar* text, int size) {
  if (size == 0) return;  // an empty section is no text
  if (holdsCarriageReturn(text, size)) findingsOf(context).needsNormalising = true;
  xmlSAX2Characters(context, text, size);
}

void takeComment(void* context, const xmlChar* text) {
  if (parserOf(context).node == nullptr) return;
  dropLayout(parserOf(context), false);
  xmlSAX2Comment(context, text);
}

void takeInstruction(void* context, const xmlChar* target, const xmlChar* data) {
  if (parserOf(context).node == nullptr) return;
  dropLayout(parserOf(context), false);
  xmlSAX2ProcessingInstruction(context, target, data);
}

// Whoever asked for the document sees that it is empty; nothing is printed. libxml2 does not count errors about
// namespaces as errors of form, and among them it has the opinion that the name of a namespace is no URI, which is
// none.
template <typename Error>
void noteError(void* context, Error error) {
  if (error->domain == XML_FROM_NAMESPACE && error->level >= XML_ERR_ERROR && error->code != XML_WAR_NS_URI) {
    findingsOf(context).namespaceError = true;
  }
}

void setUp(xmlParserCtxt& parser, Findings& findings) {
  xmlCtxtUseOptions(&parser, XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_COMPACT);
  parser._private = &findings;

  xmlSAXHandler& calls = *parser.sax;
  calls.internalSubset = refuseDocumentType;
  calls.externalSubset = nullptr;
  calls.startElementNs = takeStart;
  calls.endElementNs = takeEnd;
  calls.characters = takeText;
  calls.ignorableWhitespace = takeText;
  calls.cdataBlock = takeText;
  calls.comment = takeComment;
  calls.processingInstruction = takeInstruction;
  calls.serror = noteError;
}

bool holdsCarriageReturn(const xmlNode& text) { return std::strchr(fromXml(text.content), '\r') != nullptr; }

void normaliseStart(const xmlNode& element) {
  for (xmlNs* declaration = element.nsDef; declaration != nullptr; declaration = declaration->next) {
    if (needsEscape(declaration->href)) escapeName(*declaration);
  }
  for (xmlAttr* attribute = element.properties; attribute != nullptr; attribute = attribute->next) {
    const xmlNode* const value = attribute->children;
    if (value != nullptr && holdsCarriageReturn(*value)) setValue(*attribute, toXmlText(fromXml(value->content)));
  }
}

// Makes line feeds of the carriage returns that were written as character references, and readies namespaces.
void normalise(xmlDoc& document) {
  xmlNode* const root = xmlDocGetRootElement(&document);
  for (xmlNode* node = root; node != nullptr; node = nextInTree(node, root)) {
    if (node->type == XML_ELEMENT_NODE) {
      normaliseStart(*node);
    } else if (node->type == XML_TEXT_NODE && holdsCarriageReturn(*node)) {
      Owner<xmlNode> normalised = makeText(document, toXmlText(fromXml(node->content)));
      const Owner<xmlNode> old(xmlReplaceNode(node, normalised.get()));
      node = normalised.release();
    }
  }
}

}  // namespace

Owner<xmlDoc> readDocument(std::string_view text) {
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  // Whatever begins otherwise is no XML, and libxml2 would take some of it for another encoding.
  if (text.empty() || (text.front() != '<' && whiteSpace.find(text.front()) == std::string_view::npos)) return nullptr;
  if (text.size() > INT_MAX || !isXmlText(text)) return nullptr;

  Findings findings;
  const Owner<xmlParserCtxt> parser(made(xmlCreateMemoryParserCtxt(text.data(), static_cast<int>(text.size()))));
  setUp(*parser, findings);
  xmlParseDocument(parser.get());
  Owner<xmlDoc> document(std::exchange(parser->myDoc, nullptr));

  if (parser->errNo == XML_ERR_NO_MEMORY) throw std::bad_alloc();
  const bool stopped = parser->disableSAX != 0;
  if (document == nullptr || parser->wellFormed == 0 || stopped || findings.namespaceError) return nullptr;
  if (findings.needsNormalising) normalise(*document);
  return document;
}

}  // namespace mavCycEd::libxml2
