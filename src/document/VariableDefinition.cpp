#include "mavCycEd/VariableDefinition.h"

#include "text/Strings.h"

namespace mavCycEd {
namespace {

constexpr char fieldSeparator = ';';
constexpr std::string_view noUnit = "None";

std::string_view before(std::string_view text, char character) { return text.substr(0, text.find(character)); }

/// The first field: a name with its unit.
struct NameAndUnit {
  std::string name;                 ///< without the unit part, untrimmed
  std::optional<std::string> unit;  ///< what stands in the parentheses; nothing without them
  std::string behind;               ///< what stands behind the parentheses
};

NameAndUnit nameAndUnit(std::string_view field) {
  const std::size_t open = field.find('(');
  const std::size_t close = open == std::string_view::npos ? open : field.find(')', open);
  if (close == std::string_view::npos) return {std::string(field), std::nullopt, {}};
  return {std::string(field.substr(0, open)), std::string(field.substr(open + 1, close - open - 1)),
          std::string(field.substr(close + 1))};
}

std::string trimmed(std::string_view text) { return std::string(text::trimSpaces(text)); }

// The name as the dialog shows a number's. What stands behind the unit belongs to the name that is offered for values;
// where it could be taken for a unit in its turn, it goes.
std::string shownName(std::string_view field) {
  std::string name(before(field, '('));
  const std::size_t close = field.find(')', name.size());
  if (close != std::string_view::npos) {
    const std::string_view behind = field.substr(close + 1);
    if (behind.find_first_of("()") == std::string_view::npos) name += behind;
  }
  return trimmed(name);
}

}  // namespace

VariableDefinition VariableDefinition::number(const NumberVariable& variable) {
  const std::string unit = variable.unit == noUnit ? std::string() : variable.unit;
  return VariableDefinition(variable.name + " (" + unit + ");" + variable.defaultValue + ";" + variable.lower + ";" +
                            variable.upper);
}

VariableDefinition VariableDefinition::object(std::string_view name, const std::vector<std::string>& objectTypes) {
  std::string types = text::join(objectTypes, std::string_view(&fieldSeparator, 1));
  if (types.starts_with(fieldSeparator)) types.erase(0, 1);
  return VariableDefinition(std::string(name) + fieldSeparator + types);
}

bool VariableDefinition::isBlank() const { return text::trimSpaces(text_).empty(); }

std::string VariableDefinition::name() const {
  const std::string_view field = text::trimSpaces(before(text_, fieldSeparator));
  return trimmed(before(field, '('));
}

std::string VariableDefinition::objectName() const { return std::string(before(before(text_, fieldSeparator), '(')); }

std::vector<std::string_view> VariableDefinition::valueFields() const {
  auto fields = text::split(text_, fieldSeparator);
  if (!fields.empty()) fields.erase(fields.begin());
  return fields;
}

NumberVariable VariableDefinition::asNumber() const {
  constexpr std::size_t valueCount = 3;
  const std::string_view first = before(text_, fieldSeparator);
  const std::string unit = nameAndUnit(first).unit.value_or("");
  NumberVariable variable{shownName(first), unit.empty() ? std::string(noUnit) : unit, {}, {}, {}};
  const auto values = valueFields();
  if (values.size() >= valueCount) {
    variable.defaultValue = values[0];
    variable.lower = values[1];
    variable.upper = values[2];
  }
  return variable;
}

std::optional<VariableOffer> VariableDefinition::offer() const {
  if (valueFields().empty()) return std::nullopt;
  const NameAndUnit first = nameAndUnit(before(text_, fieldSeparator));
  VariableOffer offer{trimmed(first.name + first.behind), first.unit.value_or("")};
  if (first.unit && first.unit->empty()) offer.unit = noUnit;
  if (offer.name.empty()) return std::nullopt;
  return offer;
}

}  // namespace mavCycEd
