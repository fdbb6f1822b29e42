#include "mavCycEd/Configuration.h"

#include <memory>

#include "headless/DocumentFaults.h"
#include "libxml2/Libxml2DocumentFactory.h"

namespace mavCycEd {

Reading<Configuration> Configuration::read(std::string text) {
  libxml2::Libxml2DocumentFactory xmlDocuments;
  const std::unique_ptr<platform::XmlDocument> document = xmlDocuments.createDocument();
  Reading<Configuration> reading;
  if (!document->loadXML(text)) {
    reading.faults.push_back(headless::xmlFault(text, xmlDocuments));
    return reading;
  }
  const platform::XmlNode root = document->documentNode().firstChild();
  if (auto fault = headless::rootFault(text, root.nodeName(), headless::DocumentKind::Configuration)) {
    reading.faults.push_back(*std::move(fault));
    return reading;
  }
  reading.value = Configuration(std::move(text));
  return reading;
}

}  // namespace mavCycEd
