#include "memory/MemoryComboBox.h"

#include <cstddef>
#include <utility>

#include "kit/Notify.h"
#include "platform/RunTimeError.h"
#include "text/LineEnds.h"

namespace mavCycEd::memory {

void MemoryComboBox::assign(std::vector<std::string> items) {
  items_ = std::move(items);
  places_.forget();
  index_ = -1;
  text_.clear();
}

std::string MemoryComboBox::itemText(int index) const {
  if (index < 0 || index >= itemCount()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return items_[static_cast<std::size_t>(index)];
}

void MemoryComboBox::setIndex(int index) {
  text_ = index == -1 ? std::string() : itemText(index);
  index_ = index;
  kit::tell(events_.Click);
}

void MemoryComboBox::setText(std::string_view text) {
  show(text);
  kit::tell(events_.Click);
}

void MemoryComboBox::type(std::string_view text) { show(text::onOneLine(text)); }

void MemoryComboBox::show(std::string_view text) {
  index_ = places_.of(text, items_);
  text_ = text;
}

void MemoryComboBox::leave() { kit::tell(events_.LostFocus); }

}  // namespace mavCycEd::memory
