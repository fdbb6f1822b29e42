#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The definition text of a cycle variable, which is its entry in the list of variables.
///
/// - a number: name, blank, unit in parentheses, ";", default, ";", lower limit, ";", upper limit. A unit "None" is
///   "()": "Volume (ul);10;0;100", "Count ();5;1;10".
/// - an object: name, ";", the object types separated by ";".
namespace mavCycEd {

/// What a definition says of a number.
struct NumberDefinition {
  std::string name;  ///< the first field without its unit part
  std::string unit;  ///< "None" when the parentheses are empty or missing
  std::string defaultValue;
  std::string lower;
  std::string upper;
};

/// The name in a definition text: what stands before the first ";", and of that what stands before the first "(",
/// without spaces at both ends.
std::string variableName(std::string_view definition);

/// The name in an object's definition, as the dialog shows it: the same without trimming.
std::string objectName(std::string_view definition);

/// The parts of a number's definition; the three values are empty when it has fewer than four fields.
NumberDefinition parseNumber(std::string_view definition);

std::string numberDefinition(const NumberDefinition& number);
std::string objectDefinition(std::string_view name, const std::vector<std::string>& objectTypes);

}  // namespace mavCycEd
