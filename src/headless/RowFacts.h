#pragma once

#include <string>
#include <vector>

#include "catalogue/AtomListProvider.h"
#include "mavCycEd/ParameterRow.h"
#include "rules/ParamRowTable.h"
#include "rules/ParameterDefinition.h"

/// A row as the rules know it, and as whoever asks without a screen does.
namespace mavCycEd::headless {

/// What the rules found out about a definition.
ParameterRow rowOf(const ParameterDefinition& definition, const UnitOfMeasure& unit, const ParamRowInfo& info);

/// The pick list of a row.
std::vector<std::string> itemsIn(const ParamRowInfo& info);

/// The facts of a row, for the rules.
ParamRowInfo infoOf(const ParameterRow& row);

}  // namespace mavCycEd::headless
