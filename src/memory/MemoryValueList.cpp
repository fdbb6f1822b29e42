#include "memory/MemoryValueList.h"

#include <cstddef>

#include "memory/Notify.h"
#include "text/LineEnds.h"
#include "text/Utf8.h"

namespace mavCycEd::memory {
namespace {

constexpr int valueColumn = 1;

}  // namespace

void MemoryValueList::setColumnTitle(int column, std::string_view title) {
  titles_.at(static_cast<std::size_t>(column)) = title;
}

void MemoryValueList::InsertRow(std::string_view key, std::string_view value, bool append) {
  const int inserted = rows_.insert(key, value, append);
  if (editedRow_ >= inserted) ++editedRow_;
}

void MemoryValueList::DeleteRow(int row) {
  if (!rows_.isParameterRow(row)) return;
  rows_.remove(row);
  if (row == editedRow_) {
    editedRow_ = 0;
  } else if (row < editedRow_) {
    --editedRow_;
  }
}

void MemoryValueList::setValue(int column, int row, std::string_view text) {
  const bool written = rows_.setCell(column, row, text);
  if (written && column == valueColumn && row == editedRow_) {
    notify(events_.SetEditText, valueColumn, row, std::string(text));
  }
}

std::string MemoryValueList::cellText(int column, int row) const {
  if (row == 0) return column == 0 || column == 1 ? titles_[static_cast<std::size_t>(column)] : std::string();
  return rows_.cell(column, row);
}

void MemoryValueList::makeCurrent(int row) {
  if (!rows_.isParameterRow(row) || row == rows_.currentRow()) return;
  rows_.setCurrentRow(row);
  notify(events_.SelectionChange);
}

void MemoryValueList::changeEditText(const std::string& text) {
  rows_.setCell(valueColumn, editedRow_, text);
  notify(events_.SetEditText, valueColumn, editedRow_, text);
}

void MemoryValueList::type(int row, std::string_view typed) {
  const std::string line = text::onOneLine(typed);
  std::string_view text = line;
  const Lifetime::Watch alive(lifetime_);
  makeCurrent(row);
  if (!alive) return;
  editedRow_ = row;
  if (text.empty() && !rows_.cell(valueColumn, row).empty()) changeEditText({});
  bool replacing = true;  // the first keystroke replaces the value, the following ones add to it
  while (alive && !text.empty() && editedRow_ != 0) {
    const std::size_t size = text::firstCharacterSize(text);
    const std::string before = replacing ? std::string() : rows_.cell(valueColumn, editedRow_);
    changeEditText(before + std::string(text.substr(0, size)));
    replacing = false;
    text.remove_prefix(size);
  }
  if (!alive) return;
  const int ended = std::exchange(editedRow_, 0);
  if (ended == 0) return;
  notify(events_.EndOfEdit, valueColumn, ended, rows_.cell(0, ended), rows_.cell(valueColumn, ended));
}

void MemoryValueList::pick(int row, std::string_view item) {
  const Lifetime::Watch alive(lifetime_);
  makeCurrent(row);
  if (!alive) return;
  rows_.setCell(valueColumn, row, item);
  notify(events_.EndOfEdit, valueColumn, row, rows_.cell(0, row), std::string(item));
}

void MemoryValueList::pressMouse(platform::MouseButton button, int x, int y) {
  constexpr int rowHeight = 19;
  const Lifetime::Watch alive(lifetime_);
  makeCurrent(y / rowHeight);
  if (alive) notify(events_.MouseDown, button, x, y);
}

void MemoryValueList::moveMouse(int x, int y) { notify(events_.MouseMove, x, y); }

void MemoryValueList::requestContextMenu(int x, int y) { notify(events_.ContextPopup, x, y); }

}  // namespace mavCycEd::memory
