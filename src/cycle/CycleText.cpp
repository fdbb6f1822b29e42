#include "cycle/CycleText.h"

#include <array>

#include "catalogue/CatalogueText.h"
#include "text/Strings.h"

namespace mavCycEd {
namespace {

struct Entity {
  std::string_view character;
  std::string_view reference;
};

constexpr Entity ampersand{"&", "&amp;"};
constexpr std::array otherEntities{Entity{"<", "&lt;"}, Entity{">", "&gt;"}, Entity{"\"", "&quot;"},
                                   Entity{"'", "&apos;"}};

}  // namespace

std::string ConvertDescription(std::string_view text) {
  std::string converted = text::replaceAll(text, ampersand.character, ampersand.reference);
  for (const Entity& entity : otherEntities) {
    converted = text::replaceAll(converted, entity.character, entity.reference);
  }
  return converted;
}

std::string ReverseDescription(std::string_view text) {
  std::string reversed(text);
  for (const Entity& entity : otherEntities) {
    reversed = text::replaceAll(reversed, entity.reference, entity.character);
  }
  return text::replaceAll(reversed, ampersand.reference, ampersand.character);
}

std::string StripParamName(std::string_view name) { return cleanedEntry(name); }

}  // namespace mavCycEd
