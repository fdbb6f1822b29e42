#include "paramgrid/ObjectTests.h"

#include "catalogue/CatalogueText.h"

namespace mavCycEd {

bool ItIsObject(std::string_view text) { return isObjectName(cleanedEntry(text)); }

}  // namespace mavCycEd
