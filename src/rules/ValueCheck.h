#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "catalogue/modCycleHelper.h"
#include "mavCycEd/ValueFault.h"
#include "rules/ParamRowTable.h"

namespace mavCycEd {

/// Whether a value may stand in a row of these facts: nothing where it may. A number is compared with the row's limits,
/// both inclusive, in single precision, and with its step: the whole-number remainder of Factor x value by Factor x
/// Step, each rounded to the nearest (halves to the even neighbour), must be 0. A value that is no number, and a row
/// without two numbers as limits, have no fault.
std::optional<ValueFault> checkValue(std::string_view value, const ParamRowInfo& row);

/// What a row of numbers asks for: "10 to 500, in steps of 5"; empty for a row without two numbers as limits.
std::string wantedRange(const ParamRowInfo& row);

/// Whether a value is one that an instrument takes in this row: a number, "On", "Off", or one of the values of the
/// row's class but the last. `notFound` is a mark that goes from row to row: a row without any candidate takes it over
/// from the row before. A row of which nothing is known, where it matters, is run-time error 9.
bool isKnownValue(std::string_view value, std::string_view key, const ParamRowInfo* row, modCycleHelper& catalogue,
                  bool& notFound);

}  // namespace mavCycEd
