#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "text/Variant.h"

namespace mavCycEd {

/// What the editor knows of the parameter in one grid row.
struct ParamRowInfo {
  Variant Lower;               ///< lower limit, divided by Factor
  Variant Upper;               ///< upper limit, divided by Factor
  Variant Value;               ///< the value first written into the row's value cell
  Variant Step;                ///< step increment, divided by Factor
  std::int32_t Factor = 1;     ///< unit scale factor, never 0
  Variant Default;             ///< the catalogue's default, divided by Factor
  std::string ExtraValues;     ///< cycle variables that may stand as the value, separated by ";"
  std::string Description;     ///< the range in words, or the object classes
  std::string Items;           ///< the pick list, separated by ";", none leading or trailing
  std::string Unit;            ///< the unit text that the unit lookup gave
  std::int32_t IsNumeric = 0;  ///< 1: a number with range and step; 0: chosen from a pick list
};

/// The facts about the grid's parameter rows, indexed by grid row number.
class ParamRowTable {
 public:
  /// Makes all entries new, for rows up to `upperBound`.
  void resize(int upperBound);
  /// Adds `rows` entries, keeping what is there.
  void grow(int rows);
  /// The highest row number that has an entry.
  int upperBound() const { return static_cast<int>(entries_.size()) - 1; }

  /// The entry of a row. A number beyond the bounds is run-time error 9.
  ParamRowInfo& row(int number);
  const ParamRowInfo& row(int number) const;
  /// The entry of a row; nullptr beyond the bounds.
  const ParamRowInfo* find(int number) const;

 private:
  std::vector<ParamRowInfo> entries_{1};
};

}  // namespace mavCycEd
