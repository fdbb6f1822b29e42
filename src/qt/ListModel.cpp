#include "qt/ListModel.h"

#include "qt/Text.h"

namespace mavCycEd::qt {

std::string ListModel::longest() const {
  const int longest = texts().longest();
  return longest < 0 ? std::string() : text(longest);
}

int ListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count(); }

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= count()) return {};
  switch (role) {
    case Qt::DisplayRole: return toQtLine(text(index.row()));
    case Qt::EditRole: return toQt(text(index.row()));
    case ExactTextRole: return QByteArray::fromStdString(text(index.row()));
    default: return {};
  }
}

void ListModel::tellChange(int first, int last) {
  if (first <= last) emit dataChanged(index(first), index(last));
}

}  // namespace mavCycEd::qt
