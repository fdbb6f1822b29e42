#include "qt/CheckListModel.h"

#include <utility>

namespace mavCycEd::qt {

void CheckListModel::assign(std::vector<std::string> items) {
  selected_.assign(items.size(), false);
  TextListModel::assign(std::move(items));
}

void CheckListModel::append(std::string_view text, bool selected) {
  selected_.push_back(selected);
  TextListModel::append(text);
}

void CheckListModel::toggle(int index) {
  const auto at = static_cast<std::size_t>(texts().checked(index));
  selected_[at] = !selected_[at];
  const QModelIndex changed = this->index(index);
  emit dataChanged(changed, changed, {Qt::CheckStateRole});
}

Qt::ItemFlags CheckListModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = TextListModel::flags(index);
  return index.isValid() ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant CheckListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::CheckStateRole || !index.isValid() || index.row() >= count()) {
    return TextListModel::data(index, role);
  }
  return isSelected(index.row()) ? Qt::Checked : Qt::Unchecked;
}

bool CheckListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid() || index.row() >= count()) return false;
  if (isSelected(index.row()) != (value.toInt() == Qt::Checked)) toggle(index.row());
  return true;
}

}  // namespace mavCycEd::qt
