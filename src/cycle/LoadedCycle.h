#pragma once

#include <cstddef>
#include <string>
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

  std::string root;                ///< the name of the outermost element
  std::string missingElement;      ///< what was lacking: ATOMNAME, PARAMNAME or PARAMVALUE
  std::size_t elementWithout = 0;  ///< which element lacks it, counted from 1 in document order
};

/// Reads a cycle document in one go; nothing is loaded from a text that holds no document.
LoadedCycle readCycle(std::string_view text, platform::XmlDocumentFactory& xmlDocuments);

}  // namespace mavCycEd
