#include "catalogue/modCycleHelper.h"

#include <algorithm>
#include <utility>

#include "platform/RunTimeError.h"
#include "text/Number.h"
#include "text/Strings.h"
#include "text/Utf8.h"

namespace mavCycEd {

using platform::XmlNode;
using platform::XmlNodeList;

void modCycleHelper::setCatalogue(std::shared_ptr<platform::XmlDocument> catalogue) {
  index_.reset();
  catalogue_ = std::move(catalogue);
  if (catalogue_) index_.emplace(*catalogue_);
}

XmlNodeList modCycleHelper::select(std::string_view path) const {
  return catalogue_ ? catalogue_->selectNodes(path) : XmlNodeList();
}

XmlNodeList modCycleHelper::atoms() const { return select("LATESTKAM/ATOMS/ATOM"); }

ValueList modCycleHelper::atomNames() const {
  ValueList names;
  for (const XmlNode& atom : atoms()) {
    if (const XmlNode name = atom.selectSingleNode("AtomName")) names.push_back(pickerName(name.text()));
  }
  return names;
}

XmlNode modCycleHelper::atom(std::string_view name) const {
  return index_ ? index_->atom(std::string(name)) : XmlNode();
}

std::vector<CatalogueObject> modCycleHelper::objectsOf(const std::vector<std::string_view>& classes) const {
  std::vector<CatalogueObject> objects;
  if (!index_) return objects;
  for (auto name = classes.begin(); name != classes.end(); ++name) {
    if (std::find(classes.begin(), name, *name) != name) continue;
    const auto found = index_->objectsOf(std::string(*name));
    objects.insert(objects.end(), found.begin(), found.end());
  }
  if (classes.size() > 1) std::ranges::sort(objects, {}, &CatalogueObject::position);
  return objects;
}

std::string modCycleHelper::classNames() const {
  std::string names;
  for (const XmlNode& name : select("LATESTKAM/CLASSES/CLASS/CLASSName")) {
    if (const std::string text = name.text(); !text.empty()) names += ";" + text;
  }
  if (text::hasMoreCharactersThan(names, 2)) names.erase(0, 1);
  return names;
}

void modCycleHelper::appendObjectValues(std::string_view classValue, ValueList& list) {
  if (classValue != "None") list.emplace_back("user_index");
  configuration_.appendArguments("FREE TEXT", list);
  configuration_.appendArguments(classValue, list);
  appendSyringes(classValue, list);
}

void modCycleHelper::appendSyringes(std::string_view classValue, ValueList& list) const {
  if (!index_) return;
  for (const std::string& name : index_->syringesOf(std::string(classValue))) {
    if (std::ranges::find(list, name) == list.end()) list.push_back("SYR." + name);
  }
}

std::string modCycleHelper::namedList(std::int32_t number) const {
  return index_ ? index_->namedList(number) : std::string();
}

std::string modCycleHelper::standardUnits() const {
  std::string units;
  std::string lastSplit;  // the definition whose fields count, until another one has a ";"
  for (const XmlNode& atom : atoms()) {
    const XmlNode name = atom.firstChild();
    for (XmlNode definition = name ? name.nextSibling() : name; definition; definition = definition.nextSibling()) {
      const std::string text = definition.text();
      if (text.find(';') != std::string::npos) lastSplit = text;
      const auto fields = text::split(lastSplit, ';');
      if (fields.empty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
      const std::string_view unit = fields.back();
      if (!text::isNumeric(unit) && !isObjectName(unit)) units.append(unit).append(";");
    }
  }
  return units;
}

}  // namespace mavCycEd
