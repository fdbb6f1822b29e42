#include "memory/MemoryPopupMenu.h"

#include <cstddef>

#include "memory/Notify.h"
#include "platform/RunTimeError.h"

namespace mavCycEd::memory {

const MemoryPopupMenu::Item& MemoryPopupMenu::item(int index) const {
  const auto found = items_.find(index);
  if (found == items_.end()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return found->second;
}

void MemoryPopupMenu::createItem(int index) {
  if (index < 0 || !items_.emplace(index, Item{}).second) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

void MemoryPopupMenu::removeItem(int index) {
  if (index == 0) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  if (items_.erase(index) == 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

void MemoryPopupMenu::setItemCaption(int index, std::string_view caption) {
  item(index);
  items_[index].caption = caption;
}

void MemoryPopupMenu::setItemVisible(int index, bool visible) {
  item(index);
  items_[index].visible = visible;
}

std::vector<int> MemoryPopupMenu::visibleIndexes() const {
  std::vector<int> indexes;
  for (const auto& [index, item] : items_) {
    if (item.visible) indexes.push_back(index);
  }
  return indexes;
}

std::vector<std::string> MemoryPopupMenu::visibleCaptions() const {
  std::vector<std::string> captions;
  for (const int index : visibleIndexes()) captions.push_back(item(index).caption);
  return captions;
}

bool MemoryPopupMenu::choose(int place) {
  const std::vector<int> indexes = visibleIndexes();
  if (!open_ || place < 0 || static_cast<std::size_t>(place) >= indexes.size()) return false;
  open_ = false;
  notify(events_.Click, indexes[static_cast<std::size_t>(place)]);
  return true;
}

}  // namespace mavCycEd::memory
