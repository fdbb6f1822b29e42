#pragma once

#include <libxml/parser.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "libxml2/Ownership.h"
#include "platform/XmlFault.h"

namespace mavCycEd::libxml2 {

/// The start of an element as libxml2 tells it: two pointers make up a namespace declaration (prefix and name), five an
/// attribute (name, prefix, URI, start and end of its value).
struct ElementStart {
  const xmlChar* name;
  const xmlChar* prefix;
  const xmlChar* uri;
  int namespaceCount;
  const xmlChar** namespaces;
  int attributeCount;
  int defaultedCount;
  const xmlChar** attributes;
};

/// What is met in a document, from the start of its root to its end. White space that is only layout is left out; one
/// text may come in several pieces. What a member throws ends the parsing.
class ParserEvents {
 public:
  virtual ~ParserEvents() = default;

  virtual void start(xmlParserCtxt& parser, const ElementStart& element) = 0;
  virtual void end(xmlParserCtxt& parser, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) = 0;
  virtual void text(xmlParserCtxt& parser, const xmlChar* text, int size) = 0;
  virtual void comment(xmlParserCtxt& parser, const xmlChar* text) = 0;
  virtual void instruction(xmlParserCtxt& parser, const xmlChar* target, const xmlChar* data) = 0;
};

/// The first reason for which a text holds no document.
struct ParseFault {
  platform::XmlFault::Kind kind = platform::XmlFault::Kind::NotWellFormed;
  std::size_t at = 0;   ///< in bytes from the start of the text
  std::string message;  ///< for people
};

/// Parses a text under the rules of platform::XmlDocument, except that line ends written as character references come
/// as they are. The parser with what it made; nothing when the text holds no document, with the reason in `fault` for
/// whoever wants to know it.
Owner<xmlParserCtxt> parse(std::string_view text, ParserEvents& events, ParseFault* fault = nullptr);

inline bool holdsCarriageReturn(std::string_view text) { return text.find('\r') != std::string_view::npos; }

}  // namespace mavCycEd::libxml2
