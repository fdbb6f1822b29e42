#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cycle/ReferenceCycle.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// One atom line as a cycle document holds it.
struct LoadedAtomLine {
  std::string name;
  std::string parameters;  ///< the parameter text: name, ";" and value for each, carriage returns between them
};

/// What a cycle document holds for the editor.
struct LoadedCycle {
  bool isEmpty = true;  ///< there is no document
  CycleFacts facts;
  std::optional<std::string> description;             ///< the text of CYCLE/DESCRIPTION
  std::optional<std::vector<std::string>> variables;  ///< the texts of the elements in CYCLE/VARIABLES
  bool hasAtoms = false;                              ///< whether there is CYCLE/ATOMSEQUENCE/ATOMS
  std::vector<LoadedAtomLine> atomLines;              ///< its ATOM elements, up to the first that lacks something
  bool lacksElement = false;  ///< an ATOM without name, or a PARAMETER without name or value, ended them
};

/// Reads a cycle document in one go; nothing is loaded from a text that holds no document.
LoadedCycle readCycle(std::string_view text, platform::XmlDocumentFactory& xmlDocuments);

}  // namespace mavCycEd
