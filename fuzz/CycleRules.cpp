#include "CycleRules.h"

#include <algorithm>

#include "Require.h"
#include "cycle/CycleText.h"
#include "text/LineEnds.h"
#include "text/Strings.h"
#include "text/XmlText.h"

namespace mavCycEd::fuzz {
namespace {

using platform::XmlNode;

std::optional<std::string> textOfFirst(const XmlNode& node, std::string_view path) {
  const XmlNode found = node.selectSingleNode(path);
  if (!found) return std::nullopt;
  return found.text();
}

std::optional<LoadedAtomLine> atomLineOf(const XmlNode& atom) {
  const auto name = textOfFirst(atom, "ATOMNAME");
  std::string parameters;
  for (const XmlNode& parameter : atom.selectNodes("PARAMETERS/PARAMETER")) {
    const auto paramName = textOfFirst(parameter, "PARAMNAME");
    const auto value = textOfFirst(parameter, "PARAMVALUE");
    if (!paramName || !value) return std::nullopt;
    if (!parameters.empty()) parameters += '\r';
    parameters.append(*paramName).append(";").append(*value);
  }
  if (!name) return std::nullopt;
  if (parameters.starts_with(';')) parameters.erase(0, 1);
  return LoadedAtomLine{*name, parameters};
}

LoadedCycle cycleOf(platform::XmlDocument& document) {
  LoadedCycle cycle;
  cycle.isEmpty = document.childNodes().length() == 0;
  const XmlNode root = document.selectSingleNode("CYCLE");
  if (!root) return cycle;
  cycle.facts = factsOf(document);
  cycle.description = textOfFirst(root, "DESCRIPTION");
  if (const XmlNode variables = root.selectSingleNode("VARIABLES")) {
    cycle.variables.emplace();
    for (const XmlNode& variable : variables.childNodes()) cycle.variables->push_back(variable.text());
  }
  const XmlNode atoms = root.selectSingleNode("ATOMSEQUENCE/ATOMS");
  cycle.hasAtoms = static_cast<bool>(atoms);
  if (!atoms) return cycle;
  for (const XmlNode& atom : atoms.selectNodes("ATOM")) {
    const std::optional<LoadedAtomLine> line = atomLineOf(atom);
    cycle.lacksElement = !line;
    if (!line) break;
    cycle.atomLines.push_back(*line);
  }
  return cycle;
}

std::string throughADocument(const CycleContent& content, platform::XmlDocumentFactory& xmlDocuments) {
  const auto document = xmlDocuments.createDocument();
  document->loadXML(rawCycleText(content));
  XmlNode cycle = document->selectSingleNode("CYCLE");
  if (!cycle) return {};
  XmlNode description = document->createNode("DESCRIPTION");
  description.setText(content.description);
  cycle.insertBefore(description, document->selectSingleNode("CYCLE/VARIABLES"));
  cycle.attributes().setNamedItem({"Created", *content.facts.created});
  cycle.attributes().setNamedItem({"Modified", *content.facts.modified});
  return document->xml();
}

CycleFacts someFacts() { return {.version = "03", .created = "2024-03-09T14:05:00", .modified = "2024-03-10"}; }

bool isSame(const LoadedAtomLine& a, const LoadedAtomLine& b) {
  return a.name == b.name && a.parameters == b.parameters;
}

}  // namespace

void requireReadsAsADocument(std::string_view text, platform::XmlDocumentFactory& xmlDocuments) {
  const auto document = xmlDocuments.createDocument();
  document->loadXML(text);
  const LoadedCycle expected = cycleOf(*document);
  const LoadedCycle read = readCycle(text, xmlDocuments);
  require(read.isEmpty == expected.isEmpty, "a cycle is read from what a document accepts");
  require(read.facts.version == expected.facts.version, "the version is that of the document");
  require(read.facts.created == expected.facts.created && read.facts.modified == expected.facts.modified,
          "the timestamps are those of the document");
  require(read.description == expected.description, "the description is that of the document");
  require(read.variables == expected.variables, "the variables are those of the document");
  require(read.hasAtoms == expected.hasAtoms, "there is an atom sequence where the document has one");
  require(read.lacksElement == expected.lacksElement, "an element is missing where the document has none");
  require(std::ranges::equal(read.atomLines, expected.atomLines, isSame), "the atom lines are those of the document");
}

bool requirePlainAsFromADocument(const HeldCycle& held, platform::XmlDocumentFactory& xmlDocuments) {
  const CycleFacts facts = someFacts();
  const std::string description = std::string(descriptionMarker) + held.description;
  const CycleContent content{held.atoms, held.variables, description, facts};
  const std::optional<std::string> xml = plainCycleXml(content);
  if (!xml) return false;
  requireSame(*xml, throughADocument(content, xmlDocuments), "a plain cycle reads as if it came from a document");
  return true;
}

bool isLastingCycle(const HeldCycle& held) {
  const std::string& description = held.description;
  if (description.find('&') != std::string::npos || description.find("//") != std::string::npos) return false;
  if (text::toXmlText(description) != text::toLf(description)) return false;
  for (const cAtom& atom : held.atoms) {
    const std::string parameters = textOf(atom.AtomParameters());
    for (const std::string_view line : text::split(parameters, '\r')) {
      const auto fields = text::split(line, ';');
      if (fields.size() > 2 || (fields.size() == 2 && StripParamName(fields[0]).empty())) return false;
    }
  }
  return true;
}

std::string reloadedParameters(const cAtom& atom) {
  const std::string parameters = textOf(atom.AtomParameters());
  std::string reloaded;
  for (const std::string_view line : text::split(parameters, '\r')) {
    const auto fields = text::split(line, ';');
    for (std::size_t i = 1; i < fields.size(); ++i) {
      if (!reloaded.empty()) reloaded += '\r';
      reloaded.append(StripParamName(fields[0])).append(";").append(fields[i]);
    }
  }
  if (reloaded.starts_with(';')) reloaded.erase(0, 1);
  return reloaded;
}

}  // namespace mavCycEd::fuzz
