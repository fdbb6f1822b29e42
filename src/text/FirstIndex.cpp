#include "text/FirstIndex.h"

namespace mavCycEd::text {

int FirstIndex::of(std::string_view text, const std::vector<std::string>& items) {
  for (; known_ < items.size(); ++known_) first_.try_emplace(items[known_], static_cast<int>(known_));
  const auto found = first_.find(text);
  return found == first_.end() ? -1 : found->second;
}

void FirstIndex::forget() {
  first_.clear();
  known_ = 0;
}

}  // namespace mavCycEd::text
