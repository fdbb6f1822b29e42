#include "qt/ValueListModel.h"

#include <QStringList>
#include <utility>

#include "qt/Text.h"

namespace mavCycEd::qt {

ValueListModel::ValueListModel(std::shared_ptr<kit::ValueList> list) : list_(std::move(list)), rows_(list_->rows()) {
  list_->setObserver(this);
}

ValueListModel::~ValueListModel() { list_->setObserver(nullptr); }

void ValueListModel::aboutToInsert(int row) {
  changing_ = true;
  beginInsertRows({}, row - 1, row - 1);
}

void ValueListModel::inserted() {
  endInsertRows();
  changing_ = false;
}

void ValueListModel::aboutToRemove(int row) {
  changing_ = true;
  beginRemoveRows({}, row - 1, row - 1);
}

void ValueListModel::removed() {
  endRemoveRows();
  changing_ = false;
}

void ValueListModel::changed(int column, int row) {
  if (row == 0) {
    emit headerDataChanged(Qt::Horizontal, column, column);
  } else {
    const QModelIndex cell = cellIndex(column, row);
    emit dataChanged(cell, cell);
  }
}

int ValueListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_.rowCount() - 1; }

int ValueListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 2; }

QVariant ValueListModel::data(const QModelIndex& index, int role) const {
  const kit::ValueListRows::Entry* const entry = index.isValid() ? rows_.entry(rowOf(index)) : nullptr;
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
  if (role == Qt::DisplayRole) return toQt(rows_.cell(section, 0));
  if (role == Qt::TextAlignmentRole) return {Qt::AlignLeft | Qt::AlignVCenter};
  return {};
}

Qt::ItemFlags ValueListModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() && index.column() == valueColumn ? flags | Qt::ItemIsEditable : flags;
}

}  // namespace mavCycEd::qt
