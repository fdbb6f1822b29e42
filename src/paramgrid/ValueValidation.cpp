#include "paramgrid/ValueValidation.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "paramgrid/RowClass.h"
#include "platform/RunTimeError.h"
#include "text/IllegalCharacters.h"
#include "text/LineEnds.h"
#include "text/MessageTitles.h"
#include "text/Number.h"

namespace mavCycEd {
namespace {

constexpr int keyColumn = 0;
constexpr int valueColumn = 1;

std::string illegalCharacterMessage() {
  constexpr std::size_t indent = 40;
  std::string message("Invalid Parameter:");
  message.append(text::crLf).append(text::crLf);
  message.append("The parameter value cannot contain any of the following characters:").append(text::crLf);
  return message.append(indent, ' ').append("'&<>;,\"");
}

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

}  // namespace

void ValueValidation::GrdAtom_OnSetEditText(int /*column*/, int row, const std::string& value) {
  guarded(errors_, "GrdAtom_OnSetEditText", [&] {
    if (!state_.ready) return;
    if (SkipNextEditCheck_) {
      SkipNextEditCheck_ = false;
      return;
    }
    std::string cleaned = value;
    if (text::filterValue(cleaned)) return;
    messages_.messageBox(0, illegalCharacterMessage(), text::controlTitle, platform::Information | platform::OkOnly);
    SkipNextEditCheck_ = true;
    grdAtom_.setValue(valueColumn, row, cleaned);
    SkipNextEditCheck_ = false;  // also where the edit had ended meanwhile, and the write told nobody
  });
}

void ValueValidation::GrdAtom_OnEndOfEdit(int row, const std::string& value) { Check_Range(value, row); }

bool ValueValidation::Check_Range(std::string_view value, int row) {
  return guarded(errors_, "Check_Range", [&] {
    if (!state_.ready) return false;
    if (row > state_.rows.upperBound()) return true;
    const ParamRowInfo& info = state_.rows.row(row);
    if (!holdsNumber(info.Lower) || !holdsNumber(info.Upper) || !text::isNumeric(value)) return true;
    if (isInRangeAndOnStep(value, info)) return true;

    std::string name = grdAtom_.cellText(keyColumn, row);
    const std::size_t unit = name.find('(');
    if (unit != std::string::npos && unit > 0) name.erase(unit);
    messages_.messageBox(0, name + " out of range or invalid step increment.", text::controlTitle,
                         platform::Critical | platform::OkOnly);
    return false;
  });
}

// A number or a step that cannot be reckoned with does not pass.
bool ValueValidation::isInRangeAndOnStep(std::string_view value, const ParamRowInfo& info) const {
  try {
    const float number = singlePrecision(text::numericValue(value));
    const bool inRange = number <= limit(info.Upper) && number >= limit(info.Lower);
    const double factor = info.Factor;
    return inRange && remainder(factor * number, factor * converted(info.Step)) == 0;
  } catch (const RunTimeError&) {
    return false;
  }
}

bool ValueValidation::ParamValueControl(std::string& message) {
  return guarded(errors_, "ParamValueControl", [&] {
    bool notFound = true;  // a row without any candidate inherits the mark of the row before
    for (int row = 1; row < grdAtom_.RowCount(); ++row) {
      if (valueStands(row, notFound)) continue;
      message = "Parameter " + grdAtom_.cellText(keyColumn, row) + " has invalid value of " +
                grdAtom_.cellText(valueColumn, row) + ".";
      return false;
    }
    return true;
  });
}

bool ValueValidation::valueStands(int row, bool& notFound) {
  const std::string value = grdAtom_.cellText(valueColumn, row);
  if (text::isNumeric(value) || value == "Off" || value == "On") return true;
  const auto unit = parenthesised(grdAtom_.cellText(keyColumn, row));
  ValueList candidates;
  catalogue_.appendObjectValues(cleanedEntry(unit.value_or("None")), candidates);
  bool found = false;
  if (!candidates.empty()) {
    // The last candidate is never compared.
    candidates.pop_back();
    if (!candidates.empty()) notFound = true;
    found = std::ranges::find(candidates, value) != candidates.end();
    if (found) notFound = false;
  }
  const std::string& description = state_.rows.row(row).Description;
  if (description.find(';') != std::string::npos || description.find("Default:") == std::string::npos) return true;
  return found || !notFound;
}

}  // namespace mavCycEd
