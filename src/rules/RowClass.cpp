#include "rules/RowClass.h"

namespace mavCycEd {

std::optional<std::string> parenthesised(std::string_view key) {
  const std::size_t open = key.find('(');
  const std::size_t close = key.find(')');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open) return std::nullopt;
  return std::string(key.substr(open + 1, close - open - 1));
}

}  // namespace mavCycEd
