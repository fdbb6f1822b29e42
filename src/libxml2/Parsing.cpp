#include "libxml2/Parsing.h"

#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <exception>
#include <new>
#include <string>

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

void refuseDocumentType(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
  xmlStopParser(&parserOf(context));
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
  if (error->domain == XML_FROM_NAMESPACE && error->level >= XML_ERR_ERROR && error->code != XML_WAR_NS_URI) {
    static_cast<Progress*>(parserOf(context)._private)->namespaceError = true;
  }
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

}  // namespace

Owner<xmlParserCtxt> parse(std::string_view text, ParserEvents& events) {
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  // Whatever begins otherwise is no XML, and libxml2 would take some of it for another encoding.
  if (text.empty() || (text.front() != '<' && !isWhiteSpace(text.front()))) return nullptr;
  if (text.size() > INT_MAX || !text::isXmlText(text)) return nullptr;

  Progress progress{.events = events, .blanks = {}, .failure = {}};
  Owner<xmlParserCtxt> parser(made(xmlCreateMemoryParserCtxt(text.data(), static_cast<int>(text.size()))));
  setUp(*parser, progress);
  xmlParseDocument(parser.get());

  if (progress.failure) std::rethrow_exception(progress.failure);
  if (parser->errNo == XML_ERR_NO_MEMORY) throw std::bad_alloc();
  const bool stopped = parser->disableSAX != 0;
  if (parser->wellFormed == 0 || stopped || progress.namespaceError) {
    xmlFreeDoc(parser->myDoc);
    return nullptr;
  }
  return parser;
}

}  // namespace mavCycEd::libxml2
