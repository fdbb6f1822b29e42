#include "rules/ObjectPickList.h"

#include <utility>

#include "text/Strings.h"

namespace mavCycEd {

void ObjectPickList::FillObjectItems(std::string_view classList, std::string& items, std::string& defaultItem) {
  ValueList names;
  guarded(errors_, "FillObjectItems", [&] {
    const auto classes = text::split(classList, ';');
    if (classList == "SYRINGE") names.emplace_back("SYR");
    for (CatalogueObject& object : catalogue_.objectsOf(classes)) {
      if (!provider_.isObjectHidden(object.element)) names.push_back(std::move(object.name));
    }
    catalogue_.configuration().appendArguments("FREE TEXT", names);
    for (const std::string_view requested : classes) catalogue_.configuration().appendArguments(requested, names);
  });
  // Also what was gathered before an error.
  defaultItem = names.empty() ? std::string() : names.front();
  items = text::join(names, ";");
}

}  // namespace mavCycEd
