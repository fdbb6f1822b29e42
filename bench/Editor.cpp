#include "Editor.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <map>

#include "Comparison.h"
#include "Data.h"

namespace mavCycEd::bench {
namespace {

xmlDoc* parsed(const std::string& text) {
  return xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                       XML_PARSE_NOBLANKS | XML_PARSE_HUGE | XML_PARSE_NONET);
}

}  // namespace

std::unique_ptr<Editor> loadedEditor(const std::string& cycle) {
  auto editor = std::make_unique<Editor>();
  editor->control().SetConfigXML(instrument().configuration);
  editor->control().SetXMLStrings(instrument().catalogue, cycle);
  return editor;
}

double secondsToParse(const std::string& text) {
  xmlDoc* document = nullptr;
  const double seconds = secondsOf([&] { document = parsed(text); });
  xmlFreeDoc(document);
  return seconds;
}

double secondsToSerialise(const std::string& text) {
  static std::map<const std::string*, xmlDoc*> documents;
  xmlDoc*& document = documents[&text];
  if (document == nullptr) document = parsed(text);
  xmlChar* written = nullptr;
  int size = 0;
  const double seconds = secondsOf([&] { xmlDocDumpFormatMemoryEnc(document, &written, &size, "UTF-8", 1); });
  xmlFree(written);
  return seconds;
}

}  // namespace mavCycEd::bench
