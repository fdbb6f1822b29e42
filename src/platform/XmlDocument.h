#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/XmlContent.h"
#include "platform/XmlFault.h"
#include "platform/XmlNode.h"

namespace mavCycEd::platform {

/// An XML document (XML 1.0, namespaces included) as a tree of nodes. The text that goes in and comes out is UTF-8.
///
/// - A text that is not well-formed leaves an empty document; nothing is repaired.
/// - The text is already decoded: an encoding that its XML declaration names is ignored, a leading byte order mark is
///   accepted.
/// - A document type declaration is refused (empty document). Nothing outside the text is ever read.
/// - White space between tags that is only layout is not kept: beside an element or a comment, or holding a line end.
///   Blanks alone between the two tags of an element are its text.
/// - Every line end in a text or an attribute is one line feed, also one that was written as a character reference.
/// - Comments and processing instructions outside the root are not kept.
class XmlDocument {
 public:
  virtual ~XmlDocument() = default;

  /// Replaces the document by the one that `text` holds. False, and an empty document, when it holds none.
  virtual bool loadXML(std::string_view text) = 0;
  /// The document as text: no XML declaration, one element per line, indented by two blanks per level, lines ended by
  /// a line feed, non-ASCII characters as themselves. An empty document gives an empty text.
  virtual std::string xml() const = 0;
  /// A new element without parent; it belongs to this document.
  virtual XmlNode createNode(std::string_view name) = 0;
  /// The document itself as a node; its one child is the root element.
  virtual XmlNode documentNode() = 0;

  XmlAttribute createAttribute(std::string_view name) const { return {std::string(name), {}}; }
  XmlNode selectSingleNode(std::string_view path) { return documentNode().selectSingleNode(path); }
  XmlNodeList selectNodes(std::string_view path) { return documentNode().selectNodes(path); }
  XmlNodeList childNodes() { return documentNode().childNodes(); }
};

/// Makes documents.
class XmlDocumentFactory {
 public:
  virtual ~XmlDocumentFactory() = default;

  /// A new, empty document.
  virtual std::unique_ptr<XmlDocument> createDocument() = 0;
  /// Reads a text once from start to end, without making a document: `content` hears what XmlDocument::loadXML would
  /// load. False when the text holds no document; what was heard before that is of no meaning then.
  virtual bool readDocument(std::string_view text, XmlContent& content) = 0;
  /// Why readDocument() and XmlDocument::loadXML find no document in a text: the first fault; nothing where they find
  /// one. It reads the text anew: ask when there was none.
  virtual std::optional<XmlFault> faultIn(std::string_view text) = 0;
};

}  // namespace mavCycEd::platform
