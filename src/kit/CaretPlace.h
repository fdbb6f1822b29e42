#pragma once

#include <cstddef>
#include <string_view>

namespace mavCycEd::kit {

/// Where the caret of a text box goes when another text is put into it, in bytes of the new text: behind what has
/// changed, never into a character or into a carriage return plus line feed. A text that has neither beginning nor end
/// in common with the one before is another text, and is shown from its start.
std::size_t caretBehindChange(std::string_view before, std::string_view after);

}  // namespace mavCycEd::kit
