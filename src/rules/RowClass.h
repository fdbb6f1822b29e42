#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mavCycEd {

/// The text between the first "(" and the first ")" of a row's key; nothing when the key has no such pair.
std::optional<std::string> parenthesised(std::string_view key);

}  // namespace mavCycEd
