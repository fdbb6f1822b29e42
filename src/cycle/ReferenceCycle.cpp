#include "cycle/ReferenceCycle.h"

#include <memory>
#include <utility>

namespace mavCycEd {
namespace {

using platform::XmlNode;

std::optional<std::string> attributeOf(const XmlNode& element, std::string_view name) {
  auto attribute = element.getAttributeNode(name);
  if (!attribute) return std::nullopt;
  return std::move(attribute->value);
}

}  // namespace

CycleFacts factsOf(platform::XmlDocument& document) {
  CycleFacts facts;
  const XmlNode cycle = document.selectSingleNode("CYCLE");
  if (!cycle) return facts;
  if (const XmlNode version = cycle.selectSingleNode("VERSION")) facts.version = version.nodeTypedValue();
  facts.created = attributeOf(cycle, "Created");
  facts.modified = attributeOf(cycle, "Modified");
  return facts;
}

void ReferenceCycle::setLoaded(std::string_view text, CycleFacts facts) {
  text_ = text;
  isXml_ = text.empty();
  facts_ = std::move(facts);
  timestamps_ = facts_;
}

void ReferenceCycle::setWritten(std::string xml, CycleFacts facts) {
  text_ = std::move(xml);
  isXml_ = true;
  facts_ = std::move(facts);
  if (!text_.empty()) timestamps_ = facts_;
}

const std::string& ReferenceCycle::xml(platform::XmlDocumentFactory& xmlDocuments) {
  if (!isXml_) {
    const std::unique_ptr<platform::XmlDocument> document = xmlDocuments.createDocument();
    document->loadXML(text_);
    text_ = document->xml();
    isXml_ = true;
  }
  return text_;
}

bool ReferenceCycle::isWrittenAs(const std::string& xml, platform::XmlDocumentFactory& xmlDocuments) {
  // A text that was written out is written out as it is once it has been loaded.
  return text_ == xml || (!isXml_ && this->xml(xmlDocuments) == xml);
}

}  // namespace mavCycEd
