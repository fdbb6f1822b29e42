#include "libxml2/Parsing.h"

#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <new>
#include <string>
#include <utility>

#include "libxml2/FaultMessage.h"
#include "libxml2/Layout.h"
#include "text/XmlText.h"

namespace mavCycEd::libxml2 {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

constexpr bool isWhiteSpace(char character) {
  return character == ' ' || character == '\n' || character == '\t' || character == '\r';
}

/// What the parser's calls know while a text is parsed.
struct Progress {
  ParserEvents& events;
  std::string blanks;           // white space at the start of a text, until it is known whether it is only layout
  int depth = 0;                // of the open element
  bool elementIsEmpty = false;  // nothing has come since the open element started, blanks aside
  bool inText = false;          // the last piece was of a text that is no layout
  bool namespaceError = false;
  std::exception_ptr failure;
  ParseFault* fault = nullptr;  // where the first reason for a failure goes; null when nobody asks, or it is known
};

xmlParserCtxt& parserOf(void* context) { return *static_cast<xmlParserCtxt*>(context); }

// Runs what the parser called; the parser itself cannot be left by an exception. Behind an error it still calls for
// texts, although it no longer does for the elements around them.
template <typename Body>
void run(void* context, const Body& body) noexcept {
  Progress& progress = *static_cast<Progress*>(parserOf(context)._private);
  if (progress.failure || parserOf(context).disableSAX != 0) return;
  try {
    body(progress);
  } catch (...) {
    progress.failure = std::current_exception();
    xmlStopParser(&parserOf(context));
  }
}

// Where the parser is, in bytes of what it parses.
std::size_t offsetOf(xmlParserCtxt& parser) {
  const long consumed = xmlByteConsumed(&parser);
  return consumed < 0 ? 0 : static_cast<std::size_t>(consumed);
}

// Keeps the first reason for a failure.
void keepFault(Progress& progress, ParseFault fault) {
  if (progress.fault != nullptr) *std::exchange(progress.fault, nullptr) = std::move(fault);
}

void refuseDocumentType(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
  xmlParserCtxt& parser = parserOf(context);
  run(context, [&](Progress& progress) {
    keepFault(progress, {platform::XmlFault::Kind::DocumentType, offsetOf(parser),
                         "A document type declaration (DOCTYPE) is not accepted."});
  });
  xmlStopParser(&parser);
}

// White space beside markup is layout.
void passMarkup(Progress& progress) {
  progress.blanks.clear();
  progress.elementIsEmpty = false;
  progress.inText = false;
}

// The white space kept back is the start of a text.
void releaseBlanks(Progress& progress, xmlParserCtxt& parser) {
  if (progress.blanks.empty()) return;
  progress.events.text(parser, toXml(progress.blanks.data()), static_cast<int>(progress.blanks.size()));
  progress.blanks.clear();
}

void takeStart(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
               const xmlChar** namespaces, int attributeCount, int defaultedCount, const xmlChar** attributes) {
  run(context, [&](Progress& progress) {
    passMarkup(progress);
    progress.events.start(parserOf(context),
                          {name, prefix, uri, namespaceCount, namespaces, attributeCount, defaultedCount, attributes});
    progress.elementIsEmpty = true;
    ++progress.depth;
  });
}

void takeEnd(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) {
  run(context, [&](Progress& progress) {
    const bool isContent = progress.elementIsEmpty && !isLayout(progress.blanks.c_str(), false);
    if (isContent) releaseBlanks(progress, parserOf(context));
    passMarkup(progress);
    --progress.depth;
    progress.events.end(parserOf(context), name, prefix, uri);
  });
}

void takeText(void* context, const xmlChar* text, int size) {
  if (size == 0) return;  // an empty section is no text
  run(context, [&](Progress& progress) {
    const std::string_view piece(fromXml(text), static_cast<std::size_t>(size));
    if (!progress.inText && std::ranges::all_of(piece, isWhiteSpace)) {
      progress.blanks += piece;
      return;
    }
    releaseBlanks(progress, parserOf(context));
    progress.inText = true;
    progress.elementIsEmpty = false;
    progress.events.text(parserOf(context), text, size);
  });
}

void takeComment(void* context, const xmlChar* text) {
  run(context, [&](Progress& progress) {
    if (progress.depth == 0) return;
    passMarkup(progress);
    progress.events.comment(parserOf(context), text);
  });
}

void takeInstruction(void* context, const xmlChar* target, const xmlChar* data) {
  run(context, [&](Progress& progress) {
    if (progress.depth == 0) return;
    passMarkup(progress);
    progress.events.instruction(parserOf(context), target, data);
  });
}

// Whoever asked for the document sees that it is empty; nothing is printed. libxml2 does not count errors about
// namespaces as errors of form, and among them it has the opinion that the name of a namespace is no URI, which is
// none.
template <typename Error>
void noteError(void* context, Error error) {
  Progress& progress = *static_cast<Progress*>(parserOf(context)._private);
  const bool ofNamespaces =
      error->domain == XML_FROM_NAMESPACE && error->level >= XML_ERR_ERROR && error->code != XML_WAR_NS_URI;
  if (ofNamespaces) progress.namespaceError = true;
  if (progress.fault == nullptr || (!ofNamespaces && error->level != XML_ERR_FATAL)) return;
  run(context, [&](Progress&) {
    keepFault(progress, {platform::XmlFault::Kind::NotWellFormed, offsetOf(parserOf(context)), messageOf(*error)});
  });
}

void setUp(xmlParserCtxt& parser, Progress& progress) {
  xmlCtxtUseOptions(&parser, XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_COMPACT);
  parser._private = &progress;

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

// Whatever begins otherwise is no XML, and libxml2 would take some of it for another encoding.
bool beginsAsDocument(std::string_view text) {
  return !text.empty() && (text.front() == '<' || isWhiteSpace(text.front()));
}

bool isBlank(std::string_view text) { return std::ranges::all_of(text, isWhiteSpace); }

bool isParsable(std::string_view text) {
  return beginsAsDocument(text) && !isBlank(text) && text.size() <= INT_MAX && text::isXmlText(text);
}

// Why a text is not even parsed.
ParseFault faultBeforeParsing(std::string_view text) {
  using Kind = platform::XmlFault::Kind;
  if (isBlank(text)) return {Kind::Empty, 0, "The text is empty."};
  const std::size_t size = text::xmlTextSize(text);
  if (size < text.size()) {
    const auto character = text::forbiddenCharacter(text.substr(size));
    if (!character) return {Kind::ForbiddenCharacter, size, "The text is not UTF-8."};
    return {Kind::ForbiddenCharacter, size,
            "The character with the code " + std::to_string(static_cast<std::uint32_t>(*character)) +
                " is not allowed in XML."};
  }
  if (!beginsAsDocument(text)) return {Kind::NotWellFormed, 0, "A document begins with \"<\"."};
  return {Kind::NotWellFormed, 0, "The text is too long."};
}

// The parser tells a document type declaration only behind it.
void placeFault(std::string_view text, ParseFault& fault) {
  if (fault.kind != platform::XmlFault::Kind::DocumentType) return;
  const std::size_t declaration = text.rfind("<!DOCTYPE", fault.at);
  if (declaration != std::string_view::npos) fault.at = declaration;
}

}  // namespace

Owner<xmlParserCtxt> parse(std::string_view text, ParserEvents& events, ParseFault* fault) {
  const std::size_t markSize = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
  text.remove_prefix(markSize);
  if (!isParsable(text)) {
    if (fault != nullptr) {
      *fault = faultBeforeParsing(text);
      fault->at += markSize;
    }
    return nullptr;
  }

  Progress progress{.events = events, .blanks = {}, .failure = {}, .fault = fault};
  Owner<xmlParserCtxt> parser(made(xmlCreateMemoryParserCtxt(text.data(), static_cast<int>(text.size()))));
  setUp(*parser, progress);
  xmlParseDocument(parser.get());

  if (progress.failure) std::rethrow_exception(progress.failure);
  if (parser->errNo == XML_ERR_NO_MEMORY) throw std::bad_alloc();
  const bool stopped = parser->disableSAX != 0;
  if (parser->wellFormed != 0 && !stopped && !progress.namespaceError) return parser;
  keepFault(progress, {platform::XmlFault::Kind::NotWellFormed, offsetOf(*parser), messageOf(xmlError{})});
  if (fault != nullptr) {
    placeFault(text, *fault);
    fault->at += markSize;
  }
  xmlFreeDoc(parser->myDoc);
  return nullptr;
}

}  // namespace mavCycEd::libxml2
