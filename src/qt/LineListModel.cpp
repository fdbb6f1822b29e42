#include "qt/LineListModel.h"

namespace mavCycEd::qt {

void LineListModel::show(const platform::ListLines& lines) {
  beginResetModel();
  lines_.show(lines);
  endResetModel();
}

void LineListModel::clear() {
  beginResetModel();
  lines_.clear();
  endResetModel();
}

// Rows go before rows come: nothing that a view knows about a row that went is good for one that came.
void LineListModel::splice(const kit::Splice& change) {
  lines_.check(change);
  if (change.isInPlace()) {
    lines_.splice(change);
  } else {
    if (change.removed > 0) {
      beginRemoveRows({}, change.at, change.behind() - 1);
      lines_.splice({.at = change.at, .removed = change.removed, .added = 0});
      endRemoveRows();
    }
    if (change.added > 0) {
      beginInsertRows({}, change.at, change.at + change.added - 1);
      lines_.splice({.at = change.at, .removed = 0, .added = change.added});
      endInsertRows();
    }
  }
  tellChange(0, count() - 1);
}

}  // namespace mavCycEd::qt
