#include "rules/ValueCheck.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/RunTimeError.h"
#include "rules/RowClass.h"
#include "text/Number.h"

namespace mavCycEd {
namespace {

float singlePrecision(double value) {
  if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
    throw RunTimeError(ErrorNumber::Overflow);
  }
  return static_cast<float>(value);
}

// A limit beyond single precision limits nothing.
float limit(const Variant& value) {
  const double number = numberOf(value);
  const auto highest = static_cast<double>(std::numeric_limits<float>::max());
  if (std::fabs(number) <= highest) return static_cast<float>(number);
  return number > 0 ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
}

// To the nearest whole number, halves to the even neighbour.
std::int32_t rounded(double value) {
  const double whole = std::nearbyint(value);
  const bool fits =
      whole >= std::numeric_limits<std::int32_t>::min() && whole <= std::numeric_limits<std::int32_t>::max();
  if (!fits) throw RunTimeError(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(whole);
}

// The remainder with the sign of the dividend.
std::int64_t remainder(double dividend, double divisor) {
  const std::int64_t by = rounded(divisor);
  const std::int64_t whole = rounded(dividend);
  if (by == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
  return whole % by;
}

double converted(const Variant& value) {
  if (!holdsNumber(value)) throw RunTimeError(ErrorNumber::TypeMismatch);
  return numberOf(value);
}

bool hasRange(const ParamRowInfo& row) { return holdsNumber(row.Lower) && holdsNumber(row.Upper); }

// A number or a step that cannot be reckoned with does not pass.
std::optional<ValueFault::Kind> faultOf(std::string_view value, const ParamRowInfo& row) {
  try {
    const float number = singlePrecision(text::numericValue(value));
    if (number > limit(row.Upper) || number < limit(row.Lower)) return ValueFault::Kind::OutOfRange;
    const double factor = row.Factor;
    if (remainder(factor * number, factor * converted(row.Step)) != 0) return ValueFault::Kind::OffStep;
    return std::nullopt;
  } catch (const RunTimeError&) {
    return ValueFault::Kind::NotReckonable;
  }
}

}  // namespace

std::optional<ValueFault> checkValue(std::string_view value, const ParamRowInfo& row) {
  if (!hasRange(row) || !text::isNumeric(value)) return std::nullopt;
  const auto fault = faultOf(value, row);
  if (!fault) return std::nullopt;
  return ValueFault{*fault, wantedRange(row)};
}

std::string wantedRange(const ParamRowInfo& row) {
  if (!hasRange(row)) return {};
  std::string range = textOf(row.Lower) + " to " + textOf(row.Upper);
  if (numberOf(row.Step) != 0) range += ", in steps of " + textOf(row.Step);
  return range;
}

bool isKnownValue(std::string_view value, std::string_view key, const ParamRowInfo* row, modCycleHelper& catalogue,
                  bool& notFound) {
  if (text::isNumeric(value) || value == "Off" || value == "On") return true;
  const auto unit = parenthesised(key);
  ValueList candidates;
  catalogue.appendObjectValues(cleanedEntry(unit.value_or("None")), candidates);
  bool found = false;
  if (!candidates.empty()) {
    // The last candidate is never compared.
    candidates.pop_back();
    if (!candidates.empty()) notFound = true;
    found = std::ranges::find(candidates, value) != candidates.end();
    if (found) notFound = false;
  }
  if (row == nullptr) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  const bool isNumber =
      row->Description.find(';') == std::string::npos && row->Description.find("Default:") != std::string::npos;
  return !isNumber || found || !notFound;
}

}  // namespace mavCycEd
