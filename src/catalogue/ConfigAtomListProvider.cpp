#include "catalogue/ConfigAtomListProvider.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>

#include "text/Number.h"

namespace mavCycEd {

using platform::XmlNode;

namespace {

/// An atom that can always be picked, so that a block can be built with every catalogue.
struct BlockAtom {
  std::string_view name;
  std::string_view definition;
};

constexpr std::array blockAtoms{BlockAtom{"REPEAT", "Repetitions;1;9999;1;1;None"}, BlockAtom{"END", ""}};

std::string childText(const XmlNode& element, std::string_view childName) {
  const XmlNode child = element.selectSingleNode(childName);
  return child ? child.text() : std::string();
}

}  // namespace

bool ConfigAtomListProvider::isHidden(const XmlNode& element) const {
  if (ignoreHidden_) return false;
  const auto mark = element.getAttributeNode("Hidden");
  return mark && mark->value == "1";
}

std::vector<std::string> ConfigAtomListProvider::furtherAtomNames() {
  ignoreHidden_ = ignoreHiddenNext_;
  std::vector<std::string> names;
  const ValueList catalogueNames = catalogue_.atomNames();
  std::unordered_set<std::string> known(catalogueNames.begin(), catalogueNames.end());
  for (const XmlNode& atom : catalogue_.configuration().elements("FurtherAtoms/ATOM")) {
    std::string name = pickerName(childText(atom, "AtomName"));
    const bool isNew = known.insert(name).second;
    if (isNew && !isHidden(atom)) names.push_back(std::move(name));
  }
  for (const BlockAtom& block : blockAtoms) {
    if (known.emplace(block.name).second) names.emplace_back(block.name);
  }
  return names;
}

UnitOfMeasure ConfigAtomListProvider::lookUpUnit(std::string_view unitName) {
  const XmlNode unit = catalogue_.configuration().unit(std::string(unitName));
  if (!unit) return {std::string(unitName), 1};
  const XmlNode text = unit.selectSingleNode("UNITTEXT");
  return {text ? text.text() : std::string(unitName), text::integerValue(childText(unit, "FACTOR"))};
}

bool ConfigAtomListProvider::isObjectHidden(const XmlNode& object) { return isHidden(object); }

std::string ConfigAtomListProvider::furtherParameters(std::string_view atomName) {
  std::string definitions;
  bool named = false;
  for (const XmlNode& atom : catalogue_.configuration().elements("FurtherAtoms/ATOM")) {
    if (pickerName(childText(atom, "AtomName")) != atomName) continue;
    named = true;
    if (isHidden(atom)) continue;
    for (const XmlNode& definition : atom.selectNodes("Param")) {
      if (!definitions.empty()) definitions += '|';
      definitions += definition.text();
    }
  }
  if (named || catalogue_.atom(atomName)) return definitions;
  const auto* const block = std::ranges::find(blockAtoms, atomName, &BlockAtom::name);
  return block != blockAtoms.end() ? std::string(block->definition) : std::string();
}

}  // namespace mavCycEd
