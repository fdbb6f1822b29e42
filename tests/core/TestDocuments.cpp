#include "TestDocuments.h"

namespace mavCycEd::test {

std::string escaped(std::string_view text) {
  std::string result;
  for (const char character : text) {
    switch (character) {
      case '&': result += "&amp;"; break;
      case '<': result += "&lt;"; break;
      case '>': result += "&gt;"; break;
      default: result += character; break;
    }
  }
  return result;
}

std::string element(std::string_view name, std::string_view content) {
  std::string result = "<";
  result.append(name).append(">").append(content).append("</").append(name).append(">");
  return result;
}

std::string xmlOf(const Catalogue& catalogue) {
  std::string atoms;
  for (const CatalogueAtom& atom : catalogue.atoms) {
    std::string content = element("AtomName", escaped(atom.name));
    for (const std::string& definition : atom.definitions) content += element("Param", escaped(definition));
    atoms += element("ATOM", content);
  }
  std::string lists;
  for (const auto& [number, entries] : catalogue.lists) {
    lists += element("LIST", element("Number", escaped(number)) + element("Entries", escaped(entries)));
  }
  return element("LATESTKAM", element("ATOMS", atoms) + element("CLASSES", catalogue.classes) +
                                  element("OBJECTS", catalogue.objects) + element("LISTS", lists));
}

std::string xmlOf(const CycleOf& cycle) {
  std::string variables;
  for (const std::string& variable : cycle.variables) variables += element("VALUE", escaped(variable));
  std::string lines;
  for (const CycleLine& line : cycle.lines) {
    std::string parameters;
    for (const auto& [name, value] : line.parameters) {
      parameters += element("PARAMETER", element("PARAMNAME", escaped(name)) + element("PARAMVALUE", escaped(value)));
    }
    lines += element("ATOM", element("ATOMNAME", escaped(line.name)) + element("PARAMETERS", parameters));
  }
  std::string content = element("DESCRIPTION", escaped(cycle.description)) + element("VARIABLES", variables) +
                        element("ATOMSEQUENCE", element("ATOMS", lines));
  if (!cycle.version.empty()) content += element("VERSION", cycle.version);
  return "<CYCLE" + cycle.attributes + ">" + content + "</CYCLE>";
}

std::string catalogueOf(const std::vector<std::string>& names) {
  Catalogue catalogue;
  for (const std::string& name : names) catalogue.atoms.push_back({name, {}});
  return xmlOf(catalogue);
}

std::string catalogueWith(const std::vector<std::string>& definitions) {
  Catalogue catalogue;
  catalogue.atoms.push_back({"ATOM", definitions});
  return xmlOf(catalogue);
}

std::string cycleOf(const std::vector<std::string>& names) {
  CycleOf cycle;
  for (const std::string& name : names) cycle.lines.push_back({name, {}});
  return xmlOf(cycle);
}

}  // namespace mavCycEd::test
