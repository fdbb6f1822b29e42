#include "CycleRules.h"

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

std::optional<AtomLine> atomLineOf(const XmlNode& atom) {
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
  return AtomLine{*name, ParameterText(parameters)};
}

LoadedCycle cycleOf(platform::XmlDocument& document) {
  LoadedCycle loaded;
  loaded.isEmpty = document.childNodes().length() == 0;
  const XmlNode root = document.selectSingleNode("CYCLE");
  if (!root) return loaded;
  loaded.facts = factsOf(document);
  const std::string description =
      text::replaceAll(textOfFirst(root, "DESCRIPTION").value_or(""), descriptionMarker, "");
  loaded.cycle.description = ReverseDescription(text::replaceAll(description, "\n", text::crLf));
  if (const XmlNode variables = root.selectSingleNode("VARIABLES")) {
    loaded.hasVariables = true;
    for (const XmlNode& variable : variables.childNodes()) loaded.cycle.variables.emplace_back(variable.text());
  }
  const XmlNode atoms = root.selectSingleNode("ATOMSEQUENCE/ATOMS");
  loaded.hasAtoms = static_cast<bool>(atoms);
  if (!atoms) return loaded;
  for (const XmlNode& atom : atoms.selectNodes("ATOM")) {
    const std::optional<AtomLine> line = atomLineOf(atom);
    loaded.lacksElement = !line;
    if (!line) break;
    loaded.cycle.lines.push_back(*line);
  }
  return loaded;
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
  require(read.hasVariables == expected.hasVariables, "there are variables where the document has them");
  require(read.hasAtoms == expected.hasAtoms, "there is an atom sequence where the document has one");
  require(read.lacksElement == expected.lacksElement, "an element is missing where the document has none");
  require(read.cycle == expected.cycle, "description, variables and atom lines are those of the document");
}

bool requirePlainAsFromADocument(const Cycle& cycle, platform::XmlDocumentFactory& xmlDocuments) {
  const CycleFacts facts = someFacts();
  const std::string description = std::string(descriptionMarker) + cycle.description;
  const CycleContent content{cycle, description, facts};
  const std::optional<std::string> xml = plainCycleXml(content);
  if (!xml) return false;
  requireSame(*xml, throughADocument(content, xmlDocuments), "a plain cycle reads as if it came from a document");
  return true;
}

bool isLastingCycle(const Cycle& cycle) {
  const std::string& description = cycle.description;
  if (description.find('&') != std::string::npos || description.find("//") != std::string::npos) return false;
  if (text::toXmlText(description) != text::toLf(description)) return false;
  for (const AtomLine& line : cycle.lines) {
    for (const ParameterSegment& segment : line.parameters.segments()) {
      const auto fields = segment.fields();
      if (fields.size() > 2 || (fields.size() == 2 && StripParamName(fields[0]).empty())) return false;
    }
  }
  return true;
}

std::string reloadedParameters(const ParameterText& parameters) {
  std::string reloaded;
  for (const ParameterSegment& segment : parameters.segments()) {
    const auto fields = segment.fields();
    for (std::size_t i = 1; i < fields.size(); ++i) {
      if (!reloaded.empty()) reloaded += '\r';
      reloaded.append(StripParamName(fields[0])).append(";").append(fields[i]);
    }
  }
  if (reloaded.starts_with(';')) reloaded.erase(0, 1);
  return reloaded;
}

}  // namespace mavCycEd::fuzz
