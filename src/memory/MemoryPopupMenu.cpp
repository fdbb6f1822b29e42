#include "memory/MemoryPopupMenu.h"

#include <cstddef>
#include <vector>

#include "kit/Notify.h"

namespace mavCycEd::memory {

bool MemoryPopupMenu::choose(int place) {
  const std::vector<int> indexes = visibleIndexes();
  if (!open_ || place < 0 || static_cast<std::size_t>(place) >= indexes.size()) return false;
  open_ = false;
  kit::tell(events().Click, indexes[static_cast<std::size_t>(place)]);
  return true;
}

}  // namespace mavCycEd::memory
