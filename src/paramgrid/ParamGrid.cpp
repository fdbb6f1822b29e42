#include "paramgrid/ParamGrid.h"

#include <cstddef>
#include <string>

#include "paramgrid/ObjectTests.h"
#include "platform/RunTimeError.h"
#include "text/Number.h"
#include "text/Strings.h"

namespace mavCycEd {

using platform::XmlNode;
using platform::XmlNodeList;

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

void ParamGrid::FillDefaultParams(std::string_view atomName) {
  guarded(errors_, "FillDefaultParams", [&] {
    CleanGrdAtom();
    const XmlNode atom = catalogue_.atom(atomName);
    state_.rows.resize(atom ? atom.childNodes().length() : 0);
    // The texts first: an error on the way is reported to the host, which may load another catalogue then.
    ValueList definitions;
    if (atom) {
      for (const XmlNode& definition : atom.selectNodes("Param")) definitions.push_back(definition.text());
    }
    for (const std::string& definition : definitions) FillParams(definition, newestRow() + 1);
    const std::string further = provider_.furtherParameters(atomName);
    const auto furtherDefinitions = text::split(further, '|');
    state_.rows.grow(static_cast<int>(furtherDefinitions.size()));
    for (const std::string_view definition : furtherDefinitions) FillParams(definition, newestRow() + 1);
  });
}

void ParamGrid::FillParams(std::string_view definition, int row) {
  guarded(errors_, "FillParams", [&] {
    const ParameterDefinition parameter(definition);
    UnitOfMeasure unit = provider_.lookUpUnit(cleanedEntry(parameter.lastField()));
    if (unit.factor == 0) unit.factor = 1;

    std::string key = parameter.displayName();
    if (const std::string shown = shownUnit(unit); !shown.empty()) key += "(" + shown + ")";
    grdAtom_.InsertRow(key, "", true);

    ParamRowInfo& info = state_.rows.row(row);
    info.Factor = unit.factor;
    switch (parameter.kind()) {
      case ParameterDefinition::Kind::Number: fillNumber(parameter, unit, info); break;
      case ParameterDefinition::Kind::Object:
        if (!fillObject(parameter, unit, info)) fillList(parameter, info);
        break;
      case ParameterDefinition::Kind::List: fillList(parameter, info); break;
    }
  });
}

void ParamGrid::fillNumber(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info) {
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
    writeValue(info);
  }
  info.IsNumeric = 1;
  info.Unit = unit.text;
}

// False when no name fits the parameter's classes.
bool ParamGrid::fillObject(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info) {
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
  grdAtom_.setPickList(newestRow(), info.Items);
  writeValue(info);
  return true;
}

void ParamGrid::fillList(const ParameterDefinition& definition, ParamRowInfo& info) {
  info.Description = catalogue_.namedList(text::integerValue(definition.lastField()));
  info.Items = info.Description;
  info.IsNumeric = 0;
  const auto items = text::split(info.Items, ';');
  if (items.empty()) {
    grdAtom_.setPickList(newestRow(), "");
    return;
  }
  const std::int32_t index = text::integerValue(definition.field(3));
  if (index < 0 || static_cast<std::size_t>(index) >= items.size()) {
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  }
  info.Value = std::string(items[static_cast<std::size_t>(index)]);
  grdAtom_.setPickList(newestRow(), info.Items);
  writeValue(info);
}

void ParamGrid::writeValue(const ParamRowInfo& info) { grdAtom_.setValue(1, newestRow(), textOf(info.Value)); }

void ParamGrid::CleanGrdAtom() {
  guarded(errors_, "CleanGrdAtom", [this] {
    if (grdAtom_.RowCount() != 2 && grdAtom_.Row() >= 1) {
      for (int row = grdAtom_.RowCount() - 1; row >= 2; --row) grdAtom_.DeleteRow(row);
    }
    grdAtom_.setValue(0, 1, "");
    grdAtom_.setValue(1, 1, "");
    grdAtom_.DeleteRow(1);
  });
}

void ParamGrid::UpdateControls(platform::ListBox& lstVariables, platform::ListBox& lstAtomSequence,
                               platform::TextBox& txtCycleDescription) {
  guarded(errors_, "UpdateControls", [&] {
    CleanGrdAtom();
    lstVariables.clear();
    lstAtomSequence.clear();
    txtCycleDescription.setText("");
  });
}

}  // namespace mavCycEd
