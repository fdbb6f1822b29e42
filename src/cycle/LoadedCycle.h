#pragma once

#include <string_view>

#include "cycle/ReferenceCycle.h"
#include "mavCycEd/Cycle.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// What a cycle document holds for the editor.
struct LoadedCycle {
  bool isEmpty = true;  ///< there is no document
  CycleFacts facts;
  Cycle cycle;                ///< what could be read of it: the atom lines up to the first that lacks something
  bool hasVariables = false;  ///< whether there is CYCLE/VARIABLES
  bool hasAtoms = false;      ///< whether there is CYCLE/ATOMSEQUENCE/ATOMS
  bool lacksElement = false;  ///< an ATOM without name, or a PARAMETER without name or value, ended the lines
};

/// Reads a cycle document in one go; nothing is loaded from a text that holds no document.
LoadedCycle readCycle(std::string_view text, platform::XmlDocumentFactory& xmlDocuments);

}  // namespace mavCycEd
