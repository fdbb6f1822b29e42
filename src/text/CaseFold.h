#pragma once

#include <string>
#include <string_view>

/// Comparing texts without regard to case: the simple case folding (Unicode) of Latin, Greek and Cyrillic letters.
namespace mavCycEd::text {

/// The character that stands for both cases of a letter; any other character stands for itself.
char32_t foldCase(char32_t character);

/// The text with every character folded. Bytes that are no UTF-8 stay as they are.
std::string foldCase(std::string_view text);

/// Whether two texts are the same without regard to case.
bool equalsIgnoringCase(std::string_view a, std::string_view b);

}  // namespace mavCycEd::text
