#include "catalogue/CatalogueText.h"

#include <algorithm>

#include "text/Strings.h"

namespace mavCycEd {

bool isObjectName(std::string_view text) {
  return text.size() > 1 && std::ranges::all_of(text, [](char character) {
           return (character >= 'A' && character <= 'Z') || character == '_';
         });
}

std::string cleanedEntry(std::string_view text) { return text::withoutCharacters(text, U",\u00C2\u00C3\u00C4"); }

std::string pickerName(std::string_view atomName) { return text::withoutCharacters(atomName, U"!"); }

}  // namespace mavCycEd
