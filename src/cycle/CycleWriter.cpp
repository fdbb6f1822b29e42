#include "cycle/CycleWriter.h"

#include <memory>
#include <utility>

#include "cycle/CycleText.h"
#include "cycle/CycleXml.h"

namespace mavCycEd {

using platform::XmlDocument;
using platform::XmlNode;

namespace {

// Puts a DESCRIPTION element with this text in front of VARIABLES; without VARIABLES there is no place for it.
void insertDescription(XmlDocument& document, std::string_view description) {
  XmlNode cycle = document.selectSingleNode("CYCLE");
  if (!cycle) return;
  XmlNode element = document.createNode("DESCRIPTION");
  element.setText(description);
  if (const XmlNode variables = document.selectSingleNode("/CYCLE/VARIABLES")) cycle.insertBefore(element, variables);
}

}  // namespace

std::string CycleWriter::RetrieveCycleVersion02() {
  return guarded(errors_, "RetrieveCycleVersion02", [this] { return version02(); });
}

std::string CycleWriter::RetrieveCycleVersion03() {
  return guarded(errors_, "RetrieveCycleVersion03", [this] { return version03(ModifiedStamp::Kept); });
}

std::string CycleWriter::RetrieveNewCycle() {
  return guarded(errors_, "RetrieveNewCycle", [this] { return version03(ModifiedStamp::Renewed); });
}

std::string CycleWriter::version02() {
  if (cycle_.lines.empty()) return {};
  const std::string marked = description();
  return written(ConvertDescription(marked), {.version = "02", .created = {}, .modified = {}},
                 [&](XmlDocument& document) { AppendDescriptionNode(document, marked); });
}

std::string CycleWriter::version03(ModifiedStamp modified) {
  if (cycle_.lines.empty()) return {};
  const CycleFacts facts = newFormatFacts(modified);
  const std::string marked = description();
  return written(marked, facts, [&](XmlDocument& document) {
    AppendDescriptionNode03(document, marked);
    AddAttribute(document, "Created", *facts.created);
    AddAttribute(document, "Modified", *facts.modified);
  });
}

// The document as text. Where it cannot be written at once, it is loaded from its text, and `complete` adds what only
// a document can be given.
template <typename Complete>
std::string CycleWriter::written(std::string_view description, CycleFacts facts, const Complete& complete) {
  writtenFacts_ = {};
  const CycleContent content{cycle_, description, facts};
  if (std::optional<std::string> xml = plainCycleXml(content)) {
    writtenFacts_ = std::move(facts);
    return *std::move(xml);
  }
  const std::unique_ptr<XmlDocument> document = xmlDocuments_.createDocument();
  document->loadXML(rawCycleText(content));
  complete(*document);
  writtenFacts_ = factsOf(*document);
  return document->xml();
}

std::string CycleWriter::description() const { return std::string(descriptionMarker) + cycle_.description; }

CycleFacts CycleWriter::newFormatFacts(ModifiedStamp modified) const {
  const std::string now = clock_.localTimestamp();
  const CycleFacts& loaded = reference_.timestamps();
  const bool keeps = modified == ModifiedStamp::Kept;
  return {.version = "03",
          .created = loaded.created.value_or(now),
          .modified = keeps ? loaded.modified.value_or(now) : now};
}

void CycleWriter::AppendDescriptionNode(XmlDocument& document, std::string_view description) {
  guarded(errors_, "AppendDescriptionNode", [&] { insertDescription(document, ConvertDescription(description)); });
}

void CycleWriter::AppendDescriptionNode03(XmlDocument& document, std::string_view description) {
  guarded(errors_, "AppendDescriptionNode03", [&] { insertDescription(document, description); });
}

void CycleWriter::AddAttribute(XmlDocument& document, std::string_view name, std::string_view value) {
  guarded(errors_, "AddAttribute", [&] {
    const XmlNode cycle = document.selectSingleNode("/CYCLE");
    if (!cycle) return;
    platform::XmlAttribute attribute = document.createAttribute(name);
    attribute.value = value;
    cycle.attributes().setNamedItem(attribute);
  });
}

}  // namespace mavCycEd
