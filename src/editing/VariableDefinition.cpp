#include "editing/VariableDefinition.h"

#include "text/Strings.h"

namespace mavCycEd {
namespace {

constexpr std::string_view noUnit = "None";

std::string_view before(std::string_view text, char character) { return text.substr(0, text.find(character)); }

// The text between "(" and ")"; "None" when it is empty or there is no such pair.
std::string_view unitOf(std::string_view firstField) {
  const std::size_t open = firstField.find('(');
  if (open == std::string_view::npos) return noUnit;
  const std::size_t close = firstField.find(')', open);
  if (close == std::string_view::npos || close == open + 1) return noUnit;
  return firstField.substr(open + 1, close - open - 1);
}

// The first field without its unit part. What stands behind the unit belongs to the name that is offered for values;
// where it could be taken for a unit in its turn, it goes.
std::string withoutUnit(std::string_view firstField) {
  std::string name(before(firstField, '('));
  const std::size_t close = firstField.find(')', name.size());
  if (close != std::string_view::npos) {
    const std::string_view behind = firstField.substr(close + 1);
    if (behind.find_first_of("()") == std::string_view::npos) name += behind;
  }
  return std::string(text::trimSpaces(name));
}

}  // namespace

std::string variableName(std::string_view definition) {
  const std::string_view field = text::trimSpaces(before(definition, ';'));
  return std::string(text::trimSpaces(before(field, '(')));
}

std::string objectName(std::string_view definition) { return std::string(before(before(definition, ';'), '(')); }

NumberDefinition parseNumber(std::string_view definition) {
  constexpr std::size_t fieldCount = 4;
  NumberDefinition number;
  number.name = withoutUnit(before(definition, ';'));
  number.unit = unitOf(before(definition, ';'));
  const auto fields = text::split(definition, ';');
  if (fields.size() >= fieldCount) {
    number.defaultValue = fields[1];
    number.lower = fields[2];
    number.upper = fields[3];
  }
  return number;
}

std::string numberDefinition(const NumberDefinition& number) {
  const std::string unit = number.unit == noUnit ? std::string() : number.unit;
  return number.name + " (" + unit + ");" + number.defaultValue + ";" + number.lower + ";" + number.upper;
}

std::string objectDefinition(std::string_view name, const std::vector<std::string>& objectTypes) {
  std::string types = text::join(objectTypes, ";");
  if (types.starts_with(';')) types.erase(0, 1);
  return std::string(name) + ";" + types;
}

}  // namespace mavCycEd
