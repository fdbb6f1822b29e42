#pragma once

#include <QAbstractListModel>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mavCycEd::qt {

/// The items of a list box or a combo box: texts, and no object for each of them. An index beyond the list is run-time
/// error 5.
class TextListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role : int {
    ExactTextRole = Qt::UserRole,  ///< the item as it was given, as a QByteArray
  };

  using QAbstractListModel::QAbstractListModel;

  /// Replaces all items: one model reset.
  virtual void assign(std::vector<std::string> items);
  void append(std::string_view text);
  void remove(int index);
  void setText(int index, std::string_view text);

  int count() const { return static_cast<int>(items_.size()); }
  const std::string& text(int index) const { return items_[checked(index)]; }
  /// The item that needs the most room, as far as its length tells; empty when there is no item.
  const std::string& longest() const;
  /// The first item of exactly this text, -1 when there is none.
  int indexOf(std::string_view text) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 protected:
  std::size_t checked(int index) const;

 private:
  std::vector<std::string> items_;
};

}  // namespace mavCycEd::qt
