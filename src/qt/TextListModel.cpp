#include "qt/TextListModel.h"

#include <algorithm>
#include <utility>

#include "platform/RunTimeError.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

std::size_t TextListModel::checked(int index) const {
  if (index < 0 || index >= count()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return static_cast<std::size_t>(index);
}

void TextListModel::assign(std::vector<std::string> items) {
  beginResetModel();
  items_ = std::move(items);
  endResetModel();
}

void TextListModel::append(std::string_view text) {
  beginInsertRows({}, count(), count());
  items_.emplace_back(text);
  endInsertRows();
}

void TextListModel::remove(int index) {
  const std::size_t at = checked(index);
  beginRemoveRows({}, index, index);
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(at));
  endRemoveRows();
}

void TextListModel::setText(int index, std::string_view text) {
  items_[checked(index)] = text;
  const QModelIndex changed = this->index(index);
  emit dataChanged(changed, changed);
}

const std::string& TextListModel::longest() const {
  static const std::string none;
  const auto found = std::ranges::max_element(items_, {}, &std::string::size);
  return found == items_.end() ? none : *found;
}

int TextListModel::indexOf(std::string_view text) const {
  const auto found = std::ranges::find(items_, text);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

int TextListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count(); }

QVariant TextListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= count()) return {};
  const std::string& text = items_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return toQt(text);
    case ExactTextRole: return QByteArray::fromStdString(text);
    default: return {};
  }
}

}  // namespace mavCycEd::qt
