#pragma once

#include <string_view>

namespace mavCycEd {

/// Whether a catalogue entry, cleaned, is the name of an object class.
bool ItIsObject(std::string_view text);

}  // namespace mavCycEd
