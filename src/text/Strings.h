#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// Small rules about texts that all rooms share.
namespace mavCycEd::text {

/// The pieces between the separators. An empty text has no pieces. The pieces point into `text`.
std::vector<std::string_view> split(std::string_view text, char separator);
/// The pieces between the separators of several characters.
std::vector<std::string_view> split(std::string_view text, std::string_view separator);

/// The texts with a separator between them.
std::string join(const std::vector<std::string>& texts, std::string_view separator);

/// The text with every occurrence of `what` (not empty) replaced, from the first character on.
std::string replaceAll(std::string_view text, std::string_view what, std::string_view by);

/// The text without any occurrence of these characters.
std::string withoutCharacters(std::string_view text, std::u32string_view characters);

/// The text without spaces at both ends.
std::string_view trimSpaces(std::string_view text);

}  // namespace mavCycEd::text
