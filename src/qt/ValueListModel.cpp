#include "qt/ValueListModel.h"

#include <QStringList>

#include "qt/Text.h"

namespace mavCycEd::qt {

void ValueListModel::setTitle(int column, std::string_view title) {
  titles_.at(static_cast<std::size_t>(column)) = title;
  emit headerDataChanged(Qt::Horizontal, column, column);
}

void ValueListModel::insert(std::string_view key, std::string_view value, bool append) {
  const int at = append ? rowCount() : 0;
  beginInsertRows({}, at, at);
  rows_.insert(key, value, append);
  endInsertRows();
}

void ValueListModel::remove(int row) {
  if (!rows_.isParameterRow(row)) return;
  beginRemoveRows({}, row - 1, row - 1);
  rows_.remove(row);
  endRemoveRows();
}

bool ValueListModel::setCell(int column, int row, std::string_view text) {
  if (!rows_.setCell(column, row, text)) return false;
  tellChanged(column, row);
  return true;
}

void ValueListModel::setPickList(int row, std::string_view items) {
  if (rows_.setPickList(row, items)) tellChanged(valueColumn, row);
}

void ValueListModel::tellChanged(int column, int row) {
  const QModelIndex changed = cellIndex(column, row);
  emit dataChanged(changed, changed);
}

int ValueListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_.rowCount() - 1; }

int ValueListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 2; }

QVariant ValueListModel::data(const QModelIndex& index, int role) const {
  const ValueListRows::Entry* const entry = index.isValid() ? rows_.entry(rowOf(index)) : nullptr;
  if (entry == nullptr) return {};
  const std::string& text = index.column() == keyColumn ? entry->key : entry->value;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return toQt(text);
    case ExactTextRole: return QByteArray::fromStdString(text);
    case PickListRole: {
      QStringList items;
      if (index.column() == valueColumn) {
        for (const std::string& item : entry->pickList) items.append(toQt(item));
      }
      return items;
    }
    default: return {};
  }
}

QVariant ValueListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return toQt(title(section));
  if (role == Qt::TextAlignmentRole) return {Qt::AlignLeft | Qt::AlignVCenter};
  return {};
}

Qt::ItemFlags ValueListModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() && index.column() == valueColumn ? flags | Qt::ItemIsEditable : flags;
}

}  // namespace mavCycEd::qt
