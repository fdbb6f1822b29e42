#include "kit/TypeAhead.h"

#include <algorithm>

#include "text/CaseFold.h"

namespace mavCycEd::kit {
namespace {

// Whether a text is one piece again and again.
bool repeats(std::string_view text, std::string_view piece) {
  while (text.starts_with(piece)) text.remove_prefix(piece.size());
  return text.empty();
}

}  // namespace

int TypeAhead::type(std::string_view character, Time now, const Items& items) {
  if (character.empty() || items.count <= 0) return -1;
  if (now - last_ > pause_) restart();
  last_ = now;
  const std::string folded = text::foldCase(character);
  typed_ += folded;
  const bool goesOn = repeats(typed_, folded);
  const std::string& wanted = goesOn ? folded : typed_;
  const int first = std::max(items.current, 0) + (goesOn && items.current >= 0 ? 1 : 0);
  for (int step = 0; step < items.count; ++step) {
    const int index = (first + step) % items.count;
    if (text::foldCase(items.text(index)).starts_with(wanted)) return index;
  }
  return -1;
}

}  // namespace mavCycEd::kit
