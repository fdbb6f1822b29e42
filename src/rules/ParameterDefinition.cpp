#include "rules/ParameterDefinition.h"

#include "platform/RunTimeError.h"
#include "rules/ObjectTests.h"
#include "text/Strings.h"

namespace mavCycEd {

ParameterDefinition::ParameterDefinition(std::string_view definition)
    : definition_(definition), fields_(text::split(definition, ';')) {
  if (fields_.empty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

std::string ParameterDefinition::displayName() const {
  const std::string name = text::withoutCharacters(field(0), U"#?!");
  return std::string(text::trimSpaces(name));
}

std::string_view ParameterDefinition::classList() const {
  const std::size_t separator = definition_.find(';');
  return separator == std::string_view::npos ? std::string_view() : definition_.substr(separator + 1);
}

ParameterDefinition::Kind ParameterDefinition::kind() const {
  constexpr std::size_t fieldsOfNumber = 5;
  if (ItIsObject(field(1))) return Kind::Object;
  const bool isList = field(0).find('#') != std::string_view::npos;
  return fields_.size() >= fieldsOfNumber && !isList ? Kind::Number : Kind::List;
}

}  // namespace mavCycEd
