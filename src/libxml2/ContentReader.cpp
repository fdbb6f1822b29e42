#include "libxml2/ContentReader.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "libxml2/Parsing.h"
#include "text/LineEnds.h"
#include "text/Strings.h"

namespace mavCycEd::libxml2 {
namespace {

/// Hands on what the parser meets, as the tree of a document would hold it.
class ContentEvents : public ParserEvents {
 public:
  explicit ContentEvents(platform::XmlContent& content) : content_(content) {}

  void start(xmlParserCtxt&, const ElementStart& element) override {
    afterReturn_ = false;
    attributes_.clear();
    for (int i = 0; i < element.attributeCount; ++i) {
      const xmlChar* const* const attribute = element.attributes + 5 * static_cast<std::ptrdiff_t>(i);
      attributes_.push_back(
          {qualified(attribute[1], attribute[0]), value({fromXml(attribute[3]), fromXml(attribute[4])})});
    }
    if (element.prefix == nullptr) {
      content_.startElement(fromXml(element.name), attributes_);
    } else {
      content_.startElement(qualified(element.prefix, element.name), attributes_);
    }
  }
  void end(xmlParserCtxt&, const xmlChar*, const xmlChar*, const xmlChar*) override {
    afterReturn_ = false;
    content_.endElement();
  }
  void text(xmlParserCtxt&, const xmlChar* text, int size) override {
    std::string_view piece(fromXml(text), static_cast<std::size_t>(size));
    // A line end of two characters may come in two pieces.
    if (afterReturn_ && piece.front() == '\n') piece.remove_prefix(1);
    afterReturn_ = size > 0 && text[size - 1] == '\r';
    if (piece.empty()) return;
    content_.text(holdsCarriageReturn(piece) ? text::toLf(piece) : piece);
  }
  void comment(xmlParserCtxt&, const xmlChar*) override { afterReturn_ = false; }
  void instruction(xmlParserCtxt&, const xmlChar*, const xmlChar*) override { afterReturn_ = false; }

 private:
  static std::string qualified(const xmlChar* prefix, const xmlChar* name) {
    return prefix == nullptr ? fromXml(name) : std::string(fromXml(prefix)).append(":").append(fromXml(name));
  }
  // The parser leaves "&" in a value as a reference.
  static std::string value(std::string_view read) {
    return text::replaceAll(holdsCarriageReturn(read) ? text::toLf(read) : std::string(read), "&#38;", "&");
  }

  platform::XmlContent& content_;
  std::vector<platform::XmlAttribute> attributes_;
  bool afterReturn_ = false;  // the last piece of the text ended with a carriage return
};

}  // namespace

bool readContent(std::string_view text, platform::XmlContent& content) {
  ContentEvents events(content);
  const Owner<xmlParserCtxt> parser = parse(text, events);
  if (parser == nullptr) return false;
  const Owner<xmlDoc> unused(std::exchange(parser->myDoc, nullptr));
  return true;
}

}  // namespace mavCycEd::libxml2
