#include "mavCycEd/CycleReading.h"

#include <string>
#include <utility>

#include "cycle/LoadedCycle.h"
#include "cycle/MacroLines.h"
#include "headless/DocumentFaults.h"
#include "libxml2/Libxml2DocumentFactory.h"

namespace mavCycEd {
namespace {

using headless::faultAtElement;

constexpr std::size_t rootElement = 1;

TextFault lackFault(std::string_view text, const LoadedCycle& loaded) {
  const std::string element = loaded.missingElement == "ATOMNAME" ? "ATOM" : "PARAMETER";
  return faultAtElement(text, loaded.elementWithout,
                        "The " + element + " has no element " + loaded.missingElement +
                            ": this atom line and all behind it are not loaded.");
}

}  // namespace

Reading<ReadCycle> readCycleDocument(std::string_view text) {
  libxml2::Libxml2DocumentFactory xmlDocuments;
  LoadedCycle loaded = readCycle(text, xmlDocuments);
  Reading<ReadCycle> reading;
  if (loaded.isEmpty) {
    reading.faults.push_back(headless::xmlFault(text, xmlDocuments));
    return reading;
  }
  if (auto fault = headless::rootFault(text, loaded.root, headless::DocumentKind::Cycle)) {
    reading.faults.push_back(*std::move(fault));
    return reading;
  }
  if (!loaded.hasVariables) {
    reading.faults.push_back(faultAtElement(
        text, rootElement, "It has no element VARIABLES, and the editor loads nothing from a cycle without one."));
    return reading;
  }
  if (!loaded.hasAtoms) {
    reading.faults.push_back(
        faultAtElement(text, rootElement, "It has no element ATOMS in an ATOMSEQUENCE: there are no atom lines."));
  } else if (loaded.lacksElement) {
    reading.faults.push_back(lackFault(text, loaded));
  }
  reading.value = ReadCycle{std::move(loaded.cycle), std::move(loaded.facts)};
  return reading;
}

Reading<ReadCycle> readCycle(std::string_view text, const Catalogue& catalogue) {
  return isMacroText(text) ? readMacroText(text, catalogue) : readCycleDocument(text);
}

}  // namespace mavCycEd
