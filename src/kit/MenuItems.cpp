#include "kit/MenuItems.h"

#include "platform/RunTimeError.h"

namespace mavCycEd::kit {

int MenuItems::checked(int index) const {
  if (!hasItem(index)) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return index;
}

void MenuItems::createItem(int index) {
  if (index < 0 || !items_.try_emplace(index).second) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  itemsChanged();
}

void MenuItems::removeItem(int index) {
  if (index == 0) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  items_.erase(checked(index));
  itemsChanged();
}

void MenuItems::setItemCaption(int index, std::string_view caption) {
  items_.at(checked(index)).caption = caption;
  itemsChanged();
}

void MenuItems::setItemVisible(int index, bool visible) {
  items_.at(checked(index)).visible = visible;
  itemsChanged();
}

std::vector<int> MenuItems::visibleIndexes() const {
  std::vector<int> indexes;
  for (const auto& [index, item] : items_) {
    if (item.visible) indexes.push_back(index);
  }
  return indexes;
}

std::vector<std::string> MenuItems::visibleCaptions() const {
  std::vector<std::string> captions;
  for (const auto& [index, item] : items_) {
    if (item.visible) captions.push_back(item.caption);
  }
  return captions;
}

}  // namespace mavCycEd::kit
