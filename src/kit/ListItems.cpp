#include "kit/ListItems.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/RunTimeError.h"

namespace mavCycEd::kit {

void ListItems::changed() {
  places_.forget();
  longest_ = unknown;
}

void ListItems::assign(std::vector<std::string> items) {
  items_ = std::move(items);
  changed();
}

// Growing at the end keeps what is known, so that a list may be filled item by item.
void ListItems::append(std::string_view text) {
  const int before = longest();
  items_.emplace_back(text);
  if (before < 0 || text.size() > items_[at(before)].size()) longest_ = count() - 1;
}

void ListItems::insert(int index, std::string_view text) {
  if (index == count()) return append(text);
  items_.emplace(items_.begin() + checked(index), text);
  changed();
}

void ListItems::remove(int index) {
  items_.erase(items_.begin() + checked(index));
  changed();
}

void ListItems::setText(int index, std::string_view text) {
  items_[at(index)] = text;
  changed();
}

int ListItems::longest() const {
  if (longest_ == unknown) {
    const auto found = std::ranges::max_element(items_, {}, &std::string::size);
    longest_ = found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
  }
  return longest_;
}

}  // namespace mavCycEd::kit
