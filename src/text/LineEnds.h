#pragma once

#include <string>
#include <string_view>

namespace mavCycEd::text {

/// The line break inside messages, macro texts and text boxes.
inline constexpr std::string_view crLf = "\r\n";

/// The text with CR LF and lone CR or LF as carriage return plus line feed; all other characters stay as they are.
std::string toCrLf(std::string_view text);

/// What a person typed or pasted, with every line end as carriage return plus line feed. A line end is CR LF, a lone CR
/// or LF, U+2028, U+2029, and the non-characters U+FDD0 and U+FDD1 (which text widgets use as block marks).
std::string typedToCrLf(std::string_view text);

/// The text on one line: every line end, tab and other control character becomes a blank, CR LF a single one.
std::string onOneLine(std::string_view text);

/// The text with CR LF and lone CR as a single line feed, as an XML parser normalises line ends.
std::string toLf(std::string_view text);

}  // namespace mavCycEd::text
