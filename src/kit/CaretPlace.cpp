#include "kit/CaretPlace.h"

#include <algorithm>

namespace mavCycEd::kit {
namespace {

// Whether a text may be parted here: not inside of a character, nor between the two of a line end.
bool isBoundary(std::string_view text, std::size_t at) {
  if (at == 0 || at >= text.size()) return true;
  constexpr unsigned continuationMask = 0xC0;
  constexpr unsigned continuation = 0x80;
  const bool continues = (static_cast<unsigned char>(text[at]) & continuationMask) == continuation;
  return !continues && !(text[at - 1] == '\r' && text[at] == '\n');
}

std::size_t commonPrefix(std::string_view before, std::string_view after) {
  const auto [end, unused] = std::ranges::mismatch(before, after);
  auto size = static_cast<std::size_t>(end - before.begin());
  while (!isBoundary(before, size) || !isBoundary(after, size)) --size;
  return size;
}

std::size_t commonSuffix(std::string_view before, std::string_view after) {
  std::size_t size = 0;
  const std::size_t most = std::min(before.size(), after.size());
  while (size < most && before[before.size() - size - 1] == after[after.size() - size - 1]) ++size;
  while (!isBoundary(before, before.size() - size) || !isBoundary(after, after.size() - size)) --size;
  return size;
}

}  // namespace

std::size_t caretBehindChange(std::string_view before, std::string_view after) {
  const std::size_t prefix = commonPrefix(before, after);
  const std::size_t suffix = commonSuffix(before.substr(prefix), after.substr(prefix));
  return prefix == 0 && suffix == 0 ? 0 : after.size() - suffix;
}

}  // namespace mavCycEd::kit
