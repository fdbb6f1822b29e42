#include "text/Variant.h"

#include "text/Number.h"

namespace mavCycEd {

std::string textOf(const Variant& value) {
  if (const auto* words = std::get_if<std::string>(&value)) return *words;
  if (const auto* number = std::get_if<double>(&value)) return text::fromNumber(*number);
  return {};
}

double numberOf(const Variant& value) {
  if (const auto* words = std::get_if<std::string>(&value)) return text::numericValue(*words);
  const auto* number = std::get_if<double>(&value);
  return number != nullptr ? *number : 0;
}

bool holdsNumber(const Variant& value) {
  if (const auto* words = std::get_if<std::string>(&value)) return text::isNumeric(*words);
  return std::holds_alternative<double>(value);
}

bool holdsNothing(const Variant& value) {
  const auto* words = std::get_if<std::string>(&value);
  return words != nullptr ? words->empty() : std::holds_alternative<std::monostate>(value);
}

}  // namespace mavCycEd
