#include "rules/ObjectTests.h"

#include "catalogue/CatalogueText.h"

namespace mavCycEd {

bool ItIsObject(std::string_view text) { return isObjectName(cleanedEntry(text)); }

bool IsAnObject(std::string_view text) {
  const std::size_t open = text.find('(');
  return open != std::string_view::npos && isObjectName(text.substr(0, open));
}

}  // namespace mavCycEd
