#include "catalogue/modCycleHelper.h"

#include <algorithm>
#include <vector>

#include "platform/RunTimeError.h"
#include "text/Number.h"
#include "text/Strings.h"
#include "text/Utf8.h"

namespace mavCycEd {

using platform::XmlNode;
using platform::XmlNodeList;

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
  for (const XmlNode& atom : atoms()) {
    const XmlNode atomName = atom.selectSingleNode("AtomName");
    if (atomName && pickerName(atomName.text()) == name) return atom;
  }
  return {};
}

XmlNodeList modCycleHelper::objects() const {
  const XmlNodeList found = select("LATESTKAM/OBJECTS");
  return found.length() > 0 ? found.item(0).childNodes() : XmlNodeList();
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
  const XmlNodeList classes = select("LATESTKAM/CLASSES/CLASS");
  const auto syringes = std::ranges::find_if(classes, [](const XmlNode& element) {
    const XmlNode first = element.firstChild();
    return first && first.text() == "SYRINGE";
  });
  if (syringes == classes.end()) return;
  for (XmlNode syringe = syringes->firstChild().nextSibling(); syringe; syringe = syringe.nextSibling()) {
    const std::string definition = syringe.text();
    const auto fields = text::split(definition, ';');
    if (fields.empty() || cleanedEntry(fields.back()) != classValue) continue;
    const std::string_view name = fields.front();
    if (std::ranges::find(list, name) == list.end()) list.push_back("SYR." + std::string(name));
  }
}

std::string modCycleHelper::namedList(std::int32_t number) const {
  for (const XmlNode& list : select("LATESTKAM/LISTS/LIST")) {
    const XmlNode name = list.firstChild();
    if (!name) continue;
    const std::string text = name.text();
    if (!text::isNumeric(text)) throw RunTimeError(ErrorNumber::TypeMismatch);
    if (text::numericValue(text) != number) continue;
    const XmlNode entries = name.nextSibling();
    return entries ? entries.text() : std::string();
  }
  return {};
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

void selectVariableType(std::string_view definition, platform::OptionButton& optObjValue,
                        platform::OptionButton& optNrValue) {
  const auto fields = text::split(definition, ';');
  if (fields.size() < 2) return;
  (isObjectName(fields[1]) ? optObjValue : optNrValue).select();
}

void resetGrid(platform::ValueListActiveX& grid) {
  if (grid.RowCount() != 2 && grid.Row() >= 1) {
    for (int row = grid.RowCount() - 2; row >= 1; --row) grid.DeleteRow(row);
  }
  grid.setValue(1, 1, "");
  grid.DeleteRow(1);
}

}  // namespace mavCycEd
