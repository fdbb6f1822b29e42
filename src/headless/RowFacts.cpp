#include "headless/RowFacts.h"

#include <optional>
#include <string>

#include "rules/ParameterRows.h"
#include "rules/ValueCheck.h"
#include "text/Strings.h"
#include "text/Variant.h"

namespace mavCycEd {
namespace headless {
namespace {

std::optional<double> numberIn(const Variant& value) {
  if (!holdsNumber(value)) return std::nullopt;
  return numberOf(value);
}

Variant variantOf(const std::optional<double>& number) { return number ? Variant(*number) : Variant(); }

}  // namespace

ParameterRow rowOf(const ParameterDefinition& definition, const UnitOfMeasure& unit, const ParamRowInfo& info) {
  ParameterRow row;
  row.name = definition.displayName();
  row.key = ParameterRows::keyOf(definition, unit);
  row.kind = info.IsNumeric != 0 ? ParameterRow::Kind::Number : ParameterRow::Kind::Choice;
  row.unit = info.Unit;
  row.lower = numberIn(info.Lower);
  row.upper = numberIn(info.Upper);
  row.step = numberIn(info.Step);
  row.factor = info.Factor;
  row.defaultValue = textOf(info.Default);
  row.items = itemsIn(info);
  row.description = info.Description;
  return row;
}

std::vector<std::string> itemsIn(const ParamRowInfo& info) {
  const auto items = text::split(info.Items, ';');
  return {items.begin(), items.end()};
}

ParamRowInfo infoOf(const ParameterRow& row) {
  ParamRowInfo info;
  info.Lower = variantOf(row.lower);
  info.Upper = variantOf(row.upper);
  info.Value = row.firstValue;
  info.Step = variantOf(row.step);
  info.Factor = row.factor;
  info.Default = row.defaultValue;
  info.Description = row.description;
  info.Items = text::join(row.items, ";");
  info.Unit = row.unit;
  info.IsNumeric = row.kind == ParameterRow::Kind::Number ? 1 : 0;
  return info;
}

}  // namespace headless

std::optional<ValueFault> checkValue(const ParameterRow& row, std::string_view value) {
  return checkValue(value, headless::infoOf(row));
}

std::string describe(const ValueFault& fault, const ParameterRow& row, std::string_view value) {
  std::string message = row.name + " " + std::string(value);
  switch (fault.kind) {
    case ValueFault::Kind::OutOfRange: message += " is out of range."; break;
    case ValueFault::Kind::OffStep: message += " lies between two steps."; break;
    case ValueFault::Kind::NotReckonable: message += " cannot be compared with its range and step."; break;
  }
  return message + " Enter " + fault.wanted + ".";
}

}  // namespace mavCycEd
