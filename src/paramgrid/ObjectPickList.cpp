#include "paramgrid/ObjectPickList.h"

#include <algorithm>
#include <utility>

#include "text/Strings.h"

namespace mavCycEd {

using platform::XmlNode;

void ObjectPickList::FillObjectItems(std::string_view classList, std::string& items, std::string& defaultItem) {
  ValueList names;
  guarded(errors_, "FillObjectItems", [&] {
    const auto classes = text::split(classList, ';');
    if (classList == "SYRINGE") names.emplace_back("SYR");
    for (const XmlNode& object : catalogue_.objects()) {
      const XmlNode objectClass = object.firstChild();
      const XmlNode name = objectClass ? objectClass.nextSibling() : XmlNode();
      if (!name || std::ranges::find(classes, objectClass.text()) == classes.end()) continue;
      if (!provider_.isObjectHidden(object)) names.push_back(name.text());
    }
    catalogue_.configuration().appendArguments("FREE TEXT", names);
    for (const std::string_view requested : classes) catalogue_.configuration().appendArguments(requested, names);
  });
  // Also what was gathered before an error.
  defaultItem = names.empty() ? std::string() : names.front();
  items = text::join(names, ";");
}

}  // namespace mavCycEd
