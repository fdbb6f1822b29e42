#pragma once

#include <string_view>

namespace mavCycEd {

/// Whether a catalogue entry, cleaned, is the name of an object class.
bool ItIsObject(std::string_view text);

/// Whether a text has the form of a call: what stands before its first "(" has, as it is written, only characters of an
/// object class's name, and more than one. A text without "(" is none.
bool IsAnObject(std::string_view text);

}  // namespace mavCycEd
