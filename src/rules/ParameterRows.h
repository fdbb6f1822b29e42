#pragma once

#include <string>
#include <string_view>

#include "catalogue/AtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "platform/ErrorSink.h"
#include "rules/ObjectPickList.h"
#include "rules/ParamRowTable.h"
#include "rules/ParameterDefinition.h"

namespace mavCycEd {

/// What a parameter row shows beside its name, once its facts are known.
struct RowShows {
  bool pickList = false;  ///< a list to pick from, if only an empty one: ParamRowInfo::Items
  bool value = false;     ///< a first value: ParamRowInfo::Value
};

/// The parameters of an atom: what the catalogue and the provider define, as rows with kinds, units, ranges, pick lists
/// and first values.
class ParameterRows {
 public:
  /// Errors while a pick list is gathered are reported under FillObjectItems; the list then has what was gathered.
  ParameterRows(modCycleHelper& catalogue, AtomListProvider& provider, ErrorSink& errors)
      : catalogue_(catalogue), provider_(provider), objectPickList_(catalogue, provider, errors) {}

  /// The texts of an atom's definitions in the catalogue, in order, and how many children its element has; the atom is
  /// named as the picker shows it.
  ValueList definitionsOf(std::string_view atomName) const;
  int childrenOf(std::string_view atomName) const;
  /// The definitions that the provider adds.
  ValueList furtherDefinitionsOf(std::string_view atomName) const;

  /// The unit of a definition; its factor is never 0.
  UnitOfMeasure unitOf(const ParameterDefinition& definition) const;
  /// How a row names its parameter: the name, and in parentheses its unit, where it has one to be shown.
  static std::string keyOf(const ParameterDefinition& definition, const UnitOfMeasure& unit);
  /// Finds out a row's facts. What was found before an error stays in `info`.
  RowShows describe(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info);

 private:
  static RowShows describeNumber(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info);
  bool describeObject(const ParameterDefinition& definition, const UnitOfMeasure& unit, ParamRowInfo& info);
  RowShows describeList(const ParameterDefinition& definition, ParamRowInfo& info) const;

  modCycleHelper& catalogue_;
  AtomListProvider& provider_;
  ObjectPickList objectPickList_;
};

}  // namespace mavCycEd
