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
  places_.forget();
  lines_ = nullptr;
  endResetModel();
}

void TextListModel::showLines(const platform::ListLines& lines) {
  beginResetModel();
  items_.clear();
  places_.forget();
  lines_ = &lines;
  lineCount_ = lines.count();
  endResetModel();
}

void TextListModel::lineAdded() {
  beginInsertRows({}, count(), count());
  ++lineCount_;
  endInsertRows();
}

void TextListModel::lineChanged(int index) {
  checked(index);
  tellChange(index);
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
  places_.forget();
  endRemoveRows();
}

void TextListModel::setText(int index, std::string_view text) {
  items_[checked(index)] = text;
  places_.forget();
  tellChange(index);
}

void TextListModel::tellChange(int index) {
  const QModelIndex changed = this->index(index);
  emit dataChanged(changed, changed);
}

std::string TextListModel::text(int index) const {
  const std::size_t at = checked(index);
  return lines_ != nullptr ? lines_->text(index) : items_[at];
}

std::string TextListModel::longest() const {
  if (lines_ != nullptr) {
    const int longest = lines_->longest();
    return longest < 0 ? std::string() : lines_->text(longest);
  }
  const auto found = std::ranges::max_element(items_, {}, &std::string::size);
  return found == items_.end() ? std::string() : *found;
}

int TextListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count(); }

QVariant TextListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= count()) return {};
  switch (role) {
    case Qt::DisplayRole: return toQtLine(text(index.row()));
    case Qt::EditRole: return toQt(text(index.row()));
    case ExactTextRole: return QByteArray::fromStdString(text(index.row()));
    default: return {};
  }
}

}  // namespace mavCycEd::qt
