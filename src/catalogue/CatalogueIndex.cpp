#include "catalogue/CatalogueIndex.h"

#include <algorithm>
#include <utility>

#include "platform/RunTimeError.h"
#include "text/Number.h"
#include "text/Strings.h"

namespace mavCycEd {

using platform::XmlDocument;
using platform::XmlNode;
using platform::XmlNodeList;

namespace {

template <typename Map>
auto found(const Map& map, const std::string& key) {
  using Item = typename Map::mapped_type::value_type;
  const auto entry = map.find(key);
  return entry == map.end() ? std::span<const Item>() : std::span<const Item>(entry->second);
}

}  // namespace

CatalogueIndex::CatalogueIndex(XmlDocument& catalogue) {
  addAtoms(catalogue);
  addObjects(catalogue);
  addSyringes(catalogue);
  addLists(catalogue);
}

void CatalogueIndex::addAtoms(XmlDocument& catalogue) {
  for (const XmlNode& atom : catalogue.selectNodes("LATESTKAM/ATOMS/ATOM")) {
    if (const XmlNode name = atom.selectSingleNode("AtomName")) atoms_.emplace(pickerName(name.text()), atom);
  }
}

void CatalogueIndex::addObjects(XmlDocument& catalogue) {
  const XmlNode objects = catalogue.selectSingleNode("LATESTKAM/OBJECTS");
  if (!objects) return;
  int position = 0;
  for (XmlNode object = objects.firstChild(); object; object = object.nextSibling(), ++position) {
    const XmlNode className = object.firstChild();
    const XmlNode name = className ? className.nextSibling() : XmlNode();
    if (name) objects_[className.text()].push_back({object, name.text(), position});
  }
}

void CatalogueIndex::addSyringes(XmlDocument& catalogue) {
  const XmlNodeList classes = catalogue.selectNodes("LATESTKAM/CLASSES/CLASS");
  const auto syringes = std::ranges::find_if(classes, [](const XmlNode& element) {
    const XmlNode first = element.firstChild();
    return first && first.text() == "SYRINGE";
  });
  if (syringes == classes.end()) return;
  for (XmlNode syringe = syringes->firstChild().nextSibling(); syringe; syringe = syringe.nextSibling()) {
    const std::string definition = syringe.text();
    const auto fields = text::split(definition, ';');
    if (!fields.empty()) syringes_[cleanedEntry(fields.back())].emplace_back(fields.front());
  }
}

void CatalogueIndex::addLists(XmlDocument& catalogue) {
  for (const XmlNode& list : catalogue.selectNodes("LATESTKAM/LISTS/LIST")) {
    const XmlNode name = list.firstChild();
    if (!name) continue;
    const std::string number = name.text();
    listsEndInError_ = !text::isNumeric(number);
    if (listsEndInError_) return;
    const XmlNode entries = name.nextSibling();
    lists_.emplace(text::numericValue(number), entries ? entries.text() : std::string());
  }
}

XmlNode CatalogueIndex::atom(const std::string& name) const {
  const auto entry = atoms_.find(name);
  return entry == atoms_.end() ? XmlNode() : entry->second;
}

std::span<const CatalogueObject> CatalogueIndex::objectsOf(const std::string& className) const {
  return found(objects_, className);
}

std::span<const std::string> CatalogueIndex::syringesOf(const std::string& className) const {
  return found(syringes_, className);
}

std::string CatalogueIndex::namedList(double number) const {
  const auto entry = lists_.find(number);
  if (entry != lists_.end()) return entry->second;
  if (listsEndInError_) throw RunTimeError(ErrorNumber::TypeMismatch);
  return {};
}

}  // namespace mavCycEd
