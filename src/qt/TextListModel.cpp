#include "qt/TextListModel.h"

#include <utility>

namespace mavCycEd::qt {

void TextListModel::assign(std::vector<std::string> items) {
  beginResetModel();
  items_.assign(std::move(items));
  endResetModel();
}

void TextListModel::insert(int index, std::string_view text) {
  if (index != count()) items_.checked(index);
  beginInsertRows({}, index, index);
  items_.insert(index, text);
  endInsertRows();
}

void TextListModel::remove(int index) {
  items_.checked(index);
  beginRemoveRows({}, index, index);
  items_.remove(index);
  endRemoveRows();
}

void TextListModel::setText(int index, std::string_view text) {
  items_.setText(index, text);
  tellChange(index, index);
}

}  // namespace mavCycEd::qt
