#include "panels/modControlArray.h"

namespace mavCycEd::modControlArray {

void deleteItems(platform::PopupMenu& menu) {
  for (int index = menu.lastIndex(); index > 0; --index) {
    if (menu.hasItem(index)) menu.removeItem(index);
  }
}

bool isContinuous(const platform::PopupMenu& menu) { return menu.lastIndex() + 1 == menu.itemCount(); }

int firstFreePlace(const platform::PopupMenu& menu) {
  if (isContinuous(menu)) return menu.itemCount();
  int place = 0;
  while (menu.hasItem(place)) ++place;
  return place;
}

}  // namespace mavCycEd::modControlArray
