#include "memory/MemoryListBox.h"

#include <utility>

#include "memory/Notify.h"
#include "platform/RunTimeError.h"

namespace mavCycEd::memory {

std::size_t MemoryListBox::checked(int index) const {
  if (index < 0 || index >= itemCount()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return static_cast<std::size_t>(index);
}

void MemoryListBox::assign(std::vector<std::string> items) {
  items_ = std::move(items);
  lines_ = nullptr;
  index_ = -1;
}

void MemoryListBox::showLines(const platform::ListLines& lines) {
  items_.clear();
  lines_ = &lines;
  lineCount_ = lines.count();
  index_ = -1;
}

void MemoryListBox::lineAdded() { ++lineCount_; }

std::string MemoryListBox::itemText(int index) const {
  const std::size_t at = checked(index);
  return lines_ != nullptr ? lines_->text(index) : items_[at];
}

std::vector<std::string> MemoryListBox::items() const {
  std::vector<std::string> texts;
  texts.reserve(static_cast<std::size_t>(itemCount()));
  for (int i = 0; i < itemCount(); ++i) texts.push_back(itemText(i));
  return texts;
}

void MemoryListBox::removeItem(int index) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(checked(index)));
  if (index == index_) {
    index_ = -1;
  } else if (index < index_) {
    --index_;
  }
}

void MemoryListBox::setIndex(int index) {
  if (index != -1) checked(index);
  index_ = index;
  notify(events_.Click);
}

void MemoryListBox::doubleClick(int index) {
  const auto doubleClicked = events_.DblClick;
  setIndex(index);
  notify(doubleClicked);
}

}  // namespace mavCycEd::memory
