#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Numbers in texts: a decimal point ".", an optional sign, an optional exponent, whatever the process's locale.
/// A number beyond the range of a double has the highest value that a double can hold; one too small for it is 0.
namespace mavCycEd::text {

/// Whether the whole text, blanks at both ends aside, is one number. Blanks are spaces, tabs and line ends.
bool isNumeric(std::string_view text);

/// The number that the text begins with, leading blanks aside; 0 when it begins with none.
double numericValue(std::string_view text);

/// The number that the text begins with, rounded to the nearest whole number, halves to the even neighbour. Beyond 32
/// bits it is run-time error 6.
std::int32_t integerValue(std::string_view text);

/// A number as text: at most 15 significant digits, no trailing zeros (0.1, 10, 0.333333333333333). From 1E+15 on, and
/// below 1E-4 where the plain form would need more than 15 digits behind the point, in exponent form (1E+20).
std::string fromNumber(double number);

/// A position as it stands in front of a display line: at least two digits ("01", "10", "100").
std::string withTwoDigits(int number);

}  // namespace mavCycEd::text
