#include "libxml2/FaultFinder.h"

#include <utility>

#include "libxml2/Parsing.h"
#include "text/TextPosition.h"

namespace mavCycEd::libxml2 {
namespace {

/// Lets everything pass.
class NoEvents : public ParserEvents {
 public:
  void start(xmlParserCtxt&, const ElementStart&) override {}
  void end(xmlParserCtxt&, const xmlChar*, const xmlChar*, const xmlChar*) override {}
  void text(xmlParserCtxt&, const xmlChar*, int) override {}
  void comment(xmlParserCtxt&, const xmlChar*) override {}
  void instruction(xmlParserCtxt&, const xmlChar*, const xmlChar*) override {}
};

}  // namespace

std::optional<platform::XmlFault> faultIn(std::string_view text) {
  NoEvents events;
  ParseFault fault;
  if (const Owner<xmlParserCtxt> parser = parse(text, events, &fault)) {
    const Owner<xmlDoc> unused(std::exchange(parser->myDoc, nullptr));
    return std::nullopt;
  }
  const text::TextPosition position = text::positionAt(text, fault.at);
  return platform::XmlFault{fault.kind, position.line, position.column, std::move(fault.message)};
}

}  // namespace mavCycEd::libxml2
