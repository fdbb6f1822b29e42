#include "cycle/CycleWriter.h"

#include <memory>

#include "cycle/CycleText.h"
#include "text/LineEnds.h"
#include "text/Strings.h"

namespace mavCycEd {

using platform::XmlDocument;
using platform::XmlNode;
using text::crLf;

namespace {

/// An atom line as the two elements that a cycle document holds of it.
struct AtomLineText {
  std::string summary;  ///< the ATOMLINE element
  std::string element;  ///< the ATOM element
};

void appendParameter(std::string& text, std::string_view name, std::string_view value) {
  text.append("<PARAMETER>").append(crLf);
  text.append("<PARAMNAME>").append(StripParamName(name)).append("</PARAMNAME>").append(crLf);
  text.append("<PARAMVALUE>").append(value).append("</PARAMVALUE>").append(crLf);
  text.append("</PARAMETER>");
}

// Appends one atom line to the summary lines and to the atom elements.
void appendAtomLine(AtomLineText& text, const cAtom& atom) {
  const std::string& name = atom.AtomName();
  const std::string parameterText = textOf(atom.AtomParameters());

  text.element.append("<ATOM>").append(crLf);
  text.element.append("<ATOMNAME>").append(name).append("</ATOMNAME>").append(crLf);
  text.element.append("<PARAMETERS>").append(crLf);
  text.summary.append("<ATOMLINE>").append(name).append("(");
  for (const std::string_view line : text::split(parameterText, '\r')) {
    const auto fields = text::split(line, ';');
    for (std::size_t k = 1; k < fields.size(); ++k) appendParameter(text.element, fields[0], fields[k]);
    if (fields.size() > 1) text.summary.append(fields.back()).append(",");
  }
  text.summary.append(")</ATOMLINE>").append(crLf);
  text.element.append(crLf).append("</PARAMETERS>").append(crLf);
  text.element.append("</ATOM>").append(crLf);
}

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
  return guarded(errors_, "RetrieveCycleVersion02", [this]() -> std::string {
    if (isSequenceEmpty()) return {};
    const std::unique_ptr<XmlDocument> document = xmlDocuments_.createDocument();
    document->loadXML(documentText("02"));
    AppendDescriptionNode(*document, description());
    return document->xml();
  });
}

std::string CycleWriter::RetrieveCycleVersion03() {
  return guarded(errors_, "RetrieveCycleVersion03", [this] { return version03(ModifiedStamp::Kept); });
}

std::string CycleWriter::RetrieveNewCycle() {
  return guarded(errors_, "RetrieveNewCycle", [this] { return version03(ModifiedStamp::Renewed); });
}

std::string CycleWriter::version03(ModifiedStamp modified) {
  if (isSequenceEmpty()) return {};
  const Timestamps stamps = timestamps(modified);
  const std::unique_ptr<XmlDocument> document = xmlDocuments_.createDocument();
  document->loadXML(documentText("03"));
  AppendDescriptionNode03(*document, description());
  AddAttribute(*document, "Created", stamps.created);
  AddAttribute(*document, "Modified", stamps.modified);
  return document->xml();
}

bool CycleWriter::isSequenceEmpty() const {
  return screen_.lstAtomSequence.itemCount() == 0 && cycle_.atoms.Count() == 0;
}

std::string CycleWriter::description() const {
  return std::string(descriptionMarker) + screen_.txtCycleDescription.text();
}

CycleWriter::Timestamps CycleWriter::timestamps(ModifiedStamp modified) const {
  const std::string now = clock_.localTimestamp();
  Timestamps stamps{now, now};
  const XmlNode loaded = cycle_.reference ? cycle_.reference->selectSingleNode("/CYCLE") : XmlNode();
  if (!loaded) return stamps;
  if (const auto created = loaded.getAttributeNode("Created")) stamps.created = created->value;
  if (modified == ModifiedStamp::Renewed) return stamps;
  if (const auto kept = loaded.getAttributeNode("Modified")) stamps.modified = kept->value;
  return stamps;
}

void CycleWriter::appendVariables(std::string& text) const {
  text.append("<VARIABLES>").append(crLf);
  for (int i = 0; i < screen_.lstVariables.itemCount(); ++i) {
    const std::string variable = screen_.lstVariables.itemText(i);
    if (text::trimSpaces(variable).empty()) continue;
    text.append("<VALUE>").append(variable).append("</VALUE>").append(crLf);
  }
  text.append("</VARIABLES>").append(crLf);
}

std::string CycleWriter::documentText(std::string_view version) const {
  AtomLineText atomLines;
  for (const cAtom& atom : cycle_.atoms) appendAtomLine(atomLines, atom);

  std::string text;
  text.append("<CYCLE>").append(crLf);
  appendVariables(text);
  text.append("<CYCLEATOMS>").append(crLf).append(atomLines.summary).append("</CYCLEATOMS>").append(crLf);
  text.append("<ATOMSEQUENCE>").append(crLf).append("<ATOMS>").append(crLf);
  text.append(atomLines.element).append(crLf);
  text.append("</ATOMS>").append(crLf).append("</ATOMSEQUENCE>").append(crLf);
  text.append("<VERSION>").append(version).append("</VERSION>").append(crLf).append(crLf);
  text.append("</CYCLE>");
  return text;
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
