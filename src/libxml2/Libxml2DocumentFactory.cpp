#include "libxml2/Libxml2DocumentFactory.h"

#include <libxml/parser.h>

#include "libxml2/ContentReader.h"
#include "libxml2/FaultFinder.h"
#include "libxml2/Libxml2Document.h"

namespace mavCycEd::libxml2 {
namespace {

// Readies libxml2 once, whichever thread comes first. It is never shut down again: the host may use it as well.
void readyLibrary() {
  static const bool ready = (xmlInitParser(), true);
  static_cast<void>(ready);
}

}  // namespace

std::unique_ptr<platform::XmlDocument> Libxml2DocumentFactory::createDocument() {
  readyLibrary();
  return std::make_unique<Libxml2Document>();
}

bool Libxml2DocumentFactory::readDocument(std::string_view text, platform::XmlContent& content) {
  readyLibrary();
  return readContent(text, content);
}

std::optional<platform::XmlFault> Libxml2DocumentFactory::faultIn(std::string_view text) {
  readyLibrary();
  return libxml2::faultIn(text);
}

}  // namespace mavCycEd::libxml2
