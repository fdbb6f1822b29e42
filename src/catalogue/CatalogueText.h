#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mavCycEd {

/// A growing list of texts, as the catalogue's queries extend it.
using ValueList = std::vector<std::string>;

/// Whether a text names an object class: more than one character, all of them "A" to "Z" or "_".
bool isObjectName(std::string_view text);

/// A catalogue entry as it is compared and shown: without ",", U+00C2, U+00C3 and U+00C4.
std::string cleanedEntry(std::string_view text);

/// An atom's name as the picker shows it: without "!".
std::string pickerName(std::string_view atomName);

}  // namespace mavCycEd
