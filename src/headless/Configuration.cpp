#include "mavCycEd/Configuration.h"

#include <memory>

#include "headless/DocumentFaults.h"
#include "libxml2/Libxml2DocumentFactory.h"

namespace mavCycEd {

Reading<Configuration> Configuration::read(std::string text) {
  libxml2::Libxml2DocumentFactory xmlDocuments;
  const std::unique_ptr<platform::XmlDocument> document = xmlDocuments.createDocument();
  Reading<Configuration> reading;
  if (auto fault = headless::load(*document, text, headless::DocumentKind::Configuration, xmlDocuments)) {
    reading.faults.push_back(*std::move(fault));
    return reading;
  }
  reading.value = Configuration(std::move(text));
  return reading;
}

}  // namespace mavCycEd
