#include "memory/MemoryListBox.h"

#include <cstddef>

#include "kit/Notify.h"

namespace mavCycEd::memory {

std::vector<std::string> MemoryListBox::items() const {
  std::vector<std::string> items;
  items.reserve(static_cast<std::size_t>(itemCount()));
  for (int i = 0; i < itemCount(); ++i) items.push_back(itemText(i));
  return items;
}

void MemoryListBox::setIndex(int index) {
  selection_.select(index == -1 ? index : texts().checked(index));
  kit::tell(events_.Click);
}

void MemoryListBox::doubleClick(int index) {
  const auto doubleClicked = events_.DblClick;
  setIndex(index);
  kit::tell(doubleClicked);
}

void MemoryItemListBox::assign(std::vector<std::string> items) {
  items_.assign(std::move(items));
  selection().clear();
}

void MemoryItemListBox::insertItem(int index, std::string_view text) {
  items_.insert(index, text);
  selection().splice({.at = index, .removed = 0, .added = 1});
}

void MemoryItemListBox::removeItem(int index) {
  items_.remove(index);
  selection().splice({.at = index, .removed = 1, .added = 0});
}

void MemoryLineListBox::clear() {
  lines_.clear();
  selection().clear();
}

void MemoryLineListBox::showLines(const platform::ListLines& lines) {
  lines_.show(lines);
  selection().clear();
}

void MemoryLineListBox::spliced(int at, int removed, int added) {
  const kit::Splice change{.at = at, .removed = removed, .added = added};
  lines_.splice(change);
  selection().splice(change);
}

}  // namespace mavCycEd::memory
