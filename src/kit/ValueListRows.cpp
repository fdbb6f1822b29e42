#include "kit/ValueListRows.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "text/Strings.h"

namespace mavCycEd::kit {
namespace {

std::size_t indexOf(int row) { return static_cast<std::size_t>(row) - 1; }

bool isColumn(int column) { return column == ValueListRows::keyColumn || column == ValueListRows::valueColumn; }

}  // namespace

void ValueListRows::setCurrentRow(int row) {
  if (isParameterRow(row)) currentRow_ = row;
}

int ValueListRows::insert(std::string_view key, std::string_view value, bool append) {
  const int row = append ? rowCount() : 1;
  if (observer_ != nullptr) observer_->aboutToInsert(row);
  entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(indexOf(row)),
                  Entry{std::string(key), std::string(value), {}});
  if (currentRow_ == 0 || row <= currentRow_) ++currentRow_;
  if (observer_ != nullptr) observer_->inserted();
  return row;
}

void ValueListRows::remove(int row) {
  if (!isParameterRow(row)) return;
  if (observer_ != nullptr) observer_->aboutToRemove(row);
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(indexOf(row)));
  if (row < currentRow_) --currentRow_;
  currentRow_ = std::min(currentRow_, rowCount() - 1);
  if (observer_ != nullptr) observer_->removed();
}

const ValueListRows::Entry* ValueListRows::entry(int row) const {
  return isParameterRow(row) ? &entries_[indexOf(row)] : nullptr;
}

bool ValueListRows::hasPickList(int row) const {
  const Entry* const found = entry(row);
  return found != nullptr && !found->pickList.empty();
}

bool ValueListRows::setCell(int column, int row, std::string_view text) {
  if (!isParameterRow(row) || !isColumn(column)) return false;
  Entry& entry = entries_[indexOf(row)];
  (column == keyColumn ? entry.key : entry.value) = text;
  tellChanged(column, row);
  return true;
}

std::string ValueListRows::cell(int column, int row) const {
  if (!isColumn(column)) return {};
  if (row == 0) return titles_[static_cast<std::size_t>(column)];
  const Entry* const found = entry(row);
  if (found == nullptr) return {};
  return column == keyColumn ? found->key : found->value;
}

void ValueListRows::setTitle(int column, std::string_view title) {
  titles_.at(static_cast<std::size_t>(column)) = title;
  tellChanged(column, 0);
}

bool ValueListRows::setPickList(int row, std::string_view items) {
  if (!isParameterRow(row)) return false;
  const auto pieces = text::split(items, ';');
  entries_[indexOf(row)].pickList.assign(pieces.begin(), pieces.end());
  tellChanged(valueColumn, row);
  return true;
}

void ValueListRows::tellChanged(int column, int row) const {
  if (observer_ != nullptr) observer_->changed(column, row);
}

}  // namespace mavCycEd::kit
