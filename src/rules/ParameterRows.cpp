#include "rules/ParameterRows.h"

#include <cstddef>
#include <cstdint>

#include "platform/RunTimeError.h"
#include "rules/ObjectTests.h"
#include "text/Number.h"
#include "text/Strings.h"

namespace mavCycEd {

using platform::XmlNode;

namespace {

// A limit, step or default in the shown unit: divided by the factor; what has no numeric value, or the value 0, stays
// as it is written.
Variant inShownUnit(std::string_view field, std::int32_t factor) {
  const double value = text::numericValue(field);
  if (value == 0) return std::string(field);
  return value / factor;
}

// The unit behind a parameter's name, as it is shown; empty for none.
std::string shownUnit(const UnitOfMeasure& unit) {
  const bool shown = !text::isNumeric(unit.text) && !ItIsObject(unit.text) && unit.text != "None";
  return shown ? unit.text : std::string();
}

std::string_view withoutSeparatorsAround(std::string_view items) {
  if (items.ends_with(';')) items.remove_suffix(1);
  if (items.starts_with(';')) items.remove_prefix(1);
  return items;
}

}  // namespace

ValueList ParameterRows::definitionsOf(std::string_view atomName) const {
  ValueList definitions;
  if (const XmlNode atom = catalogue_.atom(atomName)) {
    for (const XmlNode& definition : atom.selectNodes("Param")) definitions.push_back(definition.text());
  }
  return definitions;
}

int ParameterRows::childrenOf(std::string_view atomName) const {
  const XmlNode atom = catalogue_.atom(atomName);
  return atom ? atom.childNodes().length() : 0;
}

ValueList ParameterRows::furtherDefinitionsOf(std::string_view atomName) const {
  const std::string further = provider_.furtherParameters(atomName);
  const auto pieces = text::split(further, '|');
  return {pieces.begin(), pieces.end()};
}

UnitOfMeasure ParameterRows::unitOf(const ParameterDefinition& definition) const {
  UnitOfMeasure unit = provider_.lookUpUnit(cleanedEntry(definition.lastField()));
  if (unit.factor == 0) unit.factor = 1;
  return unit;
}

std::string ParameterRows::keyOf(const ParameterDefinition& definition, const UnitOfMeasure& unit) {
  std::string key = definition.displayName();
  if (const std::string shown = shownUnit(unit); !shown.empty()) key += "(" + shown + ")";
  return key;
}

RowShows ParameterRows::describe(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info) {
  info.Factor = unit.factor;
  switch (definition.kind()) {
    case ParameterDefinition::Kind::Number: return describeNumber(definition, unit, info);
    case ParameterDefinition::Kind::Object:
      if (describeObject(definition, unit, info)) return {.pickList = true, .value = true};
      return describeList(definition, info);
    case ParameterDefinition::Kind::List: break;
  }
  return describeList(definition, info);
}

RowShows ParameterRows::describeNumber(const ParameterDefinition& definition, const UnitOfMeasure& unit,
                                       ParamRowInfo& info) {
  const std::string_view lower = definition.field(1);
  const std::string_view upper = definition.field(2);
  const std::string_view standard = definition.field(3);
  info.Lower = inShownUnit(lower, unit.factor);
  info.Upper = inShownUnit(upper, unit.factor);
  info.Default = inShownUnit(standard, unit.factor);
  info.Step = inShownUnit(definition.field(4), unit.factor);
  // Only a default that sits on one of the limits is filled in for the operator.
  if (numberOf(info.Default) != 0) {
    const bool onLimit = standard == lower || standard == upper;
    info.Value = onLimit ? info.Default : Variant(std::string());
  }
  if (!unit.text.empty()) {
    info.Description = "Range: " + textOf(info.Lower) + " to " + textOf(info.Upper) +
                       " Default: " + textOf(info.Default) + " Step: " + textOf(info.Step);
  }
  info.IsNumeric = 1;
  info.Unit = unit.text;
  return {.pickList = false, .value = !unit.text.empty()};
}

// False when no name fits the parameter's classes.
bool ParameterRows::describeObject(const ParameterDefinition& definition, const UnitOfMeasure& unit,
                                   ParamRowInfo& info) {
  info.Description = definition.classList();
  std::string items;
  std::string defaultItem;
  objectPickList_.FillObjectItems(definition.classList(), items, defaultItem);
  items = withoutSeparatorsAround(items);
  if (items.empty()) return false;
  info.IsNumeric = 0;
  info.Unit = unit.text;
  info.Items = items;
  info.Value = defaultItem;
  return true;
}

RowShows ParameterRows::describeList(const ParameterDefinition& definition, ParamRowInfo& info) const {
  info.Description = catalogue_.namedList(text::integerValue(definition.lastField()));
  info.Items = info.Description;
  info.IsNumeric = 0;
  const auto items = text::split(info.Items, ';');
  if (items.empty()) return {.pickList = true, .value = false};
  const std::int32_t index = text::integerValue(definition.field(3));
  if (index < 0 || static_cast<std::size_t>(index) >= items.size()) {
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  }
  info.Value = std::string(items[static_cast<std::size_t>(index)]);
  return {.pickList = true, .value = true};
}

}  // namespace mavCycEd
