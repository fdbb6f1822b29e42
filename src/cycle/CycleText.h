#pragma once

#include <string>
#include <string_view>

/// The texts inside a cycle document.
namespace mavCycEd {

/// What stands in front of every description in a cycle document, so that even an empty one gives a text.
inline constexpr std::string_view descriptionMarker = "//";

/// The text with "&", "<", ">", the double quote and the apostrophe as XML entities.
std::string ConvertDescription(std::string_view text);

/// The inverse of ConvertDescription. "&amp;" is turned back last, so that what it uncovers stays as it is.
std::string ReverseDescription(std::string_view text);

/// A parameter name as a cycle document holds it: without ",", U+00C2, U+00C3 and U+00C4.
std::string StripParamName(std::string_view name);

}  // namespace mavCycEd
