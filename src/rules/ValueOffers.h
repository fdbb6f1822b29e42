#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/modCycleHelper.h"
#include "mavCycEd/Cycle.h"
#include "rules/ParamRowTable.h"

/// What a parameter row offers beside its pick list: values of its class, and the variables that fit it. A variable
/// fits the rows of its unit; a variable for objects, which has none, the rows without a unit.
namespace mavCycEd {

/// The entry that stands for a row's default: "Default:" and the value.
std::string defaultEntry(const ParamRowInfo* row);
/// The value that an entry of the menu stands for.
std::string valueOfEntry(std::string_view entry);

/// The class that the values of a row belong to: the unit in its key; without one "None", or nothing for a row of
/// several classes.
std::string classOfRow(std::string_view key, const ParamRowInfo* row);

/// Whether the variables that a row offers stand in its pick list, too.
bool listsVariables(const ParamRowInfo& row, std::string_view unit);

/// Offers names, separated by ";", in a row of a unit, and withdraws one again: the last of that name, since names are
/// added at the end. The pick list is to be shown anew where the result is true.
bool offerNames(ParamRowInfo& row, std::string_view names, std::string_view unit);
bool withdrawName(ParamRowInfo& row, std::string_view name, std::string_view unit);
/// Withdraws all names that a row offers.
void withdrawAll(ParamRowInfo& row);

/// Whether a value is the name of a variable that has just been withdrawn from a row. Letters of the other case refer
/// to the variable as well, unless they are what the row offers otherwise.
bool isWithdrawn(std::string_view value, std::string_view name, const ParamRowInfo& row);

/// The variables of one unit, and how many they are.
struct OfferedNames {
  std::string unit;
  std::string names;  ///< separated by ";"
  int count = 0;
};
/// What the first `count` variables offer, by unit; those that cannot be offered are left out.
std::vector<OfferedNames> offersOf(const std::vector<VariableDefinition>& variables, std::size_t count);

}  // namespace mavCycEd
