#include "paramgrid/ValueListRows.h"

#include <algorithm>
#include <cstddef>

#include "text/Strings.h"

namespace mavCycEd {
namespace {

std::size_t indexOf(int row) { return static_cast<std::size_t>(row) - 1; }

}  // namespace

void ValueListRows::setCurrentRow(int row) {
  if (isParameterRow(row)) currentRow_ = row;
}

int ValueListRows::insert(std::string_view key, std::string_view value, bool append) {
  Entry entry{std::string(key), std::string(value), {}};
  if (append || entries_.empty()) {
    entries_.push_back(std::move(entry));
    if (currentRow_ == 0) currentRow_ = 1;
    return rowCount() - 1;
  }
  entries_.insert(entries_.begin(), std::move(entry));
  ++currentRow_;
  return 1;
}

void ValueListRows::remove(int row) {
  if (!isParameterRow(row)) return;
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(indexOf(row)));
  if (row < currentRow_) --currentRow_;
  currentRow_ = std::min(currentRow_, rowCount() - 1);
}

const ValueListRows::Entry* ValueListRows::entry(int row) const {
  return isParameterRow(row) ? &entries_[indexOf(row)] : nullptr;
}

bool ValueListRows::setCell(int column, int row, std::string_view text) {
  if (!isParameterRow(row) || column < 0 || column > 1) return false;
  Entry& entry = entries_[indexOf(row)];
  (column == 0 ? entry.key : entry.value) = text;
  return true;
}

std::string ValueListRows::cell(int column, int row) const {
  const Entry* const found = entry(row);
  if (found == nullptr || column < 0 || column > 1) return {};
  return column == 0 ? found->key : found->value;
}

bool ValueListRows::setPickList(int row, std::string_view items) {
  if (!isParameterRow(row)) return false;
  const auto pieces = text::split(items, ';');
  entries_[indexOf(row)].pickList.assign(pieces.begin(), pieces.end());
  return true;
}

}  // namespace mavCycEd
