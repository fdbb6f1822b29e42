#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mavCycEd/ValueFault.h"

namespace mavCycEd {

/// A parameter of an atom, as catalogue and configuration define it. Numbers are in the unit that is shown: the
/// catalogue's, divided by the unit's factor.
struct ParameterRow {
  enum class Kind {
    Number,  ///< a number between limits, or whatever stands for one (a variable, "user_index", ...)
    Choice,  ///< one of `items`, or what stands for one
  };

  std::string name;  ///< without its unit
  std::string key;   ///< the name by which cycles hold it: the name, and in parentheses its unit, where one is shown
  Kind kind = Kind::Choice;
  /// The text that the unit's name stands for, as variables name it ("None" or empty for none).
  std::string unit;
  /// The limits, both inclusive, and the step of a number; nothing where the catalogue has no number there.
  std::optional<double> lower;
  std::optional<double> upper;
  std::optional<double> step;
  std::int32_t factor = 1;         ///< never 0; steps are counted in the catalogue's unit
  std::string defaultValue;        ///< of a number: the catalogue's default
  std::string firstValue;          ///< what a new line starts with; empty for nothing
  std::vector<std::string> items;  ///< of a choice: what may be picked
  std::string description;         ///< the range in words, the object classes, or the items, separated by ";"
};

/// The parameters of an atom.
struct AtomParameters {
  std::vector<ParameterRow> rows;  ///< in the order in which lines hold their values
  /// What keeps definitions from being read as a whole, in sentences; a row may lack what its definition does not tell.
  std::vector<std::string> faults;
};

/// Whether a value may stand in a row: nothing where it may. A number is compared with the limits in single precision,
/// and factor times value has to be a multiple of factor times step, each rounded to a whole number (halves to the even
/// neighbour). What is no number, and a row without two limits, has no fault.
std::optional<ValueFault> checkValue(const ParameterRow& row, std::string_view value);

/// A fault in words: "Volume 600 is out of range. Enter 10 to 500, in steps of 5."
std::string describe(const ValueFault& fault, const ParameterRow& row, std::string_view value);

}  // namespace mavCycEd
